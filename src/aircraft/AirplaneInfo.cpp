// SPDX-License-Identifier: Apache-2.0
#include "aircraft/AirplaneInfo.h"

#include "aircraft/AirplaneInfoReader.h"
#include "base/files/InputFile.h"
#include "base/files/PathNames.h"
#include "base/files/TextStream.h"
#include "base/numbers/NumberFormat.h"
#include "base/text/AsciiText.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace tarsil {

namespace {

bool sameName(std::string_view a, std::string_view b)
{
    return equalIgnoringAsciiCase(trimmed(a), trimmed(b));
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

std::string envelopeName(float mach)
{
    return formatNumber(static_cast<double>(mach), "0.00#");
}

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

const FlutterEnvelope* AirplaneInfo::envelopeAtMach(float mach) const
{
    return flutterEnvelope(envelopeName(mach));
}

} // namespace tarsil
