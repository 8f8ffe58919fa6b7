// SPDX-License-Identifier: Apache-2.0
#include "emf/EmfItem.h"

#include <bit>
#include <stdexcept>

namespace tarsil::test {

std::uint8_t EmfItem::byte(std::size_t offset) const
{
    if (offset >= m_bytes.size())
        throw std::runtime_error("field passes the end of its record");
    return static_cast<std::uint8_t>(m_bytes[offset]);
}

std::uint16_t EmfItem::half(std::size_t offset) const
{
    return static_cast<std::uint16_t>(byte(offset) | byte(offset + 1) << 8);
}

std::uint32_t EmfItem::word(std::size_t offset) const
{
    return half(offset) | std::uint32_t {half(offset + 2)} << 16;
}

float EmfItem::real(std::size_t offset) const
{
    return std::bit_cast<float>(word(offset));
}

QPoint EmfItem::point(std::size_t offset) const
{
    return {integer(offset), integer(offset + 4)};
}

QRect EmfItem::rectangle(std::size_t offset) const
{
    return {point(offset), point(offset + 8)};
}

QString EmfItem::text(std::size_t offset, std::size_t units) const
{
    QString result;
    for (std::size_t i = 0; i < units; ++i)
        result.append(QChar(half(offset + 2 * i)));
    return result;
}

std::vector<QPoint> EmfItem::points() const
{
    constexpr std::size_t first = 28;
    std::vector<QPoint> result;
    const std::size_t count = word(24);
    for (std::size_t i = 0; i < count; ++i) {
        if (type() == emf::polyline) {
            result.push_back(point(first + 8 * i));
        } else {
            const auto signedHalf = [this](std::size_t offset) {
                return static_cast<std::int16_t>(half(offset));
            };
            result.emplace_back(signedHalf(first + 4 * i), signedHalf(first + 4 * i + 2));
        }
    }
    return result;
}

QString EmfItem::shownText() const
{
    return text(word(48), word(44));
}

std::vector<int> EmfItem::advances() const
{
    std::vector<int> result;
    const std::size_t first = word(72);
    const std::size_t count = word(44);
    for (std::size_t i = 0; i < count; ++i)
        result.push_back(integer(first + 4 * i));
    return result;
}

QString EmfItem::face() const
{
    constexpr std::size_t units = 32;
    const QString name = text(40, units);
    const auto end = name.indexOf(QChar(0));
    if (end < 0)
        throw std::runtime_error("face name without its end");
    return name.left(end);
}

} // namespace tarsil::test
