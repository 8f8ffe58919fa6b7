// SPDX-License-Identifier: Apache-2.0

// The document as a workspace file: opening, saving, unsaved changes.

#include "base/files/AtomicFile.h"
#include "base/files/PathNames.h"
#include "base/text/ShortList.h"
#include "base/user/BusyStatus.h"
#include "base/user/RunTimeError.h"
#include "base/user/UserInterface.h"
#include "document/DateText.h"
#include "document/Document.h"
#include "document/WorkspaceSource.h"
#include "formats/EvolutionLoader.h"
#include "vgfplot/EvmPlot.h"
#include "vgfplot/EvolutionRecords.h"
#include "vgfplot/PlotRecords.h"

#include <QDateTime>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <utility>

namespace tarsil {

namespace {

QString workspaceNameOf(const std::string& path)
{
    QString name = QString::fromStdString(resolvePath(path).name);
    return name.remove(QStringLiteral(".tsw"));
}

/// Runs an action; keeps its exception unless `failure` has one already.
void keepFirstFailure(std::exception_ptr& failure, const std::function<void()>& action)
{
    try {
        action();
    } catch (...) {
        if (failure == nullptr)
            failure = std::current_exception();
    }
}

/// Reads a workspace and finds its files. A search shows its progress.
WorkspaceSource sourceOf(const std::string& path, UserInterface& user)
{
    std::optional<BusyStatus> status;
    return readWorkspaceSource(path, [&](std::size_t done, std::size_t total) {
        if (!status)
            status.emplace(user, "Find Moved Files. Please Wait ...");
        const bool isWanted = user.showProgress(done, total);
        if (!isWanted)
            user.showNote("Stopped: files that are not at their paths were not searched for");
        return isWanted;
    });
}

/// Whether a record is empty. A number of files without their paths does not count.
bool holdsNothing(const WorkspaceRecord& record)
{
    return record.plots.empty()
        && std::all_of(record.files.begin(), record.files.end(),
                       [](const std::string& file) { return file.empty(); });
}

} // namespace

/// Commits the text that is being typed into a box.
void Document::commitEdits()
{
    for (EvmPlot* const plot : m_plots.all())
        plot->commitEdits();
}

WorkspaceRecord Document::record() const
{
    WorkspaceRecord record;
    record.description = m_texts.description.toStdString();
    record.dateCreated = m_texts.dateCreated.toStdString();
    record.dateModified = m_texts.dateModified.toStdString();
    std::vector<const EVM*> evolutions;
    for (const auto& evolution : m_evolutions.all()) {
        evolutions.push_back(evolution.get());
        record.files.push_back(evolution->path());
        if (evolution.get() == m_evolutions.reference())
            record.reference = static_cast<std::int16_t>(record.files.size());
    }
    record.edited = editedRecordsOf(evolutions);
    for (const EvmPlot* const plot : m_plots.all())
        record.plots.push_back(recordOf(*plot, evolutions));
    return record;
}

/// The record without the positions of boxes that follow from the layout: a change of the window's
/// size is not a change of the document.
WorkspaceRecord Document::state() const
{
    WorkspaceRecord state = record();
    const std::vector<EvmPlot*> plots = m_plots.all();
    for (std::size_t i = 0; i < plots.size(); ++i) {
        state.plots[i].header.position.reset();
        if (!plots[i]->Legend().wasMoved())
            state.plots[i].legend.position.reset();
        if (!plots[i]->Mechanism().wasMoved())
            state.plots[i].mechanism.position.reset();
    }
    return state;
}

bool Document::isChanged()
{
    commitEdits();
    return !isSaved();
}

void Document::markSaved()
{
    m_saved = state();
}

OpenedWorkspace Document::open(const std::string& path, UserInterface& user)
{
    WorkspaceSource source = sourceOf(path, user);
    OpenedWorkspace opened;
    if (source.reading.error)
        opened.failure = std::make_exception_ptr(*source.reading.error);
    if (opened.failure != nullptr && holdsNothing(source.reading.record))
        std::rethrow_exception(opened.failure);
    opened.namesakes = std::move(source.namesakes);
    opened.cutValues = std::move(source.reading.cutValues);
    const WorkspaceRecord& record = source.reading.record;
    startNew();
    setTexts({workspaceNameOf(path), QString::fromStdString(record.description),
              QString::fromStdString(record.dateCreated),
              QString::fromStdString(record.dateModified)});
    m_path = shownPath(path);
    const std::vector<EVM*> evolutions = loadListed(source, user);
    opened.failure = applyPlots(record.plots, evolutions, opened.failure);
    m_plots.activate(&m_plots.first());
    m_isPartial = opened.failure != nullptr || !opened.cutValues.empty()
        || !opened.namesakes.empty()
        || std::find(evolutions.begin(), evolutions.end(), nullptr) != evolutions.end();
    markSaved();
    m_history.clear();
    return opened;
}

OpenedWorkspace Document::recover(const std::string& copy, UserInterface& user)
{
    OpenedWorkspace opened = open(copy, user);
    WorkspaceTexts texts = m_texts;
    texts.name = textsOfNewWorkspace().name;
    setTexts(texts);
    m_path.clear();
    m_isPartial = false;
    m_saved = WorkspaceRecord();
    return opened;
}

/// The evolutions in the order of the saved list, null for a missing one.
std::vector<EVM*> Document::loadListed(const WorkspaceSource& source, UserInterface& user)
{
    const WorkspaceRecord& record = source.reading.record;
    LoadedEvolutions loaded = mdlMain::loadListedEvolutions(m_evolutions.all(), source.files, user);
    applyEdited(record.edited, loaded.listed);
    m_evolutions.add(std::move(loaded.added));
    if (record.reference > 0)
        m_evolutions.setReference(loaded.listed.at(static_cast<std::size_t>(record.reference - 1)));
    return std::move(loaded.listed);
}

/// Creates and draws the plots as far as possible. Returns the first failure, starting with
/// `failure`; without any, error 9 with all series that are left out.
std::exception_ptr Document::applyPlots(const std::vector<PlotRecord>& records,
                                        const std::vector<EVM*>& evolutions,
                                        std::exception_ptr failure)
{
    std::vector<std::string> faults;
    for (std::size_t i = 0; i < records.size(); ++i) {
        EvmPlot& plot = plotFor(i, QString::fromStdString(records[i].caption));
        keepFirstFailure(failure, [&] {
            const std::vector<std::string> more = applyRecord(records[i], evolutions, plot);
            faults.insert(faults.end(), more.begin(), more.end());
        });
        keepFirstFailure(failure, [&plot] { plot.plot(); });
    }
    if (!faults.empty())
        keepFirstFailure(failure, [&faults] {
            throw RunTimeError(ErrorNumber::SubscriptOutOfRange, "mdlWorkSpace",
                               shortList(faults, mostRowLines));
        });
    return failure;
}

/// The first plot always exists and becomes the first of the file; the others are added.
EvmPlot& Document::plotFor(std::size_t index, const QString& caption)
{
    if (index > 0)
        return m_plots.add(caption);
    m_plots.first().properties().setCaption(caption);
    return m_plots.first();
}

WrittenWorkspace Document::save(const std::string& path, const std::string& userName)
{
    commitEdits();
    Q_EMIT aboutToBeSaved();
    WorkspaceTexts texts = m_texts;
    texts.name = workspaceNameOf(path);
    texts.dateModified = dateText(QDateTime::currentDateTime());
    WorkspaceRecord saved = record();
    saved.dateModified = texts.dateModified.toStdString();
    WrittenWorkspace written = writeWorkspace(saved, userName);
    writeFile(path, written.bytes);
    setTexts(texts);
    m_path = shownPath(path);
    m_isPartial = false;
    markSaved();
    return written;
}

} // namespace tarsil
