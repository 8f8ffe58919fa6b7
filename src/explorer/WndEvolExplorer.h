#pragma once

#include "explorer/EvolutionMarks.h"
#include "explorer/EvolutionNodes.h"
#include "explorer/ExplorerImages.h"
#include "explorer/WorkspaceNodes.h"

#include <QPoint>
#include <QWidget>

#include <functional>
#include <vector>

class QToolBar;
class QTreeWidget;

namespace tarsil {

class EvmPlot;
class LabelDelegate;
class PlotNodes;
class Session;
class UserInterface;
class wndEvolPlot;

/// The window "Modal Evolutions Explorer": the workspace as a tree with a toolbar. The tree is the
/// workspace's description in memory; under it stand the loaded evolutions and the plots. What
/// needs files goes up as a signal.
class wndEvolExplorer : public QWidget
{
    Q_OBJECT

public:
    /// All three must outlive the window.
    wndEvolExplorer(Session& session, wndEvolPlot& plots, UserInterface& user,
                    QWidget* parent = nullptr);
    ~wndEvolExplorer() override;

    /// Adds nodes for the evolutions that were loaded since the last call, and opens their folder.
    /// Their files are looked through later, when the user waits for nothing; what is doubtful then
    /// marks the node.
    void FillEvolsNode();

    /// Makes the selected evolution the reference evolution; the user is told when there is none.
    void SetAsRef();

    /// Shown bold in the tree. Null when there is none.
    EVM* referenceEvolution() const { return m_reference; }
    void setReference(EVM* evolution);

    /// The evolution of the selected node or of one above it; null otherwise.
    EVM* selectedEvolution() const;

    /// The evolution that the selected node itself stands for; null otherwise.
    EVM* evolutionOfSelectedNode() const;

    /// Takes the label that is being edited as it stands, as Enter does, and closes its editor.
    void commitEdits();

    /// A new, untitled workspace: no evolutions (those of the session end), one empty plot, and the
    /// tree as it was in the beginning. Nothing is asked.
    void startNew();

    // The texts of the tree that a workspace keeps. The name is that of the root.
    QString workspaceName() const;
    void setWorkspaceName(const QString& name);
    QString description() const;
    void setDescription(const QString& text);
    QString dateCreated() const;
    void setDateCreated(const QString& text);
    QString dateModified() const;
    void setDateModified(const QString& text);

    QSize sizeHint() const override;

Q_SIGNALS:
    // The buttons that need files, or a question first.
    void newWanted();
    void openWanted();
    void saveWanted();
    void addWanted();

    /// The user wants the menu of the tree, by the right button or by the keyboard.
    void menuRequested(QPoint globalPosition);

private:
    using Handler = void (wndEvolExplorer::*)();

    /// One button of the toolbar; its image is named like its key.
    struct Button
    {
        const char* key;
        const char* toolTip;
        Handler handler;
        bool endsGroup = false;
    };

    static std::vector<Button> buttonTable();

    void makeToolbar();
    void makeTree();
    void run(const std::function<void()>& action);
    void runCommand(const std::function<void()>& action);

    void remove_Click();
    void select_Click();
    void addPlot_Click();
    void copyPlot_Click();
    void removePlot_Click();
    void showNode(const EvmPlot& plot);

    std::vector<EVM*> evolutionsToSelect() const;
    std::vector<EvmPlot*> takeRows(const EVM& evolution);
    std::vector<EvmPlot*> forget(EVM& evolution);
    void drawAgain(const std::vector<EvmPlot*>& plots);
    void emptyPlots();

    void nodeActivated(QTreeWidgetItem* node);
    void rename(QTreeWidgetItem& node, const QString& text);
    void renamePlot(EvmPlot& plot, const QString& text);
    void changeParameter(EVM& evolution, EvolutionValue value, QTreeWidgetItem& node,
                         const QString& text);
    bool changeMach(EVM& evolution, const QString& text);

    Session& m_session;
    wndEvolPlot& m_plotWindow;
    UserInterface& m_user;
    ExplorerImages m_images;
    QToolBar* m_toolBar;
    QTreeWidget* m_tree;
    LabelDelegate* m_labels;
    WorkspaceNodes m_workspace;
    EvolutionNodes m_evolutions;
    EvolutionMarks m_marks;
    PlotNodes* m_plots;
    EVM* m_reference = nullptr;
};

} // namespace tarsil
