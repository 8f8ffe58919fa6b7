// SPDX-License-Identifier: Apache-2.0
#include "FuzzTarget.h"

#include "aircraft/AirplaneInfo.h"
#include "aircraft/AirplaneInfoReader.h"
#include "base/files/TextStream.h"
#include "base/text/TextCodec.h"
#include "base/user/RunTimeError.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <tuple>

namespace {

using namespace tarsil;

/// Reads the text. Returns the number of the line that stopped the reader; empty at the end.
std::optional<std::size_t> read(std::string_view text, AirplaneInfo& info)
{
    TextStream stream(text, "fuzz");
    try {
        readAirplaneInfo(stream, info);
    } catch (const RunTimeError& error) {
        fuzz::require(error.source() == "AirplaneInfo", "an error names the class");
        fuzz::require(error.description().find(stream.location()) != std::string::npos,
                      "an error says where");
        fuzz::require(isUtf8(error.description()), "an error can be shown");
        return stream.lineNumber();
    }
    return std::nullopt;
}

/// The text before line `number`, counted from 1.
std::string_view linesBefore(std::string_view text, std::size_t number)
{
    std::size_t end = 0;
    for (std::size_t line = 1; line < number; ++line)
        end = text.find('\n', end) + 1;
    return text.substr(0, end);
}

bool sameContents(const AirplaneInfo& a, const AirplaneInfo& b)
{
    const auto contents = [](const AirplaneInfo& info) {
        return std::tie(info.VLTag, info.VdTag, info.CeTag, info.MassConfs, info.FlutterMechs,
                        info.FlutterEnvs);
    };
    return contents(a) == contents(b);
}

void requireProportion(const AirplaneInfo& info, std::string_view text)
{
    const auto lines = static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
    const std::size_t records =
        info.MassConfs.size() + info.FlutterMechs.size() + info.FlutterEnvs.size();
    fuzz::require(records <= lines, "a record is a line, and a header is none");
    // A byte of Windows-1252 has at most three bytes in UTF-8.
    std::size_t bytes = info.VLTag.size() + info.VdTag.size() + info.CeTag.size();
    for (const MassConf& mass : info.MassConfs)
        bytes += mass.ShortName.size() + mass.LongName.size() + mass.Mval.size() + mass.CGval.size()
            + mass.CGpos.size();
    for (const FlutterMechanism& mechanism : info.FlutterMechs)
        bytes += mechanism.ShortName.size() + mechanism.LongName.size();
    for (const FlutterEnvelope& envelope : info.FlutterEnvs)
        bytes += envelope.name.size();
    fuzz::require(bytes <= 3 * text.size(), "memory in proportion to the file");
}

void requireFinite(const AirplaneInfo& info)
{
    for (const FlutterMechanism& m : info.FlutterMechs) {
        for (const float value :
             {m.fmin, m.fmax, m.fthick, m.gmin, m.gmax, m.gthick, m.vmin, m.vmax, m.vthick})
            fuzz::require(std::isfinite(value), "values are finite");
    }
    for (const FlutterEnvelope& e : info.FlutterEnvs) {
        for (const float value : {e.VL, e.Vd, e.Ceiling})
            fuzz::require(std::isfinite(value), "values are finite");
    }
}

/// Checks only a few records, because checking all takes quadratic time.
void requireFindable(const AirplaneInfo& info)
{
    constexpr std::size_t few = 50;
    for (std::size_t i = 0; i < std::min(few, info.MassConfs.size()); ++i) {
        const MassConf* const found = info.massConf(info.MassConfs[i].ShortName);
        fuzz::require(found != nullptr && found <= &info.MassConfs[i], "the first of a name");
    }
    for (std::size_t i = 0; i < std::min(few, info.FlutterMechs.size()); ++i) {
        const FlutterMechanism* const found = info.flutterMechanism(info.FlutterMechs[i].ShortName);
        fuzz::require(found != nullptr && found <= &info.FlutterMechs[i], "the first of a name");
    }
    for (std::size_t i = 0; i < std::min(few, info.FlutterEnvs.size()); ++i) {
        const FlutterEnvelope* const found = info.flutterEnvelope(info.FlutterEnvs[i].name);
        fuzz::require(found != nullptr && found <= &info.FlutterEnvs[i], "the first of a name");
    }
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view text = fuzz::textOf(data, size);
    AirplaneInfo info;
    const std::optional<std::size_t> stopped = read(text, info);
    requireProportion(info, text);
    requireFinite(info);
    requireFindable(info);

    // After an error the result must be that of the lines before the error.
    AirplaneInfo again;
    const std::string_view good = stopped ? linesBefore(text, *stopped) : text;
    fuzz::require(!read(good, again), "the lines before an error have none");
    fuzz::require(sameContents(info, again), "reading is repeatable");
    return 0;
}
