// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <array>

namespace tarsil {

/// The text boxes of a V-g-f plot.
enum class TextBox { Header, Legend, Mechanism };

/// In drawing order: the last one is on top.
constexpr std::array allTextBoxes = {TextBox::Header, TextBox::Legend, TextBox::Mechanism};

} // namespace tarsil
