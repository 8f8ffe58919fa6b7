// SPDX-License-Identifier: Apache-2.0
#pragma once

class QWidget;

namespace tarsil {

class OptionsStore;

/// Gives a top-level window the size and position it had when `keepWindow` was last called for a
/// window of its object name, moved into sight when the screen is another one. Without such a call
/// the window stays as it is.
void restoreWindow(QWidget& window, const OptionsStore& store);

void keepWindow(const QWidget& window, const OptionsStore& store);

} // namespace tarsil
