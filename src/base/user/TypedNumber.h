// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <optional>
#include <string_view>

namespace tarsil {

class UserInterface;

/// Shows the message that a number is needed.
void askForNumber(UserInterface& user);

/// The single in a text that the user typed. Empty, after the message that a number is needed, when
/// the text is not a number. Error 6 "Overflow" outside the range of a single; its description
/// contains `where` and the text, and its source is `source`.
std::optional<float> typedSingle(std::string_view text, std::string_view source,
                                 std::string_view where, UserInterface& user);

} // namespace tarsil
