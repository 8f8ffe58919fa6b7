// SPDX-License-Identifier: Apache-2.0
#include "document/FileChange.h"

#include "base/files/AtomicFile.h"
#include "base/files/InputFile.h"
#include "base/files/PathNames.h"
#include "base/files/TextStream.h"
#include "document/EvolutionList.h"
#include "formats/FormatTable.h"

namespace tarsil {

bool hasText(const EVM& evolution, const std::string& text)
{
    const std::string path = evolution.path();
    return fileExists(path) && FileBytes(path).bytes() == text;
}

void replaceFile(EvolutionList& evolutions, EVM& evolution, const std::string& text)
{
    const std::string path = evolution.path();
    TextStream stream(text, shownPath(path));
    const auto states = formatOf(evolution.FileName).read(stream);
    EvolutionList::requireSameModes(evolution, *states.front());
    writeFile(path, text);
    evolutions.takePoints(evolution, *states.front());
}

} // namespace tarsil
