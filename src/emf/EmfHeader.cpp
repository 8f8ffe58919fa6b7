// SPDX-License-Identifier: Apache-2.0
#include "emf/EmfHeader.h"

#include <cmath>
#include <string>

namespace tarsil {

namespace {

constexpr std::uint32_t signature = 0x464D4520; // " EMF"
constexpr std::uint32_t version = 0x10000;
constexpr int fixedHeaderBytes = 108;
constexpr int micrometresPerMillimetre = 1000;

int hundredths(int pixels)
{
    return static_cast<int>(std::lround(pixels * emfdevice::hundredthsPerPixel));
}

/// The bounds in hundredths of a millimetre. Empty bounds are returned as they are, with the last
/// column and row before the first.
QRect frameOf(const QRect& bounds)
{
    if (bounds.isEmpty())
        return bounds;
    return {QPoint(hundredths(bounds.left()), hundredths(bounds.top())),
            QPoint(hundredths(bounds.right()), hundredths(bounds.bottom()))};
}

/// The description followed by two zeros; empty when there is none.
std::u16string descriptionText(const QString& description)
{
    std::u16string text = wellFormed(description);
    if (!text.empty())
        text.append(2, u'\0');
    return text;
}

} // namespace

EmfRecord headerRecord(const EmfHeader& header)
{
    const std::u16string text = descriptionText(header.description);
    EmfRecord record(EmfType::Header);
    record.add(header.bounds).add(frameOf(header.bounds)).add(signature).add(version);
    record.add(header.bytes).add(header.records).add(header.handles);
    record.add(static_cast<std::uint32_t>(text.size())).add(text.empty() ? 0 : fixedHeaderBytes);
    record.add(0); // no palette
    record.add(emfdevice::widthInPixels).add(emfdevice::heightInPixels);
    record.add(emfdevice::widthInMillimetres).add(emfdevice::heightInMillimetres);
    record.addZeros(3); // no pixel format, no OpenGL
    record.add(emfdevice::widthInMillimetres * micrometresPerMillimetre);
    record.add(emfdevice::heightInMillimetres * micrometresPerMillimetre);
    return record.addText(text);
}

} // namespace tarsil
