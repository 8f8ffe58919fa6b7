// SPDX-License-Identifier: Apache-2.0
#include "plotwindow/WarningColor.h"

#include <QColor>
#include <QPalette>

namespace tarsil {

QColor warningColor(const QPalette& palette)
{
    constexpr int middle = 128;
    const bool isDark = palette.color(QPalette::Base).lightness() < middle;
    return isDark ? QColor(255, 140, 140) : QColor(176, 0, 0);
}

} // namespace tarsil
