// SPDX-License-Identifier: Apache-2.0
#include "plotwindow/ScreenSize.h"

#include <QScreen>
#include <QWidget>

namespace tarsil {

QSize sizeOnScreen(const QWidget& window, QSize wanted)
{
    constexpr double part = 0.9;
    return wanted.boundedTo(window.screen()->availableSize() * part);
}

} // namespace tarsil
