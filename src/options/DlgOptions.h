// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "model/PlotAxes.h"
#include "options/OptionsStore.h"
#include "plot/CurvePalette.h"

#include <QDialog>

#include <array>
#include <memory>
#include <string>

namespace tarsil {

class Document;
class EvmPlot;
class ListInput;
class InputMessage;
class UserInterface;

namespace Ui {
class dlgOptions;
}

/// The dialog "Options": the aircraft information file, the scale and tick counts of new plots, and
/// the look of new curves.
/// It exists for the whole run and is only hidden, so that its inputs keep their contents. Saved
/// are the contents of the inputs, and of the aircraft information file the path last applied. A
/// sign marks a file that does not exist.
class dlgOptions : public QDialog
{
    Q_OBJECT

public:
    /// 0 to 5: vmin, vmax, gmin, gmax, fmin, fmax; 6 to 8: ticks of the speed, damping and
    /// frequency axis.
    using Entries = std::array<float, 9>;

    /// Arguments passed by reference must outlive the dialog.
    dlgOptions(Document& document, UserInterface& user, OptionsStore store,
               QWidget* parent = nullptr);
    ~dlgOptions() override;

    /// Fills the inputs from the store and applies them. If the store cannot be read, that is
    /// reported and all inputs stay empty.
    void GetOptReg();

    /// Writes the changes since `GetOptReg` to the store. Errors: those of `OptionsStore::write`.
    void SetOptReg() const;

    /// Copies the numbers of both lists to the entries. A list with a wrong number of parts is
    /// ignored. Errors 13 and 6 for a part that is not a valid number; no entry has changed then.
    void UpDateOpt();

    /// Reads the aircraft information file, if it exists, and sets the axes of the active plot (of
    /// the first one when none is active) and of new plots. An empty list leaves the plot unchanged
    /// and gives new plots the default axes. A list that does not fit changes nothing. Sets the
    /// look of new curves. Reports errors; returns false if a list is faulty, with nothing changed.
    bool ApplyOpt();

    /// Makes a file the aircraft information file and reads it, as if it had been chosen and
    /// applied. Reports an error of the file.
    void useAircraftFile(const std::string& path);

    const Entries& entries() const { return m_entries; }

protected:
    void showEvent(QShowEvent* event) override;

private:
    void btnAcInfo_Click();
    void btnApply_Click();
    void btnOK_Click();

    void readAircraftFile();
    void applyAxes();
    CurvePalette palette() const;
    void applyLook();
    void showLook(const OptionTexts& stored);
    void showWhetherFileIsThere();
    OptionTexts textsToKeep() const;
    EvmPlot& vgfPlot() const;
    PlotAxes withEntries(PlotAxes axes) const;

    std::unique_ptr<Ui::dlgOptions> m_ui;
    Document& m_document;
    UserInterface& m_user;
    OptionsStore m_store;
    std::unique_ptr<InputMessage> m_missingFile;
    OptionTexts m_before; ///< what `SetOptReg` would have saved after the store was read
    std::unique_ptr<ListInput> m_scaleInput;
    std::unique_ptr<ListInput> m_thicksInput;
    Entries m_entries {};
};

} // namespace tarsil
