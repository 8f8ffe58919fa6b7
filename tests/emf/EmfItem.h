// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QPoint>
#include <QRect>
#include <QString>

#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace tarsil::test {

/// Record types by their numbers in the file.
namespace emf {
enum Type : std::uint32_t {
    header = 1,
    polyline = 4,
    endOfFile = 14,
    setBkMode = 18,
    setTextAlign = 22,
    setTextColor = 24,
    moveToEx = 27,
    intersectClipRect = 30,
    saveDc = 33,
    restoreDc = 34,
    selectObject = 37,
    createPen = 38,
    createBrushIndirect = 39,
    deleteObject = 40,
    lineTo = 54,
    extSelectClipRgn = 75,
    bitBlt = 76,
    extCreateFontIndirectW = 82,
    extTextOutW = 84,
    polyline16 = 87
};

constexpr std::uint32_t stockBit = 0x80000000;
} // namespace emf

/// A record with little-endian fields, which are addressed by their offset in bytes.
class EmfItem
{
public:
    explicit EmfItem(std::string bytes) : m_bytes(std::move(bytes)) { }

    std::uint32_t type() const { return word(0); }
    std::size_t size() const { return m_bytes.size(); }

    std::uint8_t byte(std::size_t offset) const;
    std::uint16_t half(std::size_t offset) const;
    std::uint32_t word(std::size_t offset) const;
    int integer(std::size_t offset) const { return static_cast<int>(word(offset)); }
    float real(std::size_t offset) const;
    QPoint point(std::size_t offset) const;

    /// Four integers, as stored: left, top, right and bottom.
    QRect rectangle(std::size_t offset) const;

    /// UTF-16 text of `units` units.
    QString text(std::size_t offset, std::size_t units) const;

    /// The points of a polyline, 16 or 32 bits wide.
    std::vector<QPoint> points() const;

    /// The text of a text record, and the advances of its units.
    QString shownText() const;
    std::vector<int> advances() const;

    /// The face name of a font record.
    QString face() const;

private:
    std::string m_bytes;
};

} // namespace tarsil::test
