// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QSize>

class QWidget;

namespace tarsil {

/// The first size of a window: `wanted`, but not more than the screen of the window can show beside
/// a title bar and the bars of a desktop.
QSize sizeOnScreen(const QWidget& window, QSize wanted);

} // namespace tarsil
