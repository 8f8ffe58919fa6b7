// SPDX-License-Identifier: Apache-2.0
#include "formats/EvolutionChecker.h"

#include "base/files/InputFile.h"
#include "base/files/PathNames.h"
#include "base/files/TextStream.h"
#include "formats/FormatTable.h"

#include <string>

namespace tarsil {

std::vector<Finding> checkEvolution(std::string_view path)
{
    const FileBytes file(path);
    return checkEvolutionText(file.bytes(), resolvePath(path).name);
}

std::vector<Finding> checkEvolutionText(std::string_view text, std::string_view fileName)
{
    const EvolutionFormat& format = formatOf(fileName);
    FindingList findings;
    TextStream stream(text, std::string(fileName));
    if (stream.atEndOfStream())
        findings.add(1, "the file is empty");
    else
        format.check(stream, findings);
    return findings.take();
}

} // namespace tarsil
