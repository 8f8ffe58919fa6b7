// SPDX-License-Identifier: Apache-2.0
#include "stability/WndStability.h"

#include "ui_WndStability.h"

#include "aircraft/AirplaneInfo.h"
#include "analysis/StabilityTexts.h"
#include "base/numbers/Numbers.h"
#include "base/user/ErrorGuard.h"
#include "base/user/RunTimeError.h"
#include "base/user/UserInterface.h"
#include "document/Document.h"
#include "plotwindow/NumberInput.h"
#include "stability/CrossingView.h"
#include "vgfplot/EvmPlot.h"

#include <QHeaderView>

namespace tarsil {

namespace {

constexpr std::string_view module = "wndStability";

/// Selects whole rows; nothing can be edited.
void prepareTable(QTableView& table, QAbstractItemModel& model)
{
    table.setModel(&model);
    table.verticalHeader()->hide();
    table.verticalHeader()->setDefaultSectionSize(table.fontMetrics().height() + 6);
    table.horizontalHeader()->setHighlightSections(false);
    table.horizontalHeader()->setStretchLastSection(true);
}

} // namespace

wndStability::wndStability(Document& document, UserInterface& user, QWidget* parent)
    : QDialog(parent), m_ui([this] {
          auto ui = std::make_unique<Ui::wndStability>();
          ui->setupUi(this);
          return ui;
      }()),
      m_levelsMessage(*m_ui->levelsInp), m_toleranceMessage(*m_ui->toleranceInp),
      m_noiseMessage(*m_ui->noiseInp), m_staticMessage(*m_ui->staticInp),
      m_factorMessage(*m_ui->factorInp), m_requiredLevelMessage(*m_ui->requiredLevelInp),
      m_document(document), m_user(user)
{
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    prepareTable(*m_ui->verdictGrid, m_verdicts);
    prepareTable(*m_ui->stretchGrid, m_stretches);
    prepareTable(*m_ui->doubtGrid, m_doubts);
    connectInputs();
    connectTables();
    connect(&m_document.plots(), &PlotList::activeChanged, this, &wndStability::followPlot);
    connect(&m_document, &Document::airplaneChanged, this, &wndStability::judge);
    connect(&m_document.evolutions(), &EvolutionList::parametersChanged, this,
            &wndStability::judge);
    connect(&m_document.evolutions(), &EvolutionList::pointsChanged, this,
            &wndStability::fillDoubts);
    connect(&m_document.evolutions(), &EvolutionList::pointsChanged, this, &wndStability::judge);
    connect(&m_document.evolutions(), &EvolutionList::aboutToBeRemoved, this, [this] {
        m_evolutions.clear(); // the tables refer to them
        m_doubts.setDoubts({});
        showSigns();
        fillTables();
        QMetaObject::invokeMethod(this, &wndStability::followRows, Qt::QueuedConnection);
    });
    followPlot(nullptr, m_document.plots().active());
}

wndStability::~wndStability() = default;

QSize wndStability::sizeHint() const
{
    return {1180, 520};
}

void wndStability::connectInputs()
{
    for (QLineEdit* input : {m_ui->levelsInp, m_ui->toleranceInp, m_ui->noiseInp, m_ui->staticInp,
                             m_ui->factorInp, m_ui->requiredLevelInp})
        connect(input, &QLineEdit::textChanged, this, &wndStability::takeSettings);
    connect(m_ui->rootsCmb, &QComboBox::currentIndexChanged, this, &wndStability::takeSettings);
    connect(m_ui->linesBtn, &QPushButton::clicked, this,
            [this] { run([this] { addRequirementLines(); }); });
}

void wndStability::connectTables()
{
    connect(m_ui->stretchGrid->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex& current) { chooseStretch(current.row()); });
    connect(m_ui->doubtGrid->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex& current) { chooseDoubt(current.row()); });
    connect(m_ui->exchangeBtn, &QPushButton::clicked, this, &wndStability::exchangeAtDoubt);
    connect(m_ui->stretchGrid, &QTableView::activated, this,
            [this](const QModelIndex& index) { run([&] { zoomTo(index.row()); }); });
}

void wndStability::run(const std::function<void()>& action)
{
    m_user.beginCommand();
    guarded(m_user, module, action);
}

/// A plot signals changes one by one; the tables are updated after the last.
void wndStability::followPlot(EvmPlot* /*before*/, EvmPlot* now)
{
    disconnect(m_rowsConnection);
    if (now != nullptr)
        m_rowsConnection =
            connect(now, &EvmPlot::changed, this, &wndStability::followRows, Qt::QueuedConnection);
    followRows();
}

void wndStability::followRows()
{
    const EvmPlot* const plot = m_document.plots().active();
    const auto evolutions = plot != nullptr ? evolutionsOf(*plot) : std::vector<const EVM*>();
    if (evolutions == m_evolutions) {
        showSigns(); // rows may have come or gone
        return;
    }
    m_evolutions = evolutions;
    fillDoubts();
    judge();
}

/// The doubtful steps depend only on the evolutions.
void wndStability::fillDoubts()
{
    if (!isVisible())
        return;
    m_doubts.setDoubts(doubtsOfAll(m_evolutions));
    m_ui->doubtGrid->resizeColumnsToContents();
    m_ui->exchangeBtn->setEnabled(false);
    showSigns();
}

void wndStability::showSigns()
{
    const EvmPlot* const plot = m_document.plots().active();
    PlotSigns signs;
    m_signRows.clear();
    if (plot != nullptr && isVisible())
        signs = signsOf(m_doubts.doubts(), *plot, m_signRows);
    Q_EMIT signsChanged(signs);
}

void wndStability::chooseSign(std::size_t index)
{
    if (index >= m_signRows.size())
        return;
    m_ui->tabs->setCurrentWidget(m_ui->doubtTab);
    const int row = static_cast<int>(m_signRows[index]);
    m_ui->doubtGrid->setCurrentIndex(m_doubts.index(row, 0));
    m_ui->doubtGrid->selectRow(row);
}

void wndStability::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    fillDoubts();
    judge();
}

void wndStability::hideEvent(QHideEvent* event)
{
    Q_EMIT pointedOut(std::nullopt);
    Q_EMIT signsChanged({});
    QDialog::hideEvent(event);
}

void wndStability::takeSettings()
{
    StretchLimits& limits = m_settings.limits;
    constexpr double leastFactor = 1e-6;
    double requiredLevel = m_requirement.level;
    takeLevels();
    readNumber(*m_ui->toleranceInp, m_toleranceMessage, 0, limits.tolerance);
    readNumber(*m_ui->noiseInp, m_noiseMessage, 0, limits.noise);
    readNumber(*m_ui->staticInp, m_staticMessage, 0, limits.staticFrequency);
    readNumber(*m_ui->factorInp, m_factorMessage, leastFactor, m_requirement.factor);
    readNumber(*m_ui->requiredLevelInp, m_requiredLevelMessage, -1, requiredLevel);
    m_requirement.level = static_cast<float>(requiredLevel);
    m_settings.isTracked = m_ui->rootsCmb->currentIndex() == 1;
    judge();
}

/// Stores the number of an input if it is valid; otherwise shows a message at the input.
void wndStability::readNumber(QLineEdit& input, InputMessage& message, double least, double& number)
{
    const auto typed = NumberInput(input, module).numberIfAny();
    const bool isValid = typed && *typed >= least;
    if (isValid)
        number = *typed;
    message.show(isValid ? QString()
                         : tr("A number of at least %1 is needed; the last one counts.")
                               .arg(QString::fromStdString(shortestText(least))));
}

void wndStability::takeLevels()
{
    try {
        m_settings.levels = levelsOf(m_ui->levelsInp->text().toStdString());
        m_levelsMessage.show({});
    } catch (const RunTimeError&) {
        m_levelsMessage.show(
            tr("Numbers with commas between them are needed; the last ones count."));
    }
}

void wndStability::judge()
{
    if (!isVisible())
        return;
    m_stability = stabilityOfAll(m_evolutions, m_settings, m_document.airplane(), m_requirement);
    fillTables();
}

void wndStability::fillTables()
{
    if (m_evolutions.empty())
        m_stability = {};
    Q_EMIT pointedOut(std::nullopt);
    m_verdicts.setEvolutions(m_stability.evolutions, m_settings.levels);
    m_stretches.setStretches(m_stability.stretches);
    m_ui->verdictGrid->resizeColumnsToContents();
    m_ui->stretchGrid->resizeColumnsToContents();
    m_ui->leftOutLabel->setText(m_evolutions.empty() ? tr("The active plot has no rows.")
                                                     : QString::fromStdString(leftOutText(
                                                         m_stability.noise, m_stability.weak)));
    m_ui->linesBtn->setEnabled(!m_document.airplane().FlutterEnvs.empty());
}

void wndStability::chooseStretch(int row)
{
    const PlotStretch* const stretch = m_stretches.stretch(row);
    if (stretch == nullptr)
        return;
    Q_EMIT pointedOut(highlightOf(*stretch));
    Q_EMIT modeChosen(*stretch->evolution, stretch->line.mode);
}

void wndStability::chooseDoubt(int row)
{
    const PlotDoubt* const doubt = m_doubts.doubt(row);
    m_ui->exchangeBtn->setEnabled(doubt != nullptr);
    if (doubt == nullptr)
        return;
    Q_EMIT pointedOut(highlightOf(*doubt));
    Q_EMIT modeChosen(*doubt->evolution, doubt->doubt.mode);
}

void wndStability::exchangeAtDoubt()
{
    const PlotDoubt* const doubt = m_doubts.doubt(m_ui->doubtGrid->currentIndex().row());
    if (doubt == nullptr)
        return;
    const EVM& evolution = *doubt->evolution;
    const TrackingDoubt step = doubt->doubt;
    Q_EMIT exchangeWanted(evolution, {step.mode, step.nearestMode, step.fromSpeed});
}

EvmPlot& wndStability::activePlot() const
{
    EvmPlot* const plot = m_document.plots().active();
    if (plot == nullptr)
        throw RunTimeError(ErrorNumber::ObjectVariableNotSet, std::string(module),
                           "no plot is active");
    return *plot;
}

void wndStability::zoomTo(int row)
{
    const PlotStretch* const stretch = m_stretches.stretch(row);
    if (stretch == nullptr)
        return;
    EvmPlot& plot = activePlot();
    m_document.history().change(tr("Zoom to Crossing"),
                                [&] { plot.setAxes(axesAround(*stretch, plot.axes())); });
}

/// Adds reference speeds for the required speeds, and a damping line at the level of the
/// requirement.
void wndStability::addRequirementLines()
{
    EvmPlot& plot = activePlot();
    const EnvelopeSpeeds speeds = envelopeSpeeds(m_stability.evolutions, m_document.airplane(),
                                                 m_ui->envelopeChk->isChecked());
    if (speeds.empty())
        throw RunTimeError(ErrorNumber::InvalidProcedureCall, std::string(module),
                           "no evolution of the plot has a flutter envelope for its Mach number");
    m_document.history().change(tr("Requirement Lines"), [&] {
        for (const auto& [speed, caption] : speeds)
            plot.references().AddRef(static_cast<float>(speed), QString::fromStdString(caption));
        plot.references().AddDampLine(
            m_requirement.level,
            QString::fromStdString("g = " + shortestText(m_requirement.level)));
    });
}

} // namespace tarsil
