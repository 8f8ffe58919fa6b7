// SPDX-License-Identifier: Apache-2.0
#include "emf/EmfRecord.h"

#include <QString>

#include <bit>

namespace tarsil {

namespace {

constexpr qsizetype wordsBefore = 2; // type and size
constexpr qsizetype sizeWord = 1;
constexpr std::uint32_t bytesPerWord = 4;
constexpr std::uint32_t low16 = 0xFFFF;

} // namespace

EmfRecord::EmfRecord(EmfType type)
{
    m_words.append(static_cast<std::uint32_t>(type));
    m_words.append(wordsBefore * bytesPerWord);
}

EmfRecord& EmfRecord::add(std::uint32_t word)
{
    m_words.append(word);
    m_words[sizeWord] += bytesPerWord;
    return *this;
}

EmfRecord& EmfRecord::add(int value)
{
    return add(static_cast<std::uint32_t>(value));
}

EmfRecord& EmfRecord::add(float value)
{
    return add(std::bit_cast<std::uint32_t>(value));
}

EmfRecord& EmfRecord::add(QPoint point)
{
    return add(point.x()).add(point.y());
}

EmfRecord& EmfRecord::add(const QRect& inclusive)
{
    return add(inclusive.topLeft()).add(inclusive.bottomRight());
}

EmfRecord& EmfRecord::addPair(int first, int second)
{
    return add((static_cast<std::uint32_t>(first) & low16)
               | (static_cast<std::uint32_t>(second) & low16) << 16);
}

EmfRecord& EmfRecord::addText(std::u16string_view text)
{
    for (std::size_t i = 0; i < text.size(); i += 2)
        addPair(text[i], i + 1 < text.size() ? text[i + 1] : 0);
    return *this;
}

EmfRecord& EmfRecord::addZeros(int count)
{
    for (int i = 0; i < count; ++i)
        add(0);
    return *this;
}

void EmfRecord::replace(qsizetype position, std::uint32_t word)
{
    m_words[wordsBefore + position] = word;
}

std::span<const std::uint32_t> EmfRecord::words() const
{
    return {m_words.data(), static_cast<std::size_t>(m_words.size())};
}

std::u16string wellFormed(const QString& text)
{
    std::u16string result = text.toStdU16String();
    for (std::size_t i = 0; i < result.size(); ++i) {
        const bool isPair = QChar::isHighSurrogate(result[i]) && i + 1 < result.size()
            && QChar::isLowSurrogate(result[i + 1]);
        if (isPair)
            ++i;
        else if (QChar::isSurrogate(result[i]))
            result[i] = QChar::ReplacementCharacter;
    }
    return result;
}

} // namespace tarsil
