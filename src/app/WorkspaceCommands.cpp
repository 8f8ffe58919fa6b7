// SPDX-License-Identifier: Apache-2.0
#include "app/WorkspaceCommands.h"

#include "app/LeftOutRows.h"
#include "base/files/PathNames.h"
#include "base/text/ShortList.h"
#include "base/user/ErrorGuard.h"
#include "base/user/UserInterface.h"
#include "base/user/UserName.h"
#include "document/Document.h"
#include "document/RecoveryCopy.h"
#include "formats/EvolutionLoader.h"
#include "vgfplot/EvmPlot.h"

#include <QString>

#include <cstddef>
#include <exception>
#include <filesystem>
#include <system_error>

namespace tarsil {

namespace {

namespace fs = std::filesystem;

/// Appends the extension of workspaces unless the path has it. Any other extension is part of the
/// name ("wing m0.40"); without ".tsw" no dialog would list the file.
std::string withExtension(const std::string& path)
{
    const QString extension = QStringLiteral(".tsw");
    return QString::fromStdString(path).endsWith(extension, Qt::CaseInsensitive) ? path
                                                                                 : path + ".tsw";
}

/// "Header of [PLOT1], Legend of [PLOT2]".
std::string keysOf(const std::vector<LongValue>& values)
{
    std::string keys;
    for (const LongValue& value : values)
        keys += (keys.empty() ? "" : ", ") + value.key + " of [" + value.section + "]";
    return keys;
}

/// A note about values longer than the format allows, to precede the note about the file.
std::string noteOf(const std::vector<LongValue>& values)
{
    return values.empty() ? std::string()
                          : keysOf(values) + (values.size() == 1 ? " is" : " are")
            + " longer than 1023 characters, the limit of the format: the rest will be cut when "
              "the workspace is opened. ";
}

} // namespace

bool WorkspaceCommands::mayLeave()
{
    if (!m_document.isChanged())
        return true;
    switch (m_userInterface.askToSave(
        "The workspace has changed since it was last saved. Save the changes?", "Tarsil")) {
    case Unsaved::Save:
        return SaveWorkSpace();
    case Unsaved::Discard:
        return true;
    case Unsaved::Cancel:
        break;
    }
    return false;
}

void WorkspaceCommands::New()
{
    guarded(m_userInterface, mdlWorkSpace::module, [this] {
        if (!mayLeave())
            return;
        m_document.startNew();
    });
}

void WorkspaceCommands::OpenWorkSpace()
{
    guarded(m_userInterface, mdlWorkSpace::module, [this] {
        if (!mayLeave())
            return;
        const std::vector<std::string> chosen =
            mdlMain::OpenFileDialog(m_userInterface, mdlWorkSpace::filter, 1);
        if (!chosen.empty())
            open(chosen.front());
    });
}

void WorkspaceCommands::OpenWorkSpace(const std::string& path)
{
    guarded(m_userInterface, mdlWorkSpace::module, [&] {
        std::string plain = path;
        std::erase(plain, '"');
        open(plain);
    });
}

bool WorkspaceCommands::recover(RecoveryCopy& copy)
{
    const std::optional<std::string> path = copy.takeOver();
    if (!path)
        return false;
    if (m_userInterface.confirm("Tarsil ended before a workspace was saved. Open the copy that was "
                                "made of it, at most a minute before?",
                                "Tarsil")) {
        guarded(m_userInterface, mdlWorkSpace::module,
                [&] { show(m_document.recover(*path, m_userInterface)); });
        if (!m_document.isSaved())
            return true;
        copy.release(); // nothing of it is open
    } else if (m_userInterface.confirm("Remove the copy of the unsaved workspace? Otherwise the "
                                       "next start offers it again.",
                                       "Tarsil")) {
        copy.remove();
    } else {
        copy.release();
    }
    return false;
}

void WorkspaceCommands::showNotOpened(const std::vector<std::string>& files)
{
    if (files.empty())
        return;
    std::vector<std::string> lines;
    lines.reserve(files.size());
    for (const std::string& file : files)
        lines.push_back(shownPath(file));
    m_userInterface.showMessage("The copy of the unsaved workspace is open. These files of the "
                                "command line were not opened:\n"
                                    + shortList(lines, mostFileLines),
                                "Tarsil", MessageIcon::Exclamation);
}

void WorkspaceCommands::open(const std::string& path)
{
    show(m_document.open(path, m_userInterface));
}

/// Shows what could be opened before the failure is reported.
void WorkspaceCommands::show(const OpenedWorkspace& opened)
{
    if (!opened.namesakes.empty())
        showNamesakes(opened.namesakes);
    if (!opened.cutValues.empty())
        m_userInterface.showNote(keysOf(opened.cutValues)
                                 + (opened.cutValues.size() == 1 ? " is" : " are")
                                 + " cut: the limit of the format is 1023 characters.");
    if (opened.failure != nullptr)
        std::rethrow_exception(opened.failure);
}

void WorkspaceCommands::showNamesakes(const std::vector<Namesake>& namesakes)
{
    std::vector<std::string> lines;
    lines.reserve(namesakes.size());
    for (const Namesake& one : namesakes)
        lines.push_back(shownPath(one.stored) + ": " + shownPath(one.taken));
    const std::string text =
        "These modal evolutions are not at their paths. Files of the same name were used, "
        "which may belong to other runs:";
    m_userInterface.showMessage(text + "\n" + shortList(lines, mostFileLines), "Tarsil",
                                MessageIcon::Exclamation);
}

bool WorkspaceCommands::SaveWorkSpace()
{
    bool isWritten = false;
    guarded(m_userInterface, mdlWorkSpace::module, [&] {
        const std::vector<EvmPlot*> plots = m_document.plots().all();
        showLeftOutRows({plots.begin(), plots.end()}, "the workspace", m_userInterface);
        const FileQuestion question {std::string(mdlWorkSpace::filter), 1, false, m_document.path(),
                                     false};
        const auto answer = m_userInterface.askSaveFile(question);
        if (!answer)
            return;
        const std::string path = withExtension(*answer);
        if (fileExists(path) && !mayReplace(path))
            return;
        write(path);
        isWritten = true;
    });
    return isWritten;
}

/// What could not be opened is lost when its file is replaced.
bool WorkspaceCommands::mayReplace(const std::string& path) const
{
    std::error_code unknown;
    const bool losesParts = m_document.isPartial()
        && fs::equivalent(nativePath(path), nativePath(m_document.path()), unknown);
    return m_userInterface.confirm("The file '" + resolvePath(path).name
                                       + "' already exists. Do you want to replace it?",
                                   "Tarsil")
        && (!losesParts
            || m_userInterface.confirm(
                "Some of this workspace could not be opened as it is in the file: evolutions that "
                "are not there, with their curves, texts that were cut, or damaged parts. They "
                "will be lost from the file. Replace it all the same?",
                "Tarsil"));
}

void WorkspaceCommands::write(const std::string& path)
{
    const WrittenWorkspace written = m_document.save(path, userName());
    m_userInterface.showNote(noteOf(written.longValues) + "The workspace is in " + wholePath(path));
}

} // namespace tarsil
