// SPDX-License-Identifier: Apache-2.0
#include "aircraft/AirplaneInfoReader.h"

#include "aircraft/AirplaneInfo.h"
#include "base/files/TextStream.h"
#include "base/numbers/Numbers.h"
#include "base/text/QuotedText.h"
#include "base/text/TextCodec.h"
#include "base/user/RunTimeError.h"

#include <algorithm>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <utility>

namespace tarsil {

namespace {

constexpr std::string_view massHeader = "[MASS CONFIG. DESCRIPTION]";
constexpr std::string_view mechanismHeader = "[FLUTTER MECHANISM]";
constexpr std::string_view envelopeHeader = "[FLUTTER ENVELOPE]";
constexpr std::string_view tagKey = "TAG";

using FieldNames = std::span<const std::string_view>;

// The fields of each kind of entry, in file order.
constexpr std::string_view massFields[] = {"ShortName", "Mval", "LongName", "CGpos", "CGval"};
constexpr std::string_view mechanismFields[] = {"ShortName", "LongName", "fmin",  "fmax",
                                                "fthick",    "gmin",     "gmax",  "gthick",
                                                "vmin",      "vmax",     "vthick"};
constexpr std::string_view tagFields[] = {"VLTag", "VdTag", "CeTag"};
constexpr std::string_view envelopeFields[] = {"Ceiling", "Vd", "VL"};

[[noreturn]] void throwTooShort(const TextStream& stream, const std::string& what,
                                std::string_view text)
{
    throw RunTimeError(ErrorNumber::SubscriptOutOfRange, "AirplaneInfo",
                       stream.location() + ": " + what + ": " + quotedText(decodeText(text)));
}

/// Reads the fields of an entry one by one. Ignores fields beyond the last name.
class EntryFields
{
public:
    /// Error 9 when there are fewer fields than names.
    EntryFields(const TextStream& stream, std::string_view text, FieldNames names);

    std::string text() { return decodeText(next()); }
    float number();

private:
    std::string_view next();

    const TextStream& m_stream;
    std::string_view m_rest;
    FieldNames m_names;
    std::size_t m_taken = 0;
};

EntryFields::EntryFields(const TextStream& stream, std::string_view text, FieldNames names)
    : m_stream(stream), m_rest(text), m_names(names)
{
    const auto count = static_cast<std::size_t>(std::count(text.begin(), text.end(), '|')) + 1;
    if (count < names.size())
        throwTooShort(stream,
                      "only " + std::to_string(count) + " of " + std::to_string(names.size())
                          + " fields, no " + std::string(names[count]),
                      text);
}

float EntryFields::number()
{
    const std::string_view field = next();
    float value = 0;
    const NumberStatus status = parseSingle(field, value);
    if (status != NumberStatus::Ok) {
        const std::size_t index = m_taken - 1;
        throwNumberError(status, decodeText(field), "AirplaneInfo",
                         m_stream.location() + ", field " + std::to_string(index) + " ("
                             + std::string(m_names[index]) + ")");
    }
    return value;
}

std::string_view EntryFields::next()
{
    const std::size_t end = std::min(m_rest.find('|'), m_rest.size());
    const std::string_view field = m_rest.substr(0, end);
    m_rest.remove_prefix(std::min(end + 1, m_rest.size()));
    ++m_taken;
    return field;
}

/// An entry with a name: the text before the first "=", and the fields after it.
struct NamedEntry
{
    std::string_view name;
    EntryFields fields;
};

NamedEntry namedEntry(const TextStream& stream, std::string_view line, FieldNames names)
{
    const std::size_t equal = line.find('=');
    if (equal == std::string_view::npos)
        throwTooShort(stream, "no \"=\" before the fields", line);
    return {line.substr(0, equal), EntryFields(stream, line.substr(equal + 1), names)};
}

class AirplaneInfoReader
{
public:
    AirplaneInfoReader(TextStream& stream, AirplaneInfo& info) : m_stream(stream), m_info(info) { }

    void read();

private:
    bool readSectionLine(std::string_view& line);
    void readMassConfs();
    void readMechanisms();
    void readEnvelopes();
    void readTags(std::string_view line);
    void readEnvelope(std::string_view line);

    TextStream& m_stream;
    AirplaneInfo& m_info;
};

void AirplaneInfoReader::read()
{
    while (!m_stream.atEndOfStream()) {
        const std::string_view line = m_stream.readLine();
        const auto holds = [line](std::string_view header) {
            return line.find(header) != std::string_view::npos;
        };
        if (holds(massHeader))
            readMassConfs();
        else if (holds(mechanismHeader))
            readMechanisms();
        else if (holds(envelopeHeader))
            readEnvelopes();
    }
}

/// Reads the next line of a section. False at the end of the section: an empty line or the end of
/// the file.
bool AirplaneInfoReader::readSectionLine(std::string_view& line)
{
    if (m_stream.atEndOfStream())
        return false;
    line = m_stream.readLine();
    return !line.empty();
}

void AirplaneInfoReader::readMassConfs()
{
    std::string_view line;
    while (readSectionLine(line)) {
        EntryFields fields = namedEntry(m_stream, line, massFields).fields;
        MassConf configuration;
        configuration.ShortName = fields.text();
        configuration.Mval = fields.text();
        configuration.LongName = fields.text();
        configuration.CGpos = fields.text();
        configuration.CGval = fields.text();
        m_info.MassConfs.push_back(std::move(configuration));
    }
}

void AirplaneInfoReader::readMechanisms()
{
    std::string_view line;
    while (readSectionLine(line)) {
        EntryFields fields(m_stream, line, mechanismFields);
        FlutterMechanism mechanism;
        mechanism.ShortName = fields.text();
        mechanism.LongName = fields.text();
        for (float* const number :
             {&mechanism.fmin, &mechanism.fmax, &mechanism.fthick, &mechanism.gmin, &mechanism.gmax,
              &mechanism.gthick, &mechanism.vmin, &mechanism.vmax, &mechanism.vthick})
            *number = fields.number();
        m_info.FlutterMechs.push_back(std::move(mechanism));
    }
}

/// Only the first line of the section can hold the tags.
void AirplaneInfoReader::readEnvelopes()
{
    std::string_view line;
    if (!readSectionLine(line))
        return;
    if (line.starts_with(tagKey))
        readTags(line);
    else
        readEnvelope(line);
    while (readSectionLine(line))
        readEnvelope(line);
}

void AirplaneInfoReader::readTags(std::string_view line)
{
    EntryFields fields = namedEntry(m_stream, line, tagFields).fields;
    m_info.VLTag = fields.text();
    m_info.VdTag = fields.text();
    m_info.CeTag = fields.text();
}

/// The speeds are in the opposite order of their tags: the ceiling first, VL last.
void AirplaneInfoReader::readEnvelope(std::string_view line)
{
    auto [name, fields] = namedEntry(m_stream, line, envelopeFields);
    FlutterEnvelope envelope;
    envelope.name = decodeText(name);
    envelope.Ceiling = fields.number();
    envelope.Vd = fields.number();
    envelope.VL = fields.number();
    m_info.FlutterEnvs.push_back(std::move(envelope));
}

} // namespace

void readAirplaneInfo(TextStream& stream, AirplaneInfo& info)
{
    AirplaneInfoReader(stream, info).read();
}

} // namespace tarsil
