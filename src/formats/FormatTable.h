// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "formats/EvolutionFormat.h"

#include <span>
#include <string>
#include <string_view>

namespace tarsil {

/// All formats for modal evolutions, in the order of matching and of dialogs.
std::span<const EvolutionFormat* const> evolutionFormats();

/// The first format whose extension occurs in a text, such as a file name; null when there is none.
const EvolutionFormat* findFormat(std::string_view text);

/// The same; error 5 when there is none.
const EvolutionFormat& formatOf(std::string_view fileName);

/// The extensions of all formats in a sentence: ".evm or .ev2" with the conjunction "or".
std::string formatExtensions(std::string_view conjunction);

} // namespace tarsil
