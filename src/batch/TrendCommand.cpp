// SPDX-License-Identifier: Apache-2.0
#include "analysis/FlutterTrend.h"
#include "analysis/Sheet.h"
#include "analysis/SheetWriter.h"
#include "analysis/TrendSheet.h"
#include "base/files/AtomicFile.h"
#include "batch/BatchRun.h"
#include "batch/Commands.h"
#include "batch/PictureOptions.h"
#include "batch/StabilityOptions.h"
#include "batch/TrendJson.h"
#include "trend/TrendPlot.h"
#include "vgfplot/PictureWriter.h"

#include <array>

namespace tarsil::batch {

namespace {

constexpr std::array<std::string_view, 7> trendExtensions = {".png", ".svg",  ".pdf", ".emf",
                                                             ".csv", ".xlsx", ".json"};
constexpr std::array<std::string_view, 2> trendTables = {".csv", ".xlsx"};
constexpr std::array<std::string_view, 1> trendData = {".json"};
constexpr std::string_view trendProgram = "tarsil-batch " TARSIL_VERSION;

TrendAbscissa abscissaOption(const CommandLine& line)
{
    const std::string name = line.value("--against").value_or("mach");
    const auto abscissa = trendAbscissaOf(name);
    if (!abscissa)
        throw UsageError("--against: \"" + name + "\" is not mach, altitude, mass or file");
    return *abscissa;
}

void writeTrendFile(const FlutterTrend& trend, const PictureSize& size, const std::string& output)
{
    if (hasExtension(output, trendData)) {
        writeFile(output, trendJson(trend, trendProgram));
    } else if (hasExtension(output, trendTables)) {
        Sheet sheet(trendSheetTitle);
        writeTrend(trend, sheet);
        writeTrendOrigin(trend, std::string(trendProgram), sheet);
        writeSheet(sheet, output);
    } else {
        writePicture(TrendPlot(trend, size.pixels), output, size.settings);
    }
}

int runTrend(const CommandLine& line, BatchRun& run)
{
    const std::string output = outputOf(line, trendExtensions);
    const TrendAbscissa abscissa = abscissaOption(line);
    const PictureSize size = pictureSizeOf(line);
    const StabilitySettings settings = stabilitySettingsOf(line);
    const AircraftOption aircraft = aircraftOf(line);
    const FlutterTrend trend = trendOf(judgedFiles(line, output, settings, aircraft, run), settings,
                                       abscissa, aircraft.airplane, aircraft.requirement);
    writeTrendFile(trend, size, output);
    return done;
}

constexpr auto trendOptions = withStabilityOptions(std::array<OptionDescription, 6> {
    {{"--against", "QUANTITY",
      "mach, altitude, mass (in the order of the aircraft\nfile) or file (in the order given); "
      "default mach"},
     sizeOption,
     resolutionOption,
     lineWidthOption,
     dashesOption,
     {"--output", "OUTPUT",
      "the file to write: a picture (.png, .svg, .pdf, .emf),\na table (.csv, .xlsx) or .json",
      true}}});

} // namespace

constinit const Command trendCommand {
    {"trend", "FILE...", anyNumber, "compares the lowest starts of instability of many files",
     "Draws or lists the lowest reliable start of instability of each evolution at each\n"
     "level, with its frequency, against Mach number, altitude, mass or file. Unstable from\n"
     "the first speed, and no instability up to the last speed, are shown as what they are\n"
     "and never as a speed. A line joins neighbours of one mass configuration (against\n"
     "masses: of one Mach number) that are starts of the same mode and kind.\n"
     "\n"
     "--require draws a factor times the dive speed: against Mach numbers as a line through\n"
     "all envelopes of the aircraft file, otherwise at each evolution.",
     trendOptions},
    runTrend};

} // namespace tarsil::batch
