// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <string>

namespace tarsil {

class EVM;
class EvolutionList;

/// A change of the file of an evolution: its texts before and after.
struct FileChange
{
    std::shared_ptr<EVM> evolution;
    std::string before;
    std::string after;
};

/// Whether the file of an evolution exists and has this text. Errors: those of reading a file.
bool hasText(const EVM& evolution, const std::string& text);

/// Writes a new text to the file of an evolution and copies its points into the evolution
/// (`EvolutionList::takePoints`). Errors: those of reading the text; 5 for a text with other modes;
/// those of writing a file. Nothing has changed after an error.
void replaceFile(EvolutionList& evolutions, EVM& evolution, const std::string& text);

} // namespace tarsil
