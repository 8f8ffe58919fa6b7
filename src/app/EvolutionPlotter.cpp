#include "app/EvolutionPlotter.h"

#include "model/EVM.h"
#include "runtime/NumberFormat.h"
#include "vgf/EvmPlot.h"
#include "vgf/ScaleFit.h"

#include <algorithm>
#include <array>
#include <set>

namespace tarsil {

namespace {

constexpr std::size_t markersPerCurve = 4;
constexpr std::size_t mostCurves = 500; ///< more make no picture, and take long to draw
constexpr qsizetype mostNames = 6; ///< more do not fit into a line

/// In the order in which files take them: a long dash comes last, since dashes begin anew with
/// every point and close points leave no room for its gap.
constexpr std::array lineStyles = {penstyle::solid, penstyle::dot, penstyle::dashDot,
                                   penstyle::dashDotDot, penstyle::dash};

using Evolutions = std::vector<EVM*>;

/// What all evolutions say alike; empty when they differ.
template <typename Text>
QString commonText(const Evolutions& evolutions, Text textOf)
{
    const std::string first = textOf(*evolutions.front());
    const auto isSame = [&](const EVM* evolution) { return textOf(*evolution) == first; };
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

/// How many files have curves in the plot.
std::size_t fileCount(const SeriesList& series)
{
    std::set<const EVM*> files;
    for (const Series& one : series) {
        if (one.Mode != nullptr)
            files.insert(one.Mode->Parent);
    }
    return files.size();
}

void addCurves(EvmPlot& plot, EVM& evolution, std::size_t file)
{
    const std::int32_t lineStyle = lineStyles[file % lineStyles.size()];
    for (const auto& mode : evolution.Modes) {
        Series& series = plot.addSeries(*mode);
        series.LineStyle = lineStyle;
        series.LegendText = QString::fromStdString(evolution.FileName);
        series.MarkerStyle = markerstyle::modeNumber;
        series.MarkerSize = 8;
        series.MarkerForegroundColor = series.ColorIndex;
        const std::size_t spacing = std::max<std::size_t>(mode->Points.size() / markersPerCurve, 2);
        series.MarkerSpacing = static_cast<std::int32_t>(spacing);
    }
}

void fitScales(EvmPlot& plot)
{
    const FittedAxes axes = fitAxes(plot.SeriesCollection());
    plot.SetScale(axes.scale);
    plot.setVthicks(axes.thicks.v);
    plot.setGthicks(axes.thicks.g);
    plot.setFthicks(axes.thicks.f);
}

void fillTexts(EvmPlot& plot, const Evolutions& evolutions)
{
    constexpr std::size_t header = 0;
    constexpr std::size_t subtitle = 2;
    QStringList names;
    for (const EVM* evolution : evolutions)
        names.append(QString::fromStdString(evolution->FileName));
    if (plot.box(header).isEmpty())
        plot.setBoxText(header, caseText(evolutions));
    if (plot.box(subtitle).isEmpty() && names.size() <= mostNames)
        plot.setBoxText(subtitle, names.join(QStringLiteral(", ")));
}

} // namespace

std::size_t plotEvolutions(EvmPlot& plot, const std::vector<EVM*>& evolutions)
{
    const bool isNew = plot.SeriesCollection().empty() && plot.GetScale() == EvmPlot::Scale();
    std::size_t file = fileCount(plot.SeriesCollection());
    Evolutions drawn;
    for (EVM* evolution : evolutions) {
        if (plot.SeriesCollection().size() + evolution->Modes.size() > mostCurves)
            break;
        addCurves(plot, *evolution, file++);
        drawn.push_back(evolution);
    }
    if (drawn.empty())
        return 0;
    if (isNew)
        fitScales(plot);
    fillTexts(plot, drawn);
    plot.plot();
    return drawn.size();
}

} // namespace tarsil
