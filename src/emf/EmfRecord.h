// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QPoint>
#include <QRect>
#include <QVarLengthArray>

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

class QString;

namespace tarsil {

/// The record types used here, with their numbers in the file.
enum class EmfType : std::uint32_t {
    Header = 1,
    Polyline = 4,
    EndOfFile = 14,
    SetBackgroundMode = 18,
    SetTextAlign = 22,
    SetTextColor = 24,
    MoveTo = 27,
    IntersectClipRectangle = 30,
    SaveContext = 33,
    RestoreContext = 34,
    SelectObject = 37,
    CreatePen = 38,
    CreateBrush = 39,
    DeleteObject = 40,
    LineTo = 54,
    SelectClipRegion = 75,
    BitBlockTransfer = 76,
    CreateFont = 82,
    TextOut = 84,
    Polyline16 = 87
};

/// The reference device. Coordinates are its pixels, exactly 96 per inch whatever the screen, so
/// that a picture has the same size in every program.
namespace emfdevice {
constexpr int widthInPixels = 1920;
constexpr int heightInPixels = 1440;
constexpr int widthInMillimetres = 508;
constexpr int heightInMillimetres = 381;
/// Hundredths of a millimetre for each pixel, horizontally and vertically.
constexpr double hundredthsPerPixel = 100.0 * widthInMillimetres / widthInPixels;
} // namespace emfdevice

/// The bits of a colour that a record holds: red, green and blue; the highest byte is 0.
inline constexpr std::uint32_t rgbBits = 0xFFFFFF;

/// A record: its type, its size in bytes, and its data. A sequence of 32-bit words; smaller values
/// share a word, the first in the low bits, as in little-endian files.
class EmfRecord
{
public:
    explicit EmfRecord(EmfType type);

    EmfRecord& add(std::uint32_t word);
    EmfRecord& add(int value);
    EmfRecord& add(float value);
    EmfRecord& add(QPoint point);

    /// Left, top, right and bottom, the last column and row included.
    EmfRecord& add(const QRect& inclusive);

    /// Two 16-bit values; higher bits are dropped.
    EmfRecord& addPair(int first, int second);

    /// UTF-16, padded with zeros to a whole word.
    EmfRecord& addText(std::u16string_view text);

    EmfRecord& addZeros(int count);

    /// Replaces a word of the data; position 0 is the first after the size.
    void replace(qsizetype position, std::uint32_t word);

    std::span<const std::uint32_t> words() const;

private:
    QVarLengthArray<std::uint32_t, 32> m_words;
};

/// Converts to UTF-16; unpaired surrogates become U+FFFD.
std::u16string wellFormed(const QString& text);

} // namespace tarsil
