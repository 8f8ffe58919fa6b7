#pragma once

#include "plotwindow/InputWarning.h"
#include "stability/PlotStability.h"
#include "stability/StabilityModel.h"
#include "stability/VerdictModel.h"

#include <QDialog>
#include <QMetaObject>

#include <functional>
#include <memory>
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
/// Choosing a stretch shows it in the plot; a double click sets the axes of the plot around it, as
/// a step that can be undone.
class wndStability : public QDialog
{
    Q_OBJECT

public:
    /// What is given by reference must outlive the window.
    wndStability(Document& document, UserInterface& user, QWidget* parent = nullptr);
    ~wndStability() override;

    QSize sizeHint() const override;

Q_SIGNALS:
    /// The user looks at a stretch of the active plot; null: at none any more.
    void stretchChosen(const tarsil::PlotStretch* stretch);

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
    void choose(int row);
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
    QMetaObject::Connection m_rowsConnection;
};

} // namespace tarsil
