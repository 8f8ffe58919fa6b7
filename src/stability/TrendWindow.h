// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "analysis/FlutterTrend.h"
#include "plotwindow/InputMessage.h"
#include "stability/SheetModel.h"

#include <QDialog>

#include <functional>
#include <memory>
#include <vector>

namespace tarsil {

namespace Ui {
class TrendWindow;
}

class Document;
class EVM;
class UserInterface;

/// The window "Flutter Trend": the lowest reliable starts of instability of several evolutions
/// against Mach number, altitude, mass or file, as a picture and as a table. While it is visible it
/// follows the parameters of the evolutions and the airplane. An invalid setting shows a message at
/// its input, and the last valid one stays in force.
class TrendWindow : public QDialog
{
    Q_OBJECT

public:
    /// All references must outlive the window.
    TrendWindow(Document& document, UserInterface& user, QWidget* parent = nullptr);
    ~TrendWindow() override;

    /// Compares these evolutions, which are in the document.
    void showEvolutions(std::vector<const EVM*> evolutions);

protected:
    void showEvent(QShowEvent* event) override;

private:
    void connectInputs();
    void takeSettings();
    void compare();
    void run(const std::function<void()>& action);
    void savePicture();
    void saveTable();
    Sheet table() const;

    std::unique_ptr<Ui::TrendWindow> m_ui;
    InputMessage m_levelsMessage;
    InputMessage m_factorMessage;
    Document& m_document;
    UserInterface& m_user;
    StabilitySettings m_settings;
    Requirement m_requirement;
    std::vector<const EVM*> m_evolutions;
    FlutterTrend m_trend;
    SheetModel m_table;
};

} // namespace tarsil
