// SPDX-License-Identifier: Apache-2.0
#include "app/HintColor.h"

#include <QApplication>
#include <QColor>
#include <QPalette>

namespace tarsil {

namespace {

/// A colour between two others; `share` is that of the first.
QColor between(const QColor& one, const QColor& other, float share)
{
    const auto mixed = [share](float a, float b) { return share * a + (1 - share) * b; };
    return QColor::fromRgbF(mixed(one.redF(), other.redF()), mixed(one.greenF(), other.greenF()),
                            mixed(one.blueF(), other.blueF()));
}

} // namespace

void makeHintsReadable()
{
    constexpr float shareOfText = 0.62F; // a contrast of 5 to 1 or more, but still paler than text
    QPalette palette = QApplication::palette();
    const QColor hint =
        between(palette.color(QPalette::Text), palette.color(QPalette::Base), shareOfText);
    if (palette.color(QPalette::PlaceholderText) == hint)
        return; // this function changes the colours itself
    palette.setColor(QPalette::PlaceholderText, hint); // the others still follow the desktop
    QApplication::setPalette(palette);
}

} // namespace tarsil
