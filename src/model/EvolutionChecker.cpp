#include "model/EvolutionChecker.h"

#include "base/files/InputFile.h"
#include "base/files/PathNames.h"
#include "base/files/TextStream.h"
#include "base/user/RunTimeError.h"
#include "model/CheckerParts.h"
#include "model/EVM.h"

namespace tarsil {

std::vector<Finding> checkEvolution(std::string_view path)
{
    const FileBytes file(path);
    return checkEvolutionText(file.bytes(), resolvePath(path).name);
}

std::vector<Finding> checkEvolutionText(std::string_view text, std::string_view fileName)
{
    const std::optional<EvolutionLayout> layout = layoutOf(fileName);
    if (!layout)
        throw RunTimeError(ErrorNumber::InvalidProcedureCall, "EvolutionChecker",
                           "the name \"" + std::string(fileName)
                               + "\" holds neither \".evm\" nor \".ev2\"");
    FindingList findings;
    TextStream stream(text, std::string(fileName));
    if (stream.atEndOfStream())
        findings.add(1, "the file is empty");
    else if (layout == EvolutionLayout::FixedColumns)
        checkEvm(stream, findings);
    else
        checkEv2(stream, findings);
    return findings.take();
}

} // namespace tarsil
