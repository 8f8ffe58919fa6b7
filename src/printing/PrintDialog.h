// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "base/user/Progress.h"

#include <QDialog>

#include <memory>
#include <string>

class QComboBox;
class QListWidget;
class QPrinter;
class QPushButton;

namespace tarsil {

class Document;
class UserInterface;
struct PrintJob;

/// The dialog "Print Plots": which plots are printed and how many on a page; page set-up, preview,
/// printer, and a PDF instead of paper. A failure is reported in a message.
class PrintDialog : public QDialog
{
    Q_OBJECT

public:
    /// Both must outlive the dialog.
    PrintDialog(Document& document, UserInterface& user, QWidget* parent = nullptr);
    ~PrintDialog() override;

protected:
    /// Lists the plots of the document, all of them ticked.
    void showEvent(QShowEvent* event) override;

private:
    void makeButtons();
    void listPlots();
    void enableButtons();
    PrintJob job() const;
    void setUpPage();
    void preview();
    void print();
    void writePdf();
    Progress shownProgress();

    Document& m_document;
    UserInterface& m_user;
    QListWidget* m_plots;
    QComboBox* m_plotsPerPage;
    QPushButton* m_preview = nullptr;
    QPushButton* m_print = nullptr;
    QPushButton* m_pdf = nullptr;
    std::unique_ptr<QPrinter> m_printer;
};

} // namespace tarsil
