// SPDX-License-Identifier: Apache-2.0
#include "app/RecentFiles.h"

#include "base/files/PathNames.h"
#include "document/Document.h"
#include "model/EVM.h"

#include <QDate>
#include <QFontMetrics>
#include <QMenu>

#include <algorithm>
#include <utility>

namespace tarsil {

namespace {

constexpr int widestEntry = 60; ///< in average characters

/// The number of the entry as its key, and the path shortened in the middle.
QString captionOf(std::size_t index, const QString& path, const QMenu& menu)
{
    const QFontMetrics metrics(menu.font());
    QString shown =
        metrics.elidedText(path, Qt::ElideMiddle, widestEntry * metrics.averageCharWidth());
    shown.replace(u'&', QStringLiteral("&&"));
    return QStringLiteral("&%1  %2").arg((index + 1) % 10).arg(shown);
}

} // namespace

RecentFiles::RecentFiles(Document& document, OptionsStore store, QWidget* menuParent)
    : QObject(menuParent), m_document(document), m_store(std::move(store)),
      m_workspaces(makeMenu("recentWorkspaces", tr("&Recent Workspaces"), remembered::workspaces,
                            &RecentFiles::workspaceChosen, menuParent)),
      m_evolutions(makeMenu("recentEvolutions", tr("Re&cent Modal Evolutions"),
                            remembered::evolutions, &RecentFiles::evolutionChosen, menuParent))
{
    connect(&document.evolutions(), &EvolutionList::added, this, &RecentFiles::addEvolutions);
}

QMenu* RecentFiles::makeMenu(const char* name, const QString& caption, const RememberedList& list,
                             Signal chosen, QWidget* parent)
{
    auto* const menu = new QMenu(caption, parent);
    menu->setObjectName(QString::fromLatin1(name));
    menu->setToolTipsVisible(true);
    connect(menu, &QMenu::aboutToShow, this,
            [this, menu, list, chosen] { fill(*menu, list, chosen); });
    return menu;
}

/// Another program may have added files since the menu was last shown.
void RecentFiles::fill(QMenu& menu, const RememberedList& list, Signal chosen)
{
    menu.clear();
    const std::vector<RememberedPair> files = m_store.pairsIfReadable(list);
    for (std::size_t i = 0; i < files.size(); ++i) {
        const QString& path = files[i].key;
        QAction* const action = menu.addAction(captionOf(i, path, menu));
        action->setToolTip(tr("%1, last opened on %2").arg(path, files[i].value));
        connect(action, &QAction::triggered, this,
                [this, path, chosen] { (this->*chosen)(path.toStdString()); });
    }
    if (files.empty())
        menu.addAction(tr("None yet"))->setEnabled(false);
}

void RecentFiles::followWorkspace()
{
    if (m_document.path() == m_workspace)
        return;
    m_workspace = m_document.path();
    if (!m_workspace.empty())
        add(remembered::workspaces, {m_workspace});
}

/// The last of the added files is the newest.
void RecentFiles::addEvolutions(const std::vector<EVM*>& added)
{
    std::vector<std::string> paths;
    for (auto evolution = added.rbegin();
         evolution != added.rend() && paths.size() < remembered::evolutions.most; ++evolution)
        paths.push_back(wholePath((*evolution)->path()));
    add(remembered::evolutions, paths);
}

void RecentFiles::add(const RememberedList& list, const std::vector<std::string>& paths)
{
    const QString today = QDate::currentDate().toString(Qt::ISODate);
    std::vector<RememberedPair> pairs;
    pairs.reserve(paths.size());
    for (const std::string& path : paths)
        pairs.push_back({QString::fromStdString(wholePath(path)), today});
    m_store.rememberQuietly(list, pairs);
}

} // namespace tarsil
