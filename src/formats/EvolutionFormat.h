// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "model/EVM.h"

#include <memory>
#include <string_view>
#include <vector>

namespace tarsil {

class FindingList;
class TextStream;

/// A file format for modal evolutions: an entry of the table (`evolutionFormats`). Code that
/// depends on the format of a file asks its entry.
struct EvolutionFormat
{
    /// The evolutions of a file in file order, at least one.
    using Evolutions = std::vector<std::unique_ptr<EVM>>;

    std::string_view name; ///< identifier: "evm"
    std::string_view title; ///< for users: "fixed columns (.evm)"
    std::string_view extension; ///< file names that contain it are of this format; case-sensitive
    std::string_view filter; ///< entry in file dialogs: text, "|", pattern, "|"

    /// Reads all evolutions of a file from its first line. Errors: those of the stream, and the
    /// first fault in the file. A file that is truncated or disagrees with its counts is read as
    /// far as possible.
    Evolutions (&read)(TextStream& stream);

    /// Collects what is doubtful in a file. The stream must contain the whole text, which is not
    /// empty.
    void (&check)(TextStream& stream, FindingList& findings);
};

/// `EvolutionFormat::read` for a format with one evolution in each file; `fill` reads it into a
/// new, empty evolution.
template <void (*fill)(TextStream& stream, EVM& evolution)>
EvolutionFormat::Evolutions readOne(TextStream& stream)
{
    EvolutionFormat::Evolutions evolutions;
    evolutions.push_back(std::make_unique<EVM>());
    fill(stream, *evolutions.back());
    return evolutions;
}

} // namespace tarsil
