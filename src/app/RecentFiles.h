// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "options/OptionsStore.h"

#include <QObject>

#include <string>
#include <vector>

class QMenu;

namespace tarsil {

class Document;
class EVM;

/// The menus "Recent Workspaces" and "Recent Evolutions": the files last opened or saved, newest
/// first, kept in the settings for the next start.
class RecentFiles : public QObject
{
    Q_OBJECT

public:
    /// `document` must outlive this object. The menus belong to `menuParent`.
    RecentFiles(Document& document, OptionsStore store, QWidget* menuParent);

    QMenu* workspaces() const { return m_workspaces; }
    QMenu* evolutions() const { return m_evolutions; }

    /// Adds the document's workspace, if it is new or another one than before.
    void followWorkspace();

Q_SIGNALS:
    void workspaceChosen(const std::string& path);
    void evolutionChosen(const std::string& path);

private:
    using Signal = void (RecentFiles::*)(const std::string&);

    QMenu* makeMenu(const char* name, const QString& caption, const RememberedList& list,
                    Signal chosen, QWidget* parent);
    void fill(QMenu& menu, const RememberedList& list, Signal chosen);
    void addEvolutions(const std::vector<EVM*>& added);
    void add(const RememberedList& list, const std::vector<std::string>& paths);

    Document& m_document;
    OptionsStore m_store;
    std::string m_workspace; ///< the workspace last added
    QMenu* m_workspaces;
    QMenu* m_evolutions;
};

} // namespace tarsil
