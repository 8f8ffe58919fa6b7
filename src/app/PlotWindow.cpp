#include "app/PlotWindow.h"

#include "runtime/ErrorReport.h"
#include "runtime/NumberFormat.h"
#include "runtime/PathNames.h"
#include "vgf/EvmPlotView.h"
#include "vgf/ScaleFit.h"

#include <QMessageBox>
#include <QTimer>

#include <algorithm>
#include <array>

namespace tarsil {

namespace {

constexpr std::size_t markersPerCurve = 4;

/// In the order in which files take them: a long dash comes last, since dashes begin anew with
/// every point and close points leave no room for its gap.
constexpr std::array lineStyles = {penstyle::solid, penstyle::dot, penstyle::dashDot,
                                   penstyle::dashDotDot, penstyle::dash};

using Evolutions = std::vector<std::unique_ptr<EVM>>;

/// What all evolutions say alike; empty when they differ.
template <typename Text>
QString commonText(const Evolutions& evolutions, Text textOf)
{
    const std::string first = textOf(*evolutions.front());
    const auto isSame = [&](const auto& evolution) { return textOf(*evolution) == first; };
    const bool isCommon = std::all_of(evolutions.begin(), evolutions.end(), isSame);
    return isCommon ? QString::fromStdString(first) : QString();
}

/// The texts that are there, with a dash between them.
QString joined(QStringList texts)
{
    texts.removeAll(QString());
    return texts.join(QStringLiteral(" - "));
}

std::string methodText(const EVM& evolution)
{
    return evolution.flutterMethod.empty() ? std::string() : evolution.flutterMethod + " Method";
}

std::string machText(const EVM& evolution)
{
    const float mach = evolution.Param.Mach;
    return mach > 0 ? "Mach No. " + formatNumber(mach, "0.00#") : std::string();
}

/// Airplane and mass configuration, then method and Mach number: what is the same in all files.
QString caseText(const Evolutions& evolutions)
{
    const QString airplane =
        commonText(evolutions, [](const EVM& evolution) { return evolution.Param.Airplane; });
    const QString mass =
        commonText(evolutions, [](const EVM& evolution) { return evolution.Param.Mass; });
    QStringList lines = {
        joined({airplane, mass}),
        joined({commonText(evolutions, methodText), commonText(evolutions, machText)})};
    lines.removeAll(QString());
    return lines.join(QStringLiteral("\r\n"));
}

} // namespace

PlotWindow::PlotWindow() : m_view(new EvmPlotView(m_plot, this))
{
    setWindowTitle(QStringLiteral("Tarsil 4.0"));
    setCentralWidget(m_view);
    connect(m_view, &EvmPlotView::failed, this, &PlotWindow::report);
}

PlotWindow::~PlotWindow() = default;

void PlotWindow::open(const QStringList& files)
{
    for (const QString& file : files) {
        try {
            addModes(openEvolution(file.toStdString()));
        } catch (const RunTimeError& error) {
            // The box waits for the event loop, so that the window is there first.
            QTimer::singleShot(0, this, [this, error] { report(error); });
        }
    }
    const FittedAxes axes = fitAxes(m_plot.SeriesCollection());
    m_plot.SetScale(axes.scale);
    m_plot.setVthicks(axes.thicks.v);
    m_plot.setGthicks(axes.thicks.g);
    m_plot.setFthicks(axes.thicks.f);
    fillTexts();
    drawPlot();
}

EVM& PlotWindow::openEvolution(const std::string& path)
{
    if (fileExists(path) && !layoutOf(resolvePath(path).name))
        throw RunTimeError(ErrorNumber::InvalidProcedureCall, "PlotWindow",
                           shownPath(path) + " has neither .evm nor .ev2 in its name");
    return m_session.open(path);
}

/// Every mode gets a curve, marked here and there with its number; each file has its line style.
void PlotWindow::addModes(EVM& evolution)
{
    const std::int32_t lineStyle =
        lineStyles[(m_session.evolutions.size() - 1) % lineStyles.size()];
    for (const auto& mode : evolution.Modes) {
        Series& series = m_plot.addSeries(*mode);
        series.LineStyle = lineStyle;
        series.LegendText = QString::fromStdString(evolution.FileName);
        series.MarkerStyle = markerstyle::modeNumber;
        series.MarkerSize = 8;
        series.MarkerForegroundColor = series.ColorIndex;
        const std::size_t spacing = std::max<std::size_t>(mode->Points.size() / markersPerCurve, 2);
        series.MarkerSpacing = static_cast<std::int32_t>(spacing);
    }
}

void PlotWindow::fillTexts()
{
    if (m_session.evolutions.empty())
        return;
    m_plot.setBoxText(0, caseText(m_session.evolutions));
    QStringList names;
    for (const auto& evolution : m_session.evolutions)
        names.append(QString::fromStdString(evolution->FileName));
    m_plot.setBoxText(2, names.join(QStringLiteral(", ")));
    setWindowTitle(names.join(QStringLiteral(", ")) + QStringLiteral(" - Tarsil 4.0"));
}

void PlotWindow::drawPlot()
{
    try {
        m_plot.plot();
    } catch (const RunTimeError& error) {
        QTimer::singleShot(0, this, [this, error] { report(error); });
    }
}

void PlotWindow::report(const RunTimeError& error)
{
    QString text = QString::fromStdString(errorReport(error, "wndEvolPlot"));
    text.replace(u'\r', u'\n');
    QMessageBox::critical(this, QStringLiteral("Error"), text);
}

} // namespace tarsil
