// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "model/EVM.h"
#include "support/Errors.h"

#include <string>
#include <string_view>
#include <vector>

namespace tarsil::test {

/// The start of an .evm file: three text lines and the line of counts.
std::string evmHeader(std::string_view speeds, std::string_view modes);

/// The start of an .ev2 file up to and including the four heading lines of its results.
std::string ev2Header(std::string_view modelLines);

/// An .ev2 row with this number of fields: 1|1|2|3|...
std::string ev2Row(std::size_t fields);

/// "LINE: TEXT" of every finding about a file with this text and name.
std::vector<std::string> findingsIn(const std::string& text, const std::string& name);

/// The text with one part replaced, which must be there.
std::string with(std::string text, std::string_view old, std::string_view replacement);

/// Reads a text with one of the readers; its name in messages is "wing.evm" etc.
void readEvmText(std::string_view text, EVM& evolution);
void readEv2Text(std::string_view text, EVM& evolution);
void readSemicolonText(std::string_view text, EVM& evolution);

} // namespace tarsil::test
