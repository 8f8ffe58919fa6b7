#pragma once

#include "model/PlotAxes.h"
#include "options/OptionsStore.h"

#include <QDialog>

#include <array>
#include <memory>

namespace tarsil {

class Document;
class EvmPlot;
class ListInput;
class InputWarning;
class UserInterface;

namespace Ui {
class dlgOptions;
}

/// The dialog "Options": the aircraft information file, and the scale and tick counts that plots
/// begin with. It is there for the whole run and only hidden, so that its inputs keep what was
/// typed; the inputs are what is kept until the next run, but for the aircraft information file,
/// of which the one last applied is kept. An aircraft information file that is not there has a
/// warning sign.
class dlgOptions : public QDialog
{
    Q_OBJECT

public:
    /// Numbers 0 to 5 are vmin, vmax, gmin, gmax, fmin, fmax; 6 to 8 the ticks of the speed,
    /// damping and frequency axis.
    using Entries = std::array<float, 9>;

    /// What is handed over by reference must outlive the dialog.
    dlgOptions(Document& document, UserInterface& user, OptionsStore store,
               QWidget* parent = nullptr);
    ~dlgOptions() override;

    /// Fills the inputs from the store and applies them. A store that cannot be read is reported,
    /// and leaves all inputs empty.
    void GetOptReg();

    /// Writes what was changed since `GetOptReg` into the store. Errors: those of
    /// `OptionsStore::write`.
    void SetOptReg() const;

    /// Takes the numbers of both lists over into the entries; a list with another count of parts
    /// leaves its entries as they are. Errors 13 and 6 for a part that is no such number, after
    /// which no entry has changed.
    void UpDateOpt();

    /// Reads the aircraft information file, if it exists, and gives the active plot (the first one
    /// while none is active) and the plots made from now on their axes. An empty list leaves the
    /// plot as it is, and new plots begin as usual. A list that does not fit changes nothing.
    /// Failures are reported; returns false after one in a list, which has changed nothing.
    bool ApplyOpt();

    const Entries& entries() const { return m_entries; }

protected:
    void showEvent(QShowEvent* event) override;

private:
    void btnAcInfo_Click();
    void btnApply_Click();
    void btnOK_Click();

    void readAircraftFile();
    void applyAxes();
    void showWhetherFileIsThere();
    OptionTexts textsToKeep() const;
    EvmPlot& vgfPlot() const;
    PlotAxes withEntries(PlotAxes axes) const;

    std::unique_ptr<Ui::dlgOptions> m_ui;
    Document& m_document;
    UserInterface& m_user;
    OptionsStore m_store;
    std::unique_ptr<InputWarning> m_missingFile;
    OptionTexts m_before; ///< what was to be kept when the store had been read
    std::unique_ptr<ListInput> m_scaleInput;
    std::unique_ptr<ListInput> m_thicksInput;
    Entries m_entries {};
};

} // namespace tarsil
