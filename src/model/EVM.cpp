// SPDX-License-Identifier: Apache-2.0
#include "model/EVM.h"

#include "base/files/PathNames.h"

#include <utility>

namespace tarsil {

std::string EVM::path() const
{
    return joinPath(Folder, FileName);
}

void EVM::Change(const EVM& source)
{
    EVM copy;
    for (const auto& mode : source.Modes)
        copy.appendMode().copyFrom(*mode);
    copy.na = source.na;
    copy.numberOfSpeeds = source.numberOfSpeeds;
    copy.numberOfStructuralModes = source.numberOfStructuralModes;
    copy.isNewFormat = source.isNewFormat;
    copy.hasParticipationFactors = source.hasParticipationFactors;
    copy.programVersion = programVersion;
    copy.ev2Version = ev2Version;
    copy.runningDate = runningDate;
    copy.solverVersion = solverVersion;
    copy.flutterMethod = flutterMethod;
    copy.Param = Param;
    copy.provenance = provenance;
    takeContents(copy);
}

AeMode& EVM::appendMode()
{
    Modes.push_back(std::make_unique<AeMode>());
    Modes.back()->Parent = this;
    return *Modes.back();
}

void EVM::takeContents(EVM& source)
{
    Modes = std::move(source.Modes);
    for (const auto& mode : Modes)
        mode->Parent = this;
    na = source.na;
    numberOfSpeeds = source.numberOfSpeeds;
    numberOfStructuralModes = source.numberOfStructuralModes;
    isNewFormat = source.isNewFormat;
    hasParticipationFactors = source.hasParticipationFactors;
    programVersion = std::move(source.programVersion);
    ev2Version = std::move(source.ev2Version);
    runningDate = std::move(source.runningDate);
    solverVersion = std::move(source.solverVersion);
    flutterMethod = std::move(source.flutterMethod);
    Param = std::move(source.Param);
    provenance = std::move(source.provenance);
}

void EVM::takeFileContents(EVM& source)
{
    takeContents(source);
    m_paramOfFile = Param.editable();
}

} // namespace tarsil
