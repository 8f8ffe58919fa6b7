// SPDX-License-Identifier: Apache-2.0
#include "base/user/RunTimeError.h"
#include "batch/BatchRun.h"
#include "batch/Commands.h"
#include "batch/PictureOptions.h"
#include "batch/PlotDrawing.h"
#include "batch/WorkspaceInput.h"
#include "vgfplot/EvmPlot.h"
#include "vgfplot/EvolutionPlotter.h"
#include "vgfplot/PictureFiles.h"
#include "vgfplot/PictureWriter.h"
#include "vgfplot/PlotFit.h"
#include "vgfplot/PlotRecords.h"

namespace tarsil::batch {

namespace {

/// Applies the options to a plot whose picture goes to `output`.
void finish(EvmPlot& plot, const PictureOptions& options, const std::string& output, BatchRun& run)
{
    setScale(plot, options);
    setTexts(plot, options);
    plot.resize(options.size.pixels);
    if (const QString note = plot.references().shiftNote(); !note.isEmpty())
        run.complain(output + ": " + note.toStdString());
}

/// Complains about the files that were not drawn, that is all after the first `drawn`. Returns
/// whether there are none.
bool reportLeftOut(const std::vector<std::string>& paths, std::size_t drawn, BatchRun& run)
{
    const std::string why =
        " is left out: a plot is limited to " + std::to_string(mostCurves) + " curves; use --modes";
    if (drawn == 0)
        throw Failure(paths.front() + why);
    for (std::size_t i = drawn; i < paths.size(); ++i)
        run.complain(paths[i] + why);
    return drawn == paths.size();
}

/// Returns whether all files were drawn.
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
    const std::size_t drawn = plotCurves(plot, files, options.markers, options.palette);
    const bool isWhole = reportLeftOut(paths, drawn, run);
    if (options.bounds)
        removeZeroLine(plot); // that of the fit
    finish(plot, options, options.output, run);
    writePicture(plot, options.output, options.size.settings);
    return isWhole;
}

/// The names of `count` pictures: the given name, or with a number before its extension.
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

/// The names of the pictures of a workspace.
std::vector<std::string> outputsOf(const std::vector<PlotRecord>& plots,
                                   const PictureOptions& options)
{
    if (!options.folderFormat)
        return numberedOutputs(options.output, plots.size());
    std::vector<std::string> captions;
    captions.reserve(plots.size());
    for (const PlotRecord& plot : plots)
        captions.push_back(plot.caption);
    std::vector<std::string> outputs = pictureFileNames(captions, *options.folderFormat);
    for (std::string& output : outputs)
        output.insert(0, options.output + "/");
    return outputs;
}

/// Draws a plot of a workspace as the window shows it, and adds it to `files` or writes it at once.
void drawPlot(const PlotRecord& record, const std::vector<EVM*>& evolutions,
              const PictureOptions& options, const std::string& output, PictureFiles& files,
              BatchRun& run)
{
    try {
        EvmPlot plot;
        plot.properties().setCaption(QString::fromStdString(record.caption));
        applyRecord(record, evolutions, plot);
        finish(plot, options, output, run);
        if (options.folderFormat)
            files.add(plot, output, *options.folderFormat, options.size.settings);
        else
            writePicture(plot, output, options.size.settings);
    } catch (const RunTimeError& error) {
        throw error.at("plot \"" + record.caption + "\"");
    }
}

/// Returns whether all series were drawn.
bool drawWorkspace(const std::string& path, const PictureOptions& options, BatchRun& run)
{
    const WorkspaceInput input = openWorkspace(path, options.plot, run);
    if (input.plots.empty())
        throw Failure(path + " has no plot");
    const std::vector<std::string> outputs = outputsOf(input.plots, options);
    for (const std::string& output : outputs) {
        for (const std::string& file : input.files)
            refuseOutputOverInput(output, file);
    }
    PictureFiles files;
    for (std::size_t i = 0; i < outputs.size(); ++i)
        drawPlot(input.plots[i], input.evolutions, options, outputs[i], files, run);
    files.commit();
    return input.isWhole;
}

int runPicture(const CommandLine& line, BatchRun& run)
{
    const PictureOptions options = pictureOptionsOf(line);
    if (!hasWorkspace(line.operands()))
        return drawEvolutions(line.operands(), options, run) ? done : failed;
    if (line.operands().size() > 1)
        throw UsageError("a workspace must be the only file");
    return drawWorkspace(line.operands().front(), options, run) ? done : failed;
}

} // namespace

constinit const Command pictureCommand {
    {"picture", "FILE...", anyNumber, "draws the V-g-f plot",
     "Draws the V-g-f plot of the files: frequency in the upper half, damping in the\n"
     "lower half, the speed axis between them. The plot is the one that tarsil shows for\n"
     "the same files: each file has its own line style, unless --palette gives each curve\n"
     "one, and at most 500 curves are drawn;\n"
     "a file that would exceed this limit is left out with a message, and the exit\n"
     "status is 1.\n"
     "\n"
     "For a workspace, which must be the only FILE, every plot is drawn as it was saved:\n"
     "with several plots out.svg becomes out-1.svg, out-2.svg and so on; with --all each\n"
     "plot has its caption as its name in the folder OUTPUT. Texts, scale and ticks of the\n"
     "command line replace those of the plot; modes, colours and markers are those of\n"
     "its series. A series whose file or mode is missing is left out with a message; the\n"
     "rest is drawn, and the exit status is 1.",
     pictureOptionDescriptions},
    runPicture};

} // namespace tarsil::batch
