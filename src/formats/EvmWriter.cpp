// SPDX-License-Identifier: Apache-2.0
#include "formats/EvmWriter.h"

#include "base/numbers/NumberFormat.h"
#include "base/user/RunTimeError.h"
#include "formats/EvmLayout.h"
#include "model/EVM.h"

#include <string_view>

namespace tarsil {

namespace {

using evmlayout::tagWidth;

constexpr std::size_t headLines = evmlayout::countLine - 1;
constexpr std::size_t tagsPerLine = evmlayout::lineWidth / tagWidth;
constexpr std::string_view lineEnd = "\r\n";

std::string rightAligned(std::string text, std::size_t width)
{
    if (text.size() < width)
        text.insert(0, width - text.size(), ' ');
    return text;
}

/// Joins pieces to lines of the same number of pieces; writes an incomplete last line too.
class LineGatherer
{
public:
    LineGatherer(std::string& text, std::size_t piecesPerLine)
        : m_text(text), m_piecesPerLine(piecesPerLine)
    { }

    void add(std::string_view piece)
    {
        m_text += piece;
        if (++m_pieces == m_piecesPerLine)
            finish();
    }

    void finish()
    {
        if (m_pieces > 0)
            m_text += lineEnd;
        m_pieces = 0;
    }

private:
    std::string& m_text;
    std::size_t m_piecesPerLine;
    std::size_t m_pieces = 0;
};

std::string numberColumn(const Point& point, const AeMode& mode, float value,
                         std::string_view pattern, std::size_t width)
{
    std::string text = formatNumber(value, pattern);
    if (text.size() > width)
        throw RunTimeError(ErrorNumber::InvalidProcedureCall, "EVM",
                           "mode " + std::to_string(mode.Id) + ", point "
                               + std::to_string(&point - mode.Points.data() + 1) + ": \"" + text
                               + "\" does not fit into " + std::to_string(width) + " columns");
    return rightAligned(std::move(text), width);
}

std::string pointField(const AeMode& mode, const Point& point)
{
    const auto column = [&](const evmlayout::NumberColumns& columns, float value) {
        return numberColumn(point, mode, value, columns.pattern, columns.width);
    };
    return numberColumn(point, mode, mode.Id, evmlayout::modeNumberPattern,
                        evmlayout::modeNumber.width)
        + column(evmlayout::reducedFrequency, point.kfreq) + column(evmlayout::speed, point.speed)
        + column(evmlayout::damping, point.G) + column(evmlayout::frequency, point.f);
}

std::string countLine(const EVM& evolution)
{
    std::string line(evmlayout::lineWidth, ' ');
    const auto put = [&line](const evmlayout::Columns& columns, std::int16_t count) {
        const std::string text = formatNumber(static_cast<float>(count), evmlayout::countPattern);
        if (text.size() > columns.width)
            throw RunTimeError(ErrorNumber::InvalidProcedureCall, "EVM",
                               std::string(columns.content) + " " + text
                                   + " does not fit into 4 columns");
        line.replace(columns.first, columns.width, rightAligned(text, columns.width));
    };
    put(evmlayout::writtenSpeedCount, evolution.numberOfSpeeds);
    put(evmlayout::writtenModeCount, evolution.na);
    return line;
}

/// The first `count` bytes of a UTF-8 text, without splitting a character.
std::string firstCharacters(const std::string& text, std::size_t count)
{
    std::size_t end = 0;
    for (; end < text.size(); ++end) {
        const bool startsCharacter = (static_cast<unsigned char>(text[end]) & 0xC0) != 0x80;
        if (startsCharacter && count-- == 0)
            break;
    }
    return text.substr(0, end);
}

std::size_t characterCount(const std::string& text)
{
    std::size_t count = 0;
    for (const char c : text)
        count += (static_cast<unsigned char>(c) & 0xC0) != 0x80 ? 1U : 0U;
    return count;
}

std::string tagColumn(const AeMode& mode)
{
    const std::string tag = firstCharacters(mode.Tag, tagWidth);
    return std::string(tagWidth - characterCount(tag), ' ') + tag;
}

} // namespace

std::string evmText(const EVM& evolution)
{
    std::string text;
    for (std::size_t i = 0; i < headLines; ++i)
        text += lineEnd;
    text.append(countLine(evolution)).append(lineEnd);
    LineGatherer fields(text, evmlayout::fieldsPerLine);
    for (const auto& mode : evolution.Modes) {
        for (const Point& point : mode->Points)
            fields.add(pointField(*mode, point));
    }
    fields.finish();
    LineGatherer tags(text, tagsPerLine);
    for (const auto& mode : evolution.Modes)
        tags.add(tagColumn(*mode));
    tags.finish();
    return text;
}

} // namespace tarsil
