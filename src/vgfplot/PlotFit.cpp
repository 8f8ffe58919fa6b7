// SPDX-License-Identifier: Apache-2.0
#include "vgfplot/PlotFit.h"

#include "plot/RefLine.h"
#include "vgfplot/EvmPlot.h"
#include "vgfplot/ScaleFit.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace tarsil {

namespace {

const QString zeroCaption = QStringLiteral("g = 0");

bool isZeroLine(const RefLine& line)
{
    return line.Y1 == 0 && line.Y2 == 0 && line.Caption == zeroCaption;
}

} // namespace

void fitToCurves(EvmPlot& plot)
{
    if (plot.rows().curveCount() == 0)
        return;
    plot.setAxes(fitAxes(plot.SeriesCollection(), plot.axes()));
    removeZeroLine(plot); // it may be as long as other axes
    const PlotAxes axes = plot.axes();
    if (axes.damping.min == 0)
        return;
    std::vector<RefLine> lines = plot.references().dampingLines();
    RefLine& line = lines.emplace_back();
    line.Caption = zeroCaption;
    line.X1 = axes.speed.min;
    line.X2 = axes.speed.max;
    plot.references().restoreDampingLines(std::move(lines));
}

void removeZeroLine(EvmPlot& plot)
{
    std::vector<RefLine> lines = plot.references().dampingLines();
    if (std::erase_if(lines, isZeroLine) > 0)
        plot.references().restoreDampingLines(std::move(lines));
}

} // namespace tarsil
