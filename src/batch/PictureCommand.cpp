#include "base/user/RunTimeError.h"
#include "batch/BatchRun.h"
#include "batch/Commands.h"
#include "batch/PictureOptions.h"
#include "batch/PlotDrawing.h"
#include "batch/WorkspaceInput.h"
#include "vgfplot/EvmPlot.h"
#include "vgfplot/EvolutionPlotter.h"
#include "vgfplot/PlotRecords.h"

namespace tarsil::batch {

namespace {

void finish(EvmPlot& plot, const PictureOptions& options, const std::string& output, BatchRun& run)
{
    setScale(plot, options);
    setTexts(plot, options);
    plot.resize(options.size);
    writePicture(plot, output);
    if (const QString note = plot.marks().shiftNote(); !note.isEmpty())
        run.complain(output + ": " + note.toStdString());
}

/// Complains of the files that were not drawn, which are all but the first ones; whether there are
/// none.
bool tellLeftOut(const std::vector<std::string>& paths, std::size_t drawn, BatchRun& run)
{
    const std::string why =
        " is left out: a plot takes " + std::to_string(mostCurves) + " curves; choose with --modes";
    if (drawn == 0)
        throw Failure(paths.front() + why);
    for (std::size_t i = drawn; i < paths.size(); ++i)
        run.complain(paths[i] + why);
    return drawn == paths.size();
}

/// Whether no file had to be left out.
bool drawEvolutions(const std::vector<std::string>& paths, const PictureOptions& options,
                    BatchRun& run)
{
    std::vector<EvolutionCurves> files;
    files.reserve(paths.size());
    for (const std::string& path : paths) {
        refuseOutputOverInput(options.output, path);
        EVM& evolution = run.open(path);
        files.push_back({&evolution, selectModes(evolution, options.modes, path)});
    }
    EvmPlot plot;
    const std::size_t drawn = plotCurves(plot, files, options.markers);
    const bool isWhole = tellLeftOut(paths, drawn, run);
    finish(plot, options, options.output, run);
    return isWhole;
}

/// The names of `count` pictures: the one given, or with a number before its extension.
std::vector<std::string> numberedOutputs(const std::string& output, std::size_t count)
{
    if (count == 1)
        return {output};
    const std::size_t dot = output.rfind('.');
    std::vector<std::string> outputs;
    for (std::size_t i = 1; i <= count; ++i)
        outputs.push_back(output.substr(0, dot) + "-" + std::to_string(i) + output.substr(dot));
    return outputs;
}

/// One picture of a plot of a workspace, as the window shows it.
void drawPlot(const PlotRecord& record, const std::vector<EVM*>& evolutions,
              const PictureOptions& options, const std::string& output, BatchRun& run)
{
    try {
        EvmPlot plot;
        plot.properties().setCaption(QString::fromStdString(record.caption));
        applyRecord(record, evolutions, plot);
        finish(plot, options, output, run);
    } catch (const RunTimeError& error) {
        throw error.at("plot \"" + record.caption + "\"");
    }
}

/// Whether no series had to be left out.
bool drawWorkspace(const std::string& path, const PictureOptions& options, BatchRun& run)
{
    const WorkspaceInput input = openWorkspace(path, options.plot, run);
    if (input.plots.empty())
        throw Failure(path + " holds no plot");
    const std::vector<std::string> outputs = numberedOutputs(options.output, input.plots.size());
    for (const std::string& output : outputs) {
        for (const std::string& file : input.files)
            refuseOutputOverInput(output, file);
    }
    for (std::size_t i = 0; i < outputs.size(); ++i)
        drawPlot(input.plots[i], input.evolutions, options, outputs[i], run);
    return input.isWhole;
}

int runPicture(const CommandLine& line, BatchRun& run)
{
    const PictureOptions options = pictureOptionsOf(line);
    if (!hasWorkspace(line.operands()))
        return drawEvolutions(line.operands(), options, run) ? done : failed;
    if (line.operands().size() > 1)
        throw UsageError("a workspace is drawn alone, without other files");
    return drawWorkspace(line.operands().front(), options, run) ? done : failed;
}

} // namespace

constinit const Command pictureCommand {
    {"picture", "FILE...", anyNumber, "draws the V-g-f plot",
     "Draws the V-g-f plot of the files: frequency in the upper half, damping in the\n"
     "lower half, the speed axis between them. It is the plot that tarsil opens with\n"
     "when it is started with these files: each file has a line style of its own, and\n"
     "no more than 500 curves are drawn; a file that would exceed them is left out with\n"
     "a message, and the exit status is 1.\n"
     "\n"
     "Of a workspace, which is the only FILE then, every plot is drawn as it was saved,\n"
     "each into a picture of its own: with several plots out.svg becomes out-1.svg,\n"
     "out-2.svg and so on. Texts, scale and ticks that are given take the place of those\n"
     "of the plot; modes and markers are what its series say. A series whose file or mode\n"
     "is missing is left out with a message; the rest is drawn, and the exit status is 1.",
     pictureOptionDescriptions},
    runPicture};

} // namespace tarsil::batch
