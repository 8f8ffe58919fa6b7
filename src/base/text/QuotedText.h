// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <string_view>

namespace tarsil {

/// Foreign text in quotation marks for a message: cut after sixty bytes and made printable
/// (`printableText`).
std::string quotedText(std::string_view text);

} // namespace tarsil
