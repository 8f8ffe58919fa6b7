#pragma once

#include "model/EVM.h"

#include <memory>
#include <string_view>
#include <vector>

namespace tarsil {

class FindingList;
class TextStream;

/// A file format for modal evolutions: an entry of the table (`evolutionFormats`). Whatever else
/// depends on the format of a file asks its entry.
struct EvolutionFormat
{
    /// The evolutions of one file, in file order, at least one.
    using Evolutions = std::vector<std::unique_ptr<EVM>>;

    std::string_view name; ///< for programs: "evm"
    std::string_view title; ///< for people: "fixed columns (.evm)"
    std::string_view extension; ///< a file name that contains it is of this format; case counts
    std::string_view filter; ///< its entry in file dialogs: text, "|", pattern, "|"

    /// Reads all evolutions of a file from its first line on. Errors: those of the stream, and the
    /// first thing that is wrong in the file. A file that is cut short, or disagrees with its
    /// counts, is read as far as it goes.
    Evolutions (&read)(TextStream& stream);

    /// Collects what is doubtful in a file. The stream must hold the whole text, which is not
    /// empty.
    void (&check)(TextStream& stream, FindingList& findings);
};

/// `EvolutionFormat::read` of a format with one evolution in each file; `fill` reads it into an
/// evolution that is new and empty.
template <void (*fill)(TextStream& stream, EVM& evolution)>
EvolutionFormat::Evolutions readOne(TextStream& stream)
{
    EvolutionFormat::Evolutions evolutions;
    evolutions.push_back(std::make_unique<EVM>());
    fill(stream, *evolutions.back());
    return evolutions;
}

} // namespace tarsil
