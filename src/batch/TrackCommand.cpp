// SPDX-License-Identifier: Apache-2.0
#include "analysis/TrackedFile.h"
#include "base/files/AtomicFile.h"
#include "base/files/InputFile.h"
#include "base/files/PathNames.h"
#include "base/numbers/Numbers.h"
#include "base/text/QuotedText.h"
#include "base/text/TextCodec.h"
#include "batch/BatchRun.h"
#include "batch/Commands.h"
#include "batch/JsonWriter.h"
#include "formats/Ev2Format.h"
#include "formats/FormatTable.h"

#include <array>
#include <ostream>

namespace tarsil::batch {

namespace {

constexpr std::array<std::string_view, 1> trackOutputs = {".ev2"};

UsageError notAnExchange(std::string_view text)
{
    return UsageError("--swap: " + quotedText(text)
                      + " is not two mode numbers and a speed, like 4,5@382.5");
}

/// Parses "A,B@KEAS".
ModeExchange exchangeOf(std::string_view text)
{
    const std::vector<std::string_view> parts = split(text, '@');
    const std::vector<std::string_view> modes = split(parts.front(), ',');
    constexpr std::size_t two = 2;
    ModeExchange exchange;
    if (parts.size() != two || modes.size() != two
        || parseInteger16(modes[0], exchange.firstMode) != NumberStatus::Ok
        || parseInteger16(modes[1], exchange.secondMode) != NumberStatus::Ok
        || parseSingle(parts[1], exchange.aboveSpeed) != NumberStatus::Ok)
        throw notAnExchange(text);
    return exchange;
}

std::vector<ModeExchange> exchangesOf(const CommandLine& line)
{
    std::vector<ModeExchange> exchanges;
    for (const std::string& text : line.values("--swap"))
        exchanges.push_back(exchangeOf(text));
    return exchanges;
}

void writeMoves(JsonWriter& json, const EVM& evolution, const ModeTracking& tracking)
{
    const auto number = [&evolution](std::size_t mode) {
        return std::to_string(evolution.Modes[mode]->Id);
    };
    json.key("moves");
    json.beginArray();
    for (const ModeTracking::Move& move : tracking.moves()) {
        json.beginObject();
        json.number("point_to", std::to_string(move.point + 1));
        json.number("track", number(move.track));
        json.number("from_mode", number(move.fromMode));
        json.number("to_mode", number(move.toMode));
        json.endObject();
    }
    json.endArray();
}

void writeDoubts(JsonWriter& json, const EVM& evolution, const ModeTracking& tracking)
{
    json.key("marks");
    json.beginArray();
    for (const TrackMark& mark : tracking.marks()) {
        json.beginObject();
        json.number("point_to", std::to_string(mark.step + 1));
        json.number("track", std::to_string(evolution.Modes[mark.track]->Id));
        json.boolean("ambiguous", mark.isAmbiguous);
        json.boolean("jump", mark.isJump);
        json.endObject();
    }
    json.endArray();
}

void printTrackJson(const EVM& evolution, const ModeTracking& tracking, std::ostream& out)
{
    JsonWriter json(out);
    json.beginObject();
    writeMoves(json, evolution, tracking);
    writeDoubts(json, evolution, tracking);
    json.endObject();
    out << '\n';
}

/// The path of the tracked evolution: --output, or beside its source.
std::string targetOf(const CommandLine& line, const std::string& source)
{
    if (line.has("--output"))
        return outputOf(line, trackOutputs);
    const FilePath path = resolvePath(source);
    return joinPath(path.folder, trackedName(path.name));
}

int runTrack(const CommandLine& line, BatchRun& run)
{
    const std::vector<ModeExchange> exchanges = exchangesOf(line);
    const std::string& source = line.operands().front();
    const bool isPrinted = line.has("--json");
    const std::string target = targetOf(line, source);
    refuseOutputOverInput(target, source);
    const EVM& evolution = run.open(source);
    if (findFormat(evolution.FileName) != &ev2Format)
        throw Failure(source + " is not an evolution with sections (.ev2), which tracking needs");
    const TrackedEvolution tracked = trackEvolution(evolution, exchanges);
    if (isPrinted)
        printTrackJson(evolution, tracked.tracking, run.out());
    if (isPrinted && !line.has("--output"))
        return done;
    writeFile(target, trackedText(FileBytes(source).bytes(), tracked));
    if (!isPrinted) {
        run.out() << printableText(shownPath(target)) << '\n';
        for (const std::string& modification : tracked.modifications)
            run.out() << "  " << printableText(modification) << '\n';
    }
    return done;
}

constexpr std::array<OptionDescription, 3> trackOptions = {
    {{"--json", "", "prints moves and doubtful steps; without --output nothing\nis written"},
     {"--swap", "A,B@KEAS", "exchanges modes A and B above a speed, after the tracking", false,
      true},
     {"--output", "OUTPUT",
      "the file to write, which ends in .ev2; default is\nNAME_tracked.ev2 beside FILE"}}};

} // namespace

constinit const Command trackCommand {
    {"track", "FILE", 1, "follows the roots where the labels of modes swap",
     "Writes an evolution whose modes follow the roots by continuity of their\n"
     "eigenvalues. The numbers of the points stay as they are; each exchange of two modes\n"
     "is a modification in the header. Coarse steps, veering pairs and pairs that become\n"
     "static cannot be tracked safely: doubtful steps are flagged.",
     trackOptions},
    runTrack};

} // namespace tarsil::batch
