// SPDX-License-Identifier: Apache-2.0
#include "batch/PlotDrawing.h"

#include "batch/PictureOptions.h"
#include "rtf/RtfReader.h"
#include "vgfplot/EvmPlot.h"
#include "vgfplot/ScaleFit.h"

#include <algorithm>
#include <cmath>

namespace tarsil::batch {

namespace {

/// Gives an axis a tick count that puts its ticks on round numbers, or `usual` if there is none.
void roundTicks(AxisValues& axis, Steps steps, std::int16_t usual)
{
    const double low = std::min(axis.min, axis.max);
    const double high = std::max(axis.min, axis.max);
    const RoundRange range = roundRange(low, high, steps);
    const double tolerance = 1e-5 * (high - low);
    const bool fits =
        std::fabs(range.low - low) < tolerance && std::fabs(range.high - high) < tolerance;
    axis.ticks = fits ? static_cast<std::int16_t>(range.steps) : usual;
}

/// Text in Rich Text Format keeps its fonts and colours; in other text "\n" is a line break.
void setText(EvmPlot& plot, TextBox box, const std::optional<std::string>& text)
{
    if (!text)
        return;
    if (looksLikeRtf(*text))
        plot.texts().setTextRTF(box, *text);
    else
        plot.texts().setText(
            box,
            QString::fromStdString(*text).replace(QStringLiteral("\\n"), QStringLiteral("\n")));
}

} // namespace

void setScale(EvmPlot& plot, const PictureOptions& options)
{
    PlotAxes axes = plot.axes();
    if (options.bounds) {
        const PlotAxes usual;
        axes.setBounds(*options.bounds);
        roundTicks(axes.speed, Steps::Whole, usual.speed.ticks);
        roundTicks(axes.frequency, Steps::Any, usual.frequency.ticks);
        roundTicks(axes.damping, Steps::Any, usual.damping.ticks);
    }
    if (options.ticks)
        axes.setTicks(*options.ticks);
    plot.setAxes(axes);
}

void setTexts(EvmPlot& plot, const PictureOptions& options)
{
    setText(plot, TextBox::Header, options.header);
    setText(plot, TextBox::Legend, options.legend);
    setText(plot, TextBox::Mechanism, options.subtitle);
    for (const CaptionedValue& reference : options.referenceSpeeds)
        plot.references().AddRef(reference.value, reference.caption);
    for (const CaptionedValue& damping : options.dampingLines)
        plot.references().AddDampLine(damping.value, damping.caption);
}

} // namespace tarsil::batch
