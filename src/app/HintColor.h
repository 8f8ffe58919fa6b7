// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace tarsil {

/// Gives the hints in empty inputs a colour between text and ground. Without this they stay black
/// on dark desktops whose colours have none for hints. Call at start and when the user has changed
/// the colours of the desktop.
void makeHintsReadable();

} // namespace tarsil
