// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "explorer/EvolutionNodes.h"
#include "explorer/EvolutionWarnings.h"
#include "explorer/ExplorerImages.h"
#include "explorer/WorkspaceNodes.h"

#include <QKeySequence>
#include <QPoint>
#include <QWidget>

#include <functional>
#include <optional>
#include <vector>

class QToolBar;
class QTreeWidget;
class QTreeWidgetItem;

namespace tarsil {

class Document;
class EvmPlot;
class FilterLine;
class LabelDelegate;
class PlotNodes;
class UserInterface;
class wndEvolPlot;

/// The window "Modal Evolutions Explorer": the document as a tree with a toolbar. Shows the texts
/// of the workspace, the loaded evolutions and the plots. Commands that need files are signals.
class wndEvolExplorer : public QWidget
{
    Q_OBJECT

public:
    /// All three must outlive the window.
    wndEvolExplorer(Document& document, wndEvolPlot& plots, UserInterface& user,
                    QWidget* parent = nullptr);
    ~wndEvolExplorer() override;

    /// Adds nodes for the evolutions loaded since the last call and opens their folder. Their files
    /// are checked later, in idle time; warnings then appear at the nodes.
    void FillEvolsNode();

    /// Makes the selected evolution the reference evolution; shows a message when none is selected.
    void SetAsRef();

    /// The evolution of the selected node or of a parent of it; null otherwise. Of several selected
    /// nodes the current one counts.
    EVM* selectedEvolution() const;

    /// The evolution of the selected node itself; null otherwise.
    EVM* evolutionOfSelectedNode() const;

    /// The evolutions whose boxes are ticked, in their order.
    std::vector<EVM*> tickedEvolutions() const { return m_evolutions.ticked(); }

    /// The evolutions of all selected nodes or of parents of them, in load order.
    std::vector<EVM*> selectedEvolutions() const;

    /// Ticks or unticks the evolutions that the filter shows.
    void tickShown(bool isTicked);

    /// Shows the key of the command behind the button "Save" in its tool tip. The tool tips of the
    /// other buttons are required as they are.
    void showKeyOfSave(const QKeySequence& key);

    /// Accepts the label that is being edited, as Enter does, and closes its editor.
    void commitEdits();

    QSize sizeHint() const override;

Q_SIGNALS:
    // Buttons whose commands need files, or a question first.
    void newWanted();
    void openWanted();
    void saveWanted();
    void addWanted();

    /// The user has ticked or unticked evolutions, or ticked ones have come or gone.
    void ticksChanged();

    /// The user asks for the menu of the tree, by the right button or the keyboard.
    void menuRequested(QPoint globalPosition);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    using Handler = void (wndEvolExplorer::*)();

    /// A button of the toolbar. Its image has the name of its key.
    struct Button
    {
        const char* key;
        const char* toolTip;
        Handler handler;
        bool endsGroup = false;
    };

    static std::vector<Button> buttonTable();

    void makeToolbar();
    void addButton(const Button& button);
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
    void forget(const std::vector<EVM*>& evolutions);
    void showReference(EVM* before, EVM* now);
    void showWarnings(EVM& evolution, const QString& warnings);
    void applyFilter();
    void loadImages();
    void toggleSelected();
    QTreeWidgetItem* selectedNode() const;

    Document& m_document;
    wndEvolPlot& m_plotWindow;
    UserInterface& m_user;
    ExplorerImages m_images;
    QToolBar* m_toolBar;
    FilterLine* m_filter;
    QTreeWidget* m_tree;
    LabelDelegate* m_labels;
    WorkspaceNodes m_workspace;
    EvolutionNodes m_evolutions;
    EvolutionWarnings m_warnings;
    PlotNodes* m_plots;
};

} // namespace tarsil
