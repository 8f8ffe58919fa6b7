// SPDX-License-Identifier: Apache-2.0
#include "vgfplot/EvolutionPlotter.h"

#include "base/numbers/NumberFormat.h"
#include "model/EVM.h"
#include "plot/LineStyles.h"
#include "vgfplot/EvmPlot.h"
#include "vgfplot/PlotFit.h"

#include <algorithm>
#include <set>

namespace tarsil {

namespace {

constexpr std::size_t markersPerCurve = 4;
constexpr qsizetype mostNames = 6; ///< more do not fit on a line

using Evolutions = std::vector<EVM*>;

/// The text of all evolutions if it is the same, otherwise empty.
template <typename Text>
QString commonText(const Evolutions& evolutions, Text textOf)
{
    const std::string first = textOf(*evolutions.front());
    const auto isSame = [&](const EVM* evolution) { return textOf(*evolution) == first; };
    const bool isCommon = std::all_of(evolutions.begin(), evolutions.end(), isSame);
    return isCommon ? QString::fromStdString(first) : QString();
}

/// Joins the texts that are not empty with dashes.
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

/// Airplane and mass configuration, then method and Mach number, as far as all files share them.
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

/// The number of files with curves in the plot.
std::size_t fileCount(const SeriesList& series)
{
    std::set<const EVM*> files;
    for (const Series& one : series) {
        if (one.Mode != nullptr)
            files.insert(one.Mode->Parent);
    }
    return files.size();
}

/// The points between about four markers of a curve. Three neighbouring curves have different
/// spacings, because markers at the same points of close curves cover each other.
std::int32_t usualSpacing(const AeMode& mode, std::size_t curve)
{
    constexpr std::array<int, 3> directions = {0, -1, 1};
    const auto usual = static_cast<std::int32_t>(mode.Points.size() / markersPerCurve);
    const std::int32_t difference = std::max(usual / 5, 1);
    return std::max(usual + directions[curve % directions.size()] * difference, 2);
}

/// The look of the curves of files.
struct CurveLook
{
    const CurveMarkers& markers;
    CurvePalette palette;
};

void addCurves(EvmPlot& plot, const EvolutionCurves& curves, const CurveLook& look,
               std::size_t file)
{
    const CurveMarkers& markers = look.markers;
    std::vector<Series> added;
    for (AeMode* mode : curves.modes) {
        const std::size_t curve = plot.rows().count() + added.size();
        Series& series = added.emplace_back(newSeries(*mode, curve, look.palette));
        if (look.palette != CurvePalette::LineStyles)
            series.LineStyle = lineStylesInUse[file % lineStylesInUse.size()];
        series.LegendText = QString::fromStdString(curves.evolution->FileName);
        series.MarkerStyle = markerNumber(markers.kind);
        series.IthMpf = markers.factor;
        series.MarkerSize = markers.size;
        series.MarkerForegroundColor = series.ColorIndex;
        series.MarkerSpacing = markers.spacing.value_or(usualSpacing(*mode, curve));
    }
    plot.rows().add(std::move(added));
}

void fillTexts(EvmPlot& plot, const Evolutions& evolutions)
{
    QStringList names;
    for (const EVM* evolution : evolutions)
        names.append(QString::fromStdString(evolution->FileName));
    if (plot.parts().box(TextBox::Header).isEmpty())
        plot.texts().setText(TextBox::Header, caseText(evolutions));
    if (plot.parts().box(TextBox::Mechanism).isEmpty() && names.size() <= mostNames)
        plot.texts().setText(TextBox::Mechanism, names.join(QStringLiteral(", ")));
}

} // namespace

EvolutionCurves allCurvesOf(EVM& evolution)
{
    EvolutionCurves curves {&evolution, {}};
    for (const auto& mode : evolution.Modes)
        curves.modes.push_back(mode.get());
    return curves;
}

std::size_t plotCurves(EvmPlot& plot, const std::vector<EvolutionCurves>& files,
                       const CurveMarkers& markers, CurvePalette palette)
{
    const bool isNew =
        plot.SeriesCollection().empty() && plot.axes().bounds() == PlotAxes().bounds();
    std::size_t file = fileCount(plot.SeriesCollection());
    Evolutions drawn;
    for (const EvolutionCurves& curves : files) {
        if (plot.SeriesCollection().size() + curves.modes.size() > mostCurves)
            break;
        addCurves(plot, curves, {markers, palette}, file++);
        drawn.push_back(curves.evolution);
    }
    if (drawn.empty())
        return 0;
    if (isNew)
        fitToCurves(plot);
    fillTexts(plot, drawn);
    return drawn.size();
}

} // namespace tarsil
