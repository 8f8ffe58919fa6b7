#pragma once

#include "plotwindow/InputWarning.h"
#include "plotwindow/PlotHighlight.h"
#include "stability/DoubtModel.h"
#include "stability/PlotStability.h"
#include "stability/StabilityModel.h"
#include "stability/VerdictModel.h"

#include <QDialog>
#include <QMetaObject>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

class QLineEdit;

namespace tarsil {

namespace Ui {
class wndStability;
}

class Document;
class EVM;
class EvmPlot;
class UserInterface;

/// The window "Stability": where the evolutions of the active plot are unstable. It follows the
/// active plot, its rows, the evolutions' parameters and the airplane for as long as it is shown. A
/// setting that is no number is marked, and the last one that was a number counts.
///
/// Choosing a stretch, or a doubt of the tracking, shows it in the plot; a double click on a
/// stretch sets the axes of the plot around it, as a step that can be undone. From a doubt on two
/// modes of a tracked evolution can be exchanged.
class wndStability : public QDialog
{
    Q_OBJECT

public:
    /// What is given by reference must outlive the window.
    wndStability(Document& document, UserInterface& user, QWidget* parent = nullptr);
    ~wndStability() override;

    QSize sizeHint() const override;

    /// Whether there is an exchange that can be taken back.
    void setExchangeUndoable(bool isUndoable);

Q_SIGNALS:
    /// What the user looks at is to be shown in the active plot, or nothing any more.
    void pointedOut(const std::optional<tarsil::PlotHighlight>& highlight);

    /// It belongs to a mode, by its number in the file.
    void modeChosen(const tarsil::EVM& evolution, std::int16_t mode);

    /// The user wants two modes exchanged from a speed on, or the last exchange taken back.
    void exchangeWanted(const tarsil::EVM& evolution, const tarsil::ModeExchange& exchange);
    void exchangeUndoWanted();

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void connectInputs();
    void connectTables();
    void followPlot(EvmPlot* before, EvmPlot* now);
    void followRows();
    void takeSettings();
    void takeNumber(QLineEdit& input, InputWarning& warning, double least, double& number);
    void takeLevels();
    void judge();
    void fillTables();
    void fillDoubts();
    void chooseStretch(int row);
    void chooseDoubt(int row);
    void exchangeAtDoubt();
    void zoomTo(int row);
    void addRequirementLines();
    void run(const std::function<void()>& action);
    EvmPlot& activePlot() const;

    std::unique_ptr<Ui::wndStability> m_ui;
    InputWarning m_levelsWarning;
    InputWarning m_toleranceWarning;
    InputWarning m_noiseWarning;
    InputWarning m_staticWarning;
    InputWarning m_factorWarning;
    InputWarning m_requiredLevelWarning;
    Document& m_document;
    UserInterface& m_user;
    StabilitySettings m_settings;
    Requirement m_requirement;
    std::vector<const EVM*> m_evolutions; ///< that the tables show
    PlotStability m_stability;
    StabilityModel m_stretches;
    VerdictModel m_verdicts;
    DoubtModel m_doubts;
    QMetaObject::Connection m_rowsConnection;
};

} // namespace tarsil
