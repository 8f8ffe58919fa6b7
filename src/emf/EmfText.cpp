// SPDX-License-Identifier: Apache-2.0
#include "emf/EmfText.h"

#include "surface/TextMetrics.h"

#include <QString>

namespace tarsil {

namespace {

constexpr int compatibleMode = 1; // untransformed coordinates
constexpr auto scale = static_cast<float>(emfdevice::hundredthsPerPixel);
constexpr std::uint32_t fixedTextBytes = 76;

} // namespace

EmfRecord textRecord(QPoint reference, const QString& text, const std::vector<int>& advances,
                     const QRect& bounds)
{
    const std::u16string units = drawableText(text).toStdU16String();
    const auto count = static_cast<std::uint32_t>(units.size());
    const std::uint32_t textBytes = (count + 1) / 2 * 4;
    EmfRecord record(EmfType::TextOut);
    record.add(bounds).add(compatibleMode).add(scale).add(scale);
    record.add(reference).add(count).add(fixedTextBytes);
    record.add(0).add(QRect()); // no options, so no rectangle
    record.add(fixedTextBytes + textBytes).addText(units);
    for (const int advance : advances)
        record.add(advance);
    return record;
}

} // namespace tarsil
