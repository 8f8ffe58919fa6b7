#include "batch/PlotDrawing.h"

#include "base/files/AtomicFile.h"
#include "batch/CommandLine.h"
#include "batch/PictureOptions.h"
#include "rtf/RtfReader.h"
#include "vgfplot/PictureWriter.h"
#include "vgfplot/ScaleFit.h"

#include <algorithm>
#include <cmath>

namespace tarsil::batch {

namespace {

/// As many ticks as make them fall on round numbers between two ends, if there are such.
std::int16_t roundTicks(float from, float to, Steps steps, std::int16_t otherwise)
{
    const double low = std::min(from, to);
    const double high = std::max(from, to);
    const RoundRange range = roundRange(low, high, steps);
    const double tolerance = 1e-5 * (high - low);
    const bool fits =
        std::fabs(range.low - low) < tolerance && std::fabs(range.high - high) < tolerance;
    return fits ? static_cast<std::int16_t>(range.steps) : otherwise;
}

/// Text in Rich Text Format keeps its fonts and colours; in other text "\n" is a line break.
void setText(emfRichTextBox& box, const std::optional<std::string>& text)
{
    if (!text)
        return;
    if (looksLikeRtf(*text))
        box.setTextRTF(*text);
    else
        box.setText(
            QString::fromStdString(*text).replace(QStringLiteral("\\n"), QStringLiteral("\n")));
}

bool endsIn(std::string_view path, std::string_view extension)
{
    return hasExtension(path, {&extension, 1});
}

} // namespace

void setScale(EvmPlot& plot, const PictureOptions& options)
{
    if (options.scale) {
        const EvmPlot::Scale& scale = *options.scale;
        const EvmPlot::Thicks usual;
        plot.SetScale(scale);
        plot.setVthicks(roundTicks(scale.vmin, scale.vmax, Steps::Whole, usual.v));
        plot.setFthicks(roundTicks(scale.fmin, scale.fmax, Steps::Any, usual.f));
        plot.setGthicks(roundTicks(scale.gmin, scale.gmax, Steps::Any, usual.g));
    }
    if (options.ticks) {
        plot.setVthicks(options.ticks->v);
        plot.setFthicks(options.ticks->f);
        plot.setGthicks(options.ticks->g);
    }
}

void setTexts(EvmPlot& plot, const PictureOptions& options)
{
    setText(plot.Header(), options.header);
    setText(plot.Legend(), options.legend);
    setText(plot.Mechanism(), options.subtitle);
    for (const CaptionedValue& reference : options.referenceSpeeds)
        plot.AddRef(reference.value, reference.caption);
    for (const CaptionedValue& damping : options.dampingLines)
        plot.AddDampLine(damping.value, damping.caption);
}

void writePicture(EvmPlot& plot, const std::string& path)
{
    if (endsIn(path, ".emf")) { // streamed, however large it is
        plot.ExportPic(QString::fromStdString(path));
        return;
    }
    const PictureFormat format = endsIn(path, ".svg") ? PictureFormat::Svg
        : endsIn(path, ".pdf")                        ? PictureFormat::Pdf
                                                      : PictureFormat::Png;
    const QByteArray bytes = pictureBytes(plot, format);
    writeFile(path, {bytes.constData(), static_cast<std::size_t>(bytes.size())});
}

} // namespace tarsil::batch
