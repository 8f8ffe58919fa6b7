// SPDX-License-Identifier: Apache-2.0
#pragma once

class QColor;
class QPalette;

namespace tarsil {

/// The red of texts that warn, on the ground of inputs and windows: dark red on a light desktop,
/// light red on a dark one. Its contrast to the grounds of usual desktops is at least 4.5 to 1.
QColor warningColor(const QPalette& palette);

} // namespace tarsil
