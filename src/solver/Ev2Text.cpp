// SPDX-License-Identifier: Apache-2.0
#include "solver/Ev2Text.h"

#include "base/numbers/Numbers.h"
#include "base/text/TextCodec.h"
#include "base/user/RunTimeError.h"
#include "formats/Ev2Layout.h"
#include "model/EVM.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <limits>
#include <optional>
#include <string_view>
#include <utility>

namespace tarsil::solver {

namespace {

constexpr std::size_t mostCounted = std::numeric_limits<std::int16_t>::max();
constexpr int significantDigits = 9;

void requireCountable(std::size_t count, std::string_view what)
{
    if (count > mostCounted)
        throw RunTimeError(ErrorNumber::Overflow, "solver",
                           std::to_string(count) + " " + std::string(what)
                               + " are more than an evolution file can count");
}

void requireCountable(const std::vector<ImportedMode>& modes)
{
    requireCountable(modes.size(), "modes");
    for (const ImportedMode& mode : modes) {
        requireCountable(mode.points.size(), "points");
        if (mode.id < 0 || static_cast<std::size_t>(mode.id) > mostCounted)
            throw RunTimeError(ErrorNumber::Overflow, "solver",
                               "POINT " + std::to_string(mode.id)
                                   + " is no number that a mode can have");
    }
}

/// The Mach number of all points; empty when they differ.
std::optional<double> commonMach(const std::vector<ImportedMode>& modes)
{
    std::optional<double> mach;
    for (const ImportedMode& mode : modes) {
        for (const ImportedPoint& point : mode.points) {
            if (std::isnan(point.mach) || (mach && *mach != point.mach))
                return std::nullopt;
            mach = point.mach;
        }
    }
    return mach;
}

class Ev2Writer
{
public:
    void line(std::string_view text) { m_text.append(text).push_back('\n'); }

    void keyValue(std::string_view key, std::string value)
    {
        std::replace_if(
            value.begin(), value.end(), [](char c) { return c == '\n' || c == '\r' || c == '\0'; },
            ' ');
        m_text.append(key).append("=").append(encodeText(value)).push_back('\n');
    }

    /// Writes a line for each key with its value in `owner`.
    template <typename Keys, typename Owner>
    void texts(const Keys& keys, const Owner& owner)
    {
        for (const auto& key : keys)
            keyValue(key.name, owner.*key.member);
    }

    void list(const ev2layout::ListKey& key, const Param& parameters)
    {
        for (const KeyedTexts::Entry& entry : parameters.*key.member)
            keyValue(std::string(key.name) + "(" + entry.key + ")", entry.text);
    }

    void field(double value)
    {
        char digits[32];
        if (!std::isnan(value)) {
            const auto end = std::to_chars(std::begin(digits), std::end(digits), value,
                                           std::chars_format::general, significantDigits);
            m_text.append(digits, end.ptr);
        }
        m_text.push_back('|');
    }

    void field(std::size_t number) { m_text.append(std::to_string(number)).push_back('|'); }

    std::string& text() { return m_text; }

private:
    std::string m_text;
};

void writeProcessing(Ev2Writer& writer, const EVM& header)
{
    writer.line(ev2layout::processingHeader);
    writer.texts(ev2layout::processingTexts, header);
    writer.texts(ev2layout::provenanceTexts, header.provenance);
    writer.line("");
}

void writeModel(Ev2Writer& writer, const EVM& header, const std::vector<ImportedMode>& modes)
{
    const std::size_t speeds = modes.empty() ? 0 : modes.front().points.size();
    writer.line(ev2layout::modelHeader);
    writer.texts(ev2layout::modelTexts, header);
    writer.texts(ev2layout::parameterTexts, header.Param);
    if (const std::optional<double> mach = commonMach(modes))
        writer.keyValue(ev2layout::machKey, shortestText(*mach));
    for (const ev2layout::CountKey& key : ev2layout::modelCounts)
        writer.keyValue(key.name,
                        std::to_string(key.member == &EVM::numberOfSpeeds ? speeds : modes.size()));
    writer.keyValue(ev2layout::modificationCountKey,
                    std::to_string(header.Param.modifications.size()));
    for (const ev2layout::ListKey& key : ev2layout::lists)
        writer.list(key, header.Param);
    writer.line("");
}

void writeRow(Ev2Writer& writer, const ImportedMode& mode, std::size_t index)
{
    const ImportedPoint& point = mode.points[index];
    writer.field(static_cast<std::size_t>(mode.id));
    writer.field(index + 1);
    for (const double value : {point.im, point.re, point.k, point.keas, point.damping,
                               point.frequency, point.mach, point.sigma})
        writer.field(value);
    writer.line("");
}

} // namespace

std::string ev2Text(const EVM& header, const std::vector<ImportedMode>& modes)
{
    requireCountable(modes);
    constexpr std::string_view headings =
        "Mode|Point|Im(p)|Re(p)|k|Speed|Damping g|Frequency|Mach|Density ratio|";
    constexpr std::string_view units = "-|-|rad/s|rad/s|-|KEAS|-|Hz|-|-|";
    Ev2Writer writer;
    writeProcessing(writer, header);
    writeModel(writer, header, modes);
    writer.line(ev2layout::resultHeader);
    writer.line(std::string(headings.size(), '-'));
    writer.line(headings);
    writer.line(units);
    writer.line(std::string(headings.size(), '-'));
    for (const ImportedMode& mode : modes) {
        for (std::size_t i = 0; i < mode.points.size(); ++i)
            writeRow(writer, mode, i);
    }
    return std::move(writer.text());
}

} // namespace tarsil::solver
