// SPDX-License-Identifier: Apache-2.0
#include "emf/EmfObjects.h"

#include "surface/TextMetrics.h"

#include <algorithm>
#include <string>
#include <string_view>

namespace tarsil {

namespace {

constexpr int solidBrush = 0;

namespace logfont {
constexpr int normalWeight = 400;
constexpr int boldWeight = 700;
constexpr std::uint32_t defaultCharset = 1;
constexpr std::uint32_t symbolCharset = 2;
constexpr std::size_t faceUnits = 32; ///< with the final zero
/// Full name, style, version and panose of the font: left 0, which players accept.
constexpr int extraWords = 57;
} // namespace logfont

/// The family name for a font record, shortened at a character boundary; never empty.
std::u16string faceName(const QString& family)
{
    std::u16string name = wellFormed(family);
    name.resize(std::min(name.find(u'\0'), name.size()));
    if (name.empty())
        return faceName(Font().family);
    if (name.size() >= logfont::faceUnits) {
        name.resize(logfont::faceUnits - 1);
        if (QChar::isHighSurrogate(name.back()))
            name.pop_back();
    }
    return name;
}

/// Symbol fonts have their own character set.
std::uint32_t charsetOf(const QString& family)
{
    const bool isSymbols = family.compare(QStringLiteral("Symbol"), Qt::CaseInsensitive) == 0
        || family.startsWith(QStringLiteral("Wingdings"), Qt::CaseInsensitive);
    return isSymbols ? logfont::symbolCharset : logfont::defaultCharset;
}

} // namespace

EmfRecord penRecord(const Pen& pen)
{
    EmfRecord record(EmfType::CreatePen);
    record.add(0).add(pen.style).add(QPoint(pen.width, 0));
    return record.add(static_cast<std::uint32_t>(pen.color) & rgbBits);
}

EmfRecord brushRecord(std::int32_t color)
{
    EmfRecord record(EmfType::CreateBrush);
    record.add(0).add(solidBrush).add(static_cast<std::uint32_t>(color) & rgbBits);
    return record.add(0); // no hatch
}

EmfRecord fontRecord(const Font& font)
{
    std::u16string face = faceName(font.family);
    face.resize(logfont::faceUnits);
    EmfRecord record(EmfType::CreateFont);
    record.add(0).add(-pixelSize(font)).addZeros(3); // natural width, not rotated
    record.add(font.bold ? logfont::boldWeight : logfont::normalWeight);
    record.add(std::uint32_t {font.italic} | std::uint32_t {font.underline} << 8
               | std::uint32_t {font.strikeOut} << 16 | charsetOf(font.family) << 24);
    record.add(0); // precision, quality and pitch left to the player
    return record.addText(face).addZeros(logfont::extraWords);
}

EmfObjects::EmfObjects(EmfStream& stream) : m_stream(stream) { }

std::uint32_t EmfObjects::kept(const EmfRecord& record)
{
    const auto words = record.words();
    std::vector<std::uint32_t> key(words.begin(), words.end());
    const auto known = m_kept.find(key);
    if (known != m_kept.end())
        return known->second;
    const std::uint32_t index = create(record);
    m_kept.emplace(std::move(key), index);
    return index;
}

std::uint32_t EmfObjects::create(EmfRecord record)
{
    const auto free = std::find(m_isUsed.begin(), m_isUsed.end(), false);
    const auto index = static_cast<std::uint32_t>(free - m_isUsed.begin());
    record.replace(0, index);
    m_stream.write(record);
    if (free == m_isUsed.end())
        m_isUsed.push_back(true);
    else
        *free = true;
    return index;
}

void EmfObjects::remove(std::uint32_t index)
{
    m_stream.write(EmfRecord(EmfType::DeleteObject).add(index));
    m_isUsed[index] = false;
}

void EmfObjects::removeAll()
{
    for (std::uint32_t index = 1; index < m_isUsed.size(); ++index) {
        if (m_isUsed[index])
            remove(index);
    }
    m_kept.clear();
}

} // namespace tarsil
