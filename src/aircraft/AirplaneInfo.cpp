#include "aircraft/AirplaneInfo.h"

#include "aircraft/AirplaneInfoReader.h"
#include "base/files/InputFile.h"
#include "base/files/PathNames.h"
#include "base/files/TextStream.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace tarsil {

namespace {

char lowered(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

std::string_view withoutBlanksAround(std::string_view text)
{
    constexpr std::string_view blanks = " \t";
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

bool sameName(std::string_view a, std::string_view b)
{
    const std::string_view left = withoutBlanksAround(a);
    const std::string_view right = withoutBlanksAround(b);
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [](char x, char y) { return lowered(x) == lowered(y); });
}

template <typename Record>
const Record* findNamed(const std::vector<Record>& records, std::string Record::*nameOf,
                        std::string_view name)
{
    const auto written = std::find_if(records.begin(), records.end(),
                                      [&](const Record& r) { return r.*nameOf == name; });
    if (written != records.end())
        return &*written;
    const auto similar = std::find_if(records.begin(), records.end(),
                                      [&](const Record& r) { return sameName(r.*nameOf, name); });
    return similar == records.end() ? nullptr : &*similar;
}

} // namespace

void AirplaneInfo::Create()
{
    const FileBytes file(Filename);
    TextStream stream(file.bytes(), shownPath(Filename));
    AirplaneInfo empty;
    empty.Filename = Filename;
    *this = std::move(empty);
    readAirplaneInfo(stream, *this);
}

const MassConf* AirplaneInfo::massConf(std::string_view shortName) const
{
    return findNamed(MassConfs, &MassConf::ShortName, shortName);
}

const FlutterMechanism* AirplaneInfo::flutterMechanism(std::string_view shortName) const
{
    return findNamed(FlutterMechs, &FlutterMechanism::ShortName, shortName);
}

const FlutterEnvelope* AirplaneInfo::flutterEnvelope(std::string_view name) const
{
    return findNamed(FlutterEnvs, &FlutterEnvelope::name, name);
}

} // namespace tarsil
