// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "plotwindow/InputMessage.h"
#include "plotwindow/PlotHighlight.h"
#include "plotwindow/PlotSigns.h"
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

/// The window "Stability": where the evolutions of the active plot are unstable. While it is
/// visible it follows the active plot, its rows, the parameters of the evolutions and the airplane.
/// An invalid setting shows a message at its input, and the last valid one stays in force.
/// Selecting a stretch or a doubtful step shows it in the plot. A double click on a stretch sets
/// the axes of the plot around it as an undo step. Two modes of a tracked evolution can be
/// exchanged from a doubtful step on.
class wndStability : public QDialog
{
    Q_OBJECT

public:
    /// All references must outlive the window.
    wndStability(Document& document, UserInterface& user, QWidget* parent = nullptr);
    ~wndStability() override;

    QSize sizeHint() const override;

    /// Selects the doubtful step of a sign, by its index in `signsChanged`.
    void chooseSign(std::size_t index);

Q_SIGNALS:
    /// The active plot is to show this highlight; empty for none.
    void pointedOut(const std::optional<tarsil::PlotHighlight>& highlight);

    /// The mode of the highlight, by its number in the file.
    void modeChosen(const tarsil::EVM& evolution, std::int16_t mode);

    /// The active plot is to show these signs at doubtful steps of tracked evolutions.
    void signsChanged(const tarsil::PlotSigns& signs);

    /// The user asks to exchange two modes from a speed on.
    void exchangeWanted(const tarsil::EVM& evolution, const tarsil::ModeExchange& exchange);

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void connectInputs();
    void connectTables();
    void followPlot(EvmPlot* before, EvmPlot* now);
    void followRows();
    void takeSettings();
    void readNumber(QLineEdit& input, InputMessage& message, double least, double& number);
    void takeLevels();
    void judge();
    void fillTables();
    void fillDoubts();
    void chooseStretch(int row);
    void chooseDoubt(int row);
    void showSigns();
    void exchangeAtDoubt();
    void zoomTo(int row);
    void addRequirementLines();
    void run(const std::function<void()>& action);
    EvmPlot& activePlot() const;

    std::unique_ptr<Ui::wndStability> m_ui;
    InputMessage m_levelsMessage;
    InputMessage m_toleranceMessage;
    InputMessage m_noiseMessage;
    InputMessage m_staticMessage;
    InputMessage m_factorMessage;
    InputMessage m_requiredLevelMessage;
    Document& m_document;
    UserInterface& m_user;
    StabilitySettings m_settings;
    Requirement m_requirement;
    std::vector<const EVM*> m_evolutions; ///< evolutions shown in the tables
    PlotStability m_stability;
    StabilityModel m_stretches;
    VerdictModel m_verdicts;
    DoubtModel m_doubts;
    std::vector<std::size_t> m_signRows; ///< the row in the list of doubts of each sign
    QMetaObject::Connection m_rowsConnection;
};

} // namespace tarsil
