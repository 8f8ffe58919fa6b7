// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "options/OptionsStore.h"
#include "solver/ImportPlan.h"

#include <QDialog>

#include <memory>
#include <optional>
#include <string>
#include <vector>

class QTreeWidgetItem;

namespace tarsil {

class Document;
class ImportPreview;
class InputMessage;
class UserInterface;

namespace Ui {
class dlgImport;
}

/// The dialog "Import Solver Results": lists the analyses of solver outputs, asks for the units of
/// their numbers, shows what the outputs prove about these and a preview of the plot, writes the
/// selected analyses as evolutions, and loads these. The units are those last used for the folder
/// of the first output; otherwise none are selected, and nothing can be imported.
class dlgImport : public QDialog
{
    Q_OBJECT

public:
    /// All references must outlive the dialog.
    dlgImport(Document& document, UserInterface& user, OptionsStore store,
              QWidget* parent = nullptr);
    ~dlgImport() override;

    /// Reads solver outputs and lists their analyses. Shows a message about files without one.
    /// Returns whether there is anything to import. When the user stops, the files read so far are
    /// listed.
    bool addFiles(const std::vector<std::string>& paths);

    static constexpr const char* fileFilter =
        "Solver Outputs (*.f06;*.out;*.flt)|*.f06;*.out;*.flt|All Files (*.*)|*.*|";

protected:
    void changeEvent(QEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void colorDoubts();
    void connectInputs();
    void btnAdd_Click();
    void btnFolder_Click();
    void btnImport_Click();

    void read(const std::vector<std::string>& paths);
    void listOutput(std::size_t output);
    void listFindings();
    void chooseOf(QTreeWidgetItem& node);
    std::optional<solver::AnalysisIndex> currentAnalysis() const;

    // The inputs of the units.
    void fillUnitInputs();
    void presetChosen(int index);
    void showRememberedUnits();
    void keepUnits();
    void showUnits(const solver::UnitChoice& units);
    void showPreset();
    std::optional<solver::UnitChoice> chosenUnits() const;
    std::optional<double> vref() const;

    /// Updates everything that depends on the inputs. The preview depends only on units and texts.
    void refresh();
    void showConsequences();
    void showEvidence();
    void showPreview();

    std::vector<std::string> existingFiles() const;
    bool mayReplace(const std::vector<std::string>& existing) const;
    solver::WrittenFiles write();
    void load(const solver::WrittenFiles& files);

    std::unique_ptr<Ui::dlgImport> m_ui;
    Document& m_document;
    UserInterface& m_user;
    OptionsStore m_store;
    solver::ImportPlan m_plan;
    ImportPreview* m_preview; ///< owned by the form
    std::unique_ptr<InputMessage> m_wrongVref;
};

} // namespace tarsil
