// SPDX-License-Identifier: Apache-2.0
#include "batch/BatchRun.h"

#include "base/files/PathNames.h"
#include "base/text/TextCodec.h"
#include "base/user/RunTimeError.h"
#include "formats/EvolutionFile.h"
#include "formats/FormatTable.h"

#include <cerrno>
#include <filesystem>
#include <ostream>
#include <system_error>

namespace tarsil::batch {

void BatchRun::complain(std::string_view message)
{
    m_err << "tarsil-batch: " << printableText(message) << '\n';
}

EVM& BatchRun::open(const std::string& path)
{
    const FilePath file = resolvePath(path);
    m_names.emplace_back(shownPath(joinPath(file.folder, file.name)), path);
    const bool hasFormat = findFormat(file.name) != nullptr;
    if (!hasFormat && !fileExists(path))
        throw fileError(ENOENT, "tarsil-batch", path);
    if (!hasFormat)
        throw Failure(path + ": a modal evolution has " + formatExtensions("or")
                      + " in its name, and a workspace .tsw at its end");
    return *m_evolutions.emplace_back(openEvolution(path));
}

std::string BatchRun::readable(std::string message) const
{
    for (const auto& [stored, given] : m_names) {
        std::size_t start = message.find(stored);
        while (start != std::string::npos) {
            message.replace(start, stored.size(), given);
            start = message.find(stored, start + given.size());
        }
    }
    return message;
}

void refuseOutputOverInput(const std::string& output, const std::string& input)
{
    std::error_code ignored;
    if (std::filesystem::equivalent(nativePath(output), nativePath(input), ignored))
        throw Failure(output + " is one of the files to read; choose another output");
}

std::string caseTextOf(const EVM& evolution)
{
    std::string text;
    for (const KeyedTexts::Entry& legend : evolution.Param.legends)
        text.append(text.empty() ? "" : "; ").append(legend.text);
    return text.empty() ? evolution.FileName : text;
}

} // namespace tarsil::batch
