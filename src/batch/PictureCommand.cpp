#include "batch/BatchRun.h"
#include "batch/Commands.h"
#include "batch/PictureOptions.h"
#include "plot/RtfReader.h"
#include "runtime/AtomicFile.h"
#include "vgf/EvmPlot.h"
#include "vgf/PictureWriter.h"
#include "vgf/ScaleFit.h"

#include <algorithm>
#include <cmath>

namespace tarsil::batch {

namespace {

void addSeries(EvmPlot& plot, AeMode& mode, const PictureOptions& options)
{
    Series& series = plot.addSeries(mode);
    series.LegendText = QString::fromStdString(caseTextOf(*mode.Parent));
    series.MarkerStyle = options.markerStyle;
    series.IthMpf = options.factor;
    series.MarkerSpacing = options.markerSpacing;
    series.MarkerSize = options.markerSize;
    series.MarkerForegroundColor = series.ColorIndex;
}

/// As many ticks as make them fall on round numbers between two ends, if there are such.
std::int16_t roundTicks(float from, float to, std::int16_t otherwise)
{
    const double low = std::min(from, to);
    const double high = std::max(from, to);
    const RoundRange range = roundRange(low, high);
    const double tolerance = 1e-5 * (high - low);
    const bool fits =
        std::fabs(range.low - low) < tolerance && std::fabs(range.high - high) < tolerance;
    return fits ? static_cast<std::int16_t>(range.steps) : otherwise;
}

void setAxes(EvmPlot& plot, const PictureOptions& options)
{
    FittedAxes axes = fitAxes(plot.SeriesCollection());
    if (options.scale) {
        const EvmPlot::Thicks usual;
        axes.scale = *options.scale;
        axes.thicks.v = roundTicks(axes.scale.vmin, axes.scale.vmax, usual.v);
        axes.thicks.f = roundTicks(axes.scale.fmin, axes.scale.fmax, usual.f);
        axes.thicks.g = roundTicks(axes.scale.gmin, axes.scale.gmax, usual.g);
    }
    const EvmPlot::Thicks ticks = options.ticks.value_or(axes.thicks);
    plot.SetScale(axes.scale);
    plot.setVthicks(ticks.v);
    plot.setFthicks(ticks.f);
    plot.setGthicks(ticks.g);
}

/// Text in Rich Text Format keeps its fonts and colours; in other text "\n" is a line break.
void setText(emfRichTextBox& box, const std::string& text)
{
    if (looksLikeRtf(text))
        box.setTextRTF(text);
    else
        box.setText(
            QString::fromStdString(text).replace(QStringLiteral("\\n"), QStringLiteral("\n")));
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

bool endsIn(std::string_view path, std::string_view extension)
{
    return hasExtension(path, {&extension, 1});
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

int runPicture(const CommandLine& line, BatchRun& run)
{
    const PictureOptions options = pictureOptionsOf(line);
    EvmPlot plot;
    for (const std::string& path : line.operands()) {
        refuseOutputOverInput(options.output, path);
        for (AeMode* mode : selectModes(run.open(path), options.modes, path))
            addSeries(plot, *mode, options);
    }
    setAxes(plot, options);
    setTexts(plot, options);
    plot.resize(options.size);
    writePicture(plot, options.output);
    return done;
}

} // namespace

constinit const Command pictureCommand {
    {"picture", "FILE...", anyNumber, "draws the V-g-f plot",
     "Draws the V-g-f plot of the files: frequency in the upper half, damping in the\n"
     "lower half, the speed axis between them.",
     pictureOptionDescriptions},
    runPicture};

} // namespace tarsil::batch
