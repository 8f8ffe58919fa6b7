// SPDX-License-Identifier: Apache-2.0
#include "formats/EvolutionFile.h"

#include "base/files/AtomicFile.h"
#include "base/files/FileLines.h"
#include "base/files/PathNames.h"
#include "base/files/TextStream.h"
#include "base/text/TextCodec.h"
#include "base/user/RunTimeError.h"
#include "formats/EvmWriter.h"
#include "formats/FormatTable.h"
#include "formats/SemicolonReader.h"
#include "model/EVM.h"

#include <utility>

namespace tarsil {

namespace {

using Reader = EvolutionFormat::Evolutions (*)(TextStream& stream);

/// If another program has changed the file meanwhile, that is reported instead of a fault in its
/// contents.
void fillFromFile(EVM& evolution, Reader read)
{
    const std::string path = evolution.path();
    FileLines file(path);
    EvolutionFormat::Evolutions contents;
    try {
        TextStream stream(file, shownPath(path));
        contents = read(stream);
    } catch (const RunTimeError&) {
        file.requireUnchanged();
        throw;
    }
    file.requireUnchanged();
    evolution.takeFileContents(*contents.front());
}

} // namespace

void Contruct(EVM& evolution)
{
    if (const EvolutionFormat* const format = findFormat(evolution.FileName))
        fillFromFile(evolution, format->read);
}

void contructFromSemicolonFile(EVM& evolution)
{
    fillFromFile(evolution, readOne<readSemicolonTable>);
}

void PrintEVM(const EVM& evolution, std::string_view path)
{
    writeFile(path, encodeText(evmText(evolution)));
}

std::unique_ptr<EVM> openEvolution(std::string_view path)
{
    auto evolution = std::make_unique<EVM>();
    FilePath file = resolvePath(path);
    evolution->Folder = std::move(file.folder);
    evolution->FileName = std::move(file.name);
    Contruct(*evolution);
    return evolution;
}

} // namespace tarsil
