#include "model/EVM.h"

#include "base/files/AtomicFile.h"
#include "base/files/FileLines.h"
#include "base/files/PathNames.h"
#include "base/files/TextStream.h"
#include "base/text/TextCodec.h"
#include "base/user/RunTimeError.h"
#include "model/EvolutionReaders.h"
#include "model/EvolutionWriter.h"

#include <utility>

namespace tarsil {

namespace {

/// That another program was writing the file says more than what was found amiss in it then.
void readContents(const std::string& path, void (*reader)(TextStream& stream, EVM& evolution),
                  EVM& contents)
{
    FileLines file(path);
    try {
        TextStream stream(file, shownPath(path));
        reader(stream, contents);
    } catch (const RunTimeError&) {
        file.requireUnchanged();
        throw;
    }
    file.requireUnchanged();
}

} // namespace

std::string EVM::path() const
{
    return joinPath(Folder, FileName);
}

std::optional<EvolutionLayout> layoutOf(std::string_view fileName)
{
    if (fileName.find(".evm") != std::string_view::npos)
        return EvolutionLayout::FixedColumns;
    if (fileName.find(".ev2") != std::string_view::npos)
        return EvolutionLayout::Sections;
    return std::nullopt;
}

void EVM::Contruct()
{
    const std::optional<EvolutionLayout> layout = layoutOf(FileName);
    if (!layout)
        return;
    EVM contents;
    readContents(path(), *layout == EvolutionLayout::FixedColumns ? readEvm : readEv2, contents);
    takeFileContents(contents);
}

void EVM::contructFromSemicolonFile()
{
    EVM contents;
    readContents(path(), readSemicolonTable, contents);
    takeFileContents(contents);
}

void EVM::PrintEVM(std::string_view path) const
{
    writeFile(path, encodeText(evmText(*this)));
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
}

void EVM::takeFileContents(EVM& source)
{
    takeContents(source);
    m_paramOfFile = Param.editable();
}

} // namespace tarsil
