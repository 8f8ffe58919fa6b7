#pragma once

#include "explorer/EvolutionNodes.h"
#include "explorer/EvolutionWarnings.h"
#include "explorer/ExplorerImages.h"
#include "explorer/WorkspaceNodes.h"

#include <QPoint>
#include <QWidget>

#include <functional>
#include <optional>
#include <vector>

class QToolBar;
class QTreeWidget;

namespace tarsil {

class Document;
class EvmPlot;
class LabelDelegate;
class PlotNodes;
class UserInterface;
class wndEvolPlot;

/// The window "Modal Evolutions Explorer": the document as a tree with a toolbar. It shows the
/// texts of the workspace, the loaded evolutions and the plots. What needs files goes up as a
/// signal.
class wndEvolExplorer : public QWidget
{
    Q_OBJECT

public:
    /// All three must outlive the window.
    wndEvolExplorer(Document& document, wndEvolPlot& plots, UserInterface& user,
                    QWidget* parent = nullptr);
    ~wndEvolExplorer() override;

    /// Adds nodes for the evolutions that were loaded since the last call, and opens their folder.
    /// Their files are checked later, when the user waits for nothing; the node shows warnings.
    void FillEvolsNode();

    /// Makes the selected evolution the reference evolution; the user is told when there is none.
    void SetAsRef();

    /// The evolution of the selected node or of one above it; null otherwise.
    EVM* selectedEvolution() const;

    /// The evolution that the selected node itself stands for; null otherwise.
    EVM* evolutionOfSelectedNode() const;

    /// Takes the label that is being edited as it stands, as Enter does, and closes its editor.
    void commitEdits();

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
    void followDocument();
    void run(const std::function<void()>& action);
    void runCommand(const std::function<void()>& action);

    void remove_Click();
    void select_Click();
    void addPlot_Click();
    void copyPlot_Click();
    void removePlot_Click();
    void showNode(const EvmPlot& plot);

    std::vector<EVM*> evolutionsToSelect() const;

    void nodeActivated(QTreeWidgetItem* node);
    void rename(QTreeWidgetItem& node, const QString& text);
    void renamePlot(EvmPlot& plot, const QString& text);
    void changeParameter(EVM& evolution, EvolutionValue value, const QString& text);
    std::optional<float> machOf(const QString& text);
    void forget(const std::vector<EVM*>& evolutions);
    void showReference(EVM* before, EVM* now);

    Document& m_document;
    wndEvolPlot& m_plotWindow;
    UserInterface& m_user;
    ExplorerImages m_images;
    QToolBar* m_toolBar;
    QTreeWidget* m_tree;
    LabelDelegate* m_labels;
    WorkspaceNodes m_workspace;
    EvolutionNodes m_evolutions;
    EvolutionWarnings m_warnings;
    PlotNodes* m_plots;
};

} // namespace tarsil
