// SPDX-License-Identifier: Apache-2.0
#include "explorer/WndEvolExplorer.h"

#include "base/files/PathNames.h"
#include "base/user/ErrorGuard.h"
#include "base/user/UserInterface.h"
#include "document/Document.h"
#include "explorer/ExplorerNode.h"
#include "explorer/LabelDelegate.h"
#include "explorer/PlotNodes.h"
#include "model/EVM.h"
#include "plotwindow/FilterLine.h"
#include "vgfplot/EvmPlot.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QSet>
#include <QToolBar>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace tarsil {

wndEvolExplorer::wndEvolExplorer(Document& document, wndEvolPlot& plots, UserInterface& user,
                                 QWidget* parent)
    : QWidget(parent), m_document(document), m_plotWindow(plots), m_user(user),
      m_toolBar(new QToolBar(this)), m_filter(new FilterLine(this)), m_tree(new QTreeWidget(this)),
      m_labels(new LabelDelegate(m_tree)), m_workspace(*m_tree, m_images),
      m_evolutions(m_workspace.evolutions(), m_images),
      m_plots(new PlotNodes(m_workspace.plots(), document.plots(), m_images, this))
{
    setObjectName(QStringLiteral("wndEvolExplorer"));
    setWindowTitle(QStringLiteral("Modal Evolutions Explorer"));
    setAccessibleName(windowTitle());
    makeToolbar();
    makeTree();
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    auto* const top = new QHBoxLayout; // beside the buttons, so that the tree keeps its height
    top->addWidget(m_toolBar);
    top->addWidget(m_filter, 1);
    layout->addLayout(top);
    layout->addWidget(m_tree);
    setFocusProxy(m_tree);
    m_filter->setObjectName(QStringLiteral("txtEvolutionFilter"));
    connect(m_filter, &FilterLine::filterChanged, this, &wndEvolExplorer::applyFilter);
    followDocument();
}

void wndEvolExplorer::followDocument()
{
    connect(&m_warnings, &EvolutionWarnings::found, this,
            [this](EVM* evolution, const QString& text) { showWarnings(*evolution, text); });
    const auto showTexts = [this] { m_workspace.show(m_document.texts()); };
    connect(&m_document, &Document::textsChanged, this, showTexts);
    connect(&m_document, &Document::startedNew, this, [this] { m_workspace.closeFolders(); });
    // A new plot is not activated, so only its node shows that it exists.
    connect(&m_document.plots(), &PlotList::added, this,
            [this] { m_workspace.plots().setExpanded(true); });
    const EvolutionList& evolutions = m_document.evolutions();
    connect(&evolutions, &EvolutionList::added, this, &wndEvolExplorer::FillEvolsNode);
    connect(&evolutions, &EvolutionList::aboutToBeRemoved, this, &wndEvolExplorer::forget);
    connect(&evolutions, &EvolutionList::referenceChanged, this, &wndEvolExplorer::showReference);
    connect(&evolutions, &EvolutionList::parametersChanged, this, [this](EVM* evolution) {
        m_evolutions.showParameters(*evolution);
        applyFilter();
    });
    connect(&evolutions, &EvolutionList::pointsChanged, this,
            [this](EVM* evolution) { m_evolutions.showModifications(*evolution); });
    showTexts();
    FillEvolsNode();
    showReference(nullptr, evolutions.reference());
}

/// Deletes the nodes while what they refer to still exists.
wndEvolExplorer::~wndEvolExplorer()
{
    delete m_plots;
}

QSize wndEvolExplorer::sizeHint() const
{
    return {320, 420};
}

void wndEvolExplorer::makeTree()
{
    m_tree->setObjectName(QStringLiteral("tvwEvolExplorer"));
    m_tree->setAccessibleName(windowTitle());
    m_tree->setHeaderHidden(true);
    m_tree->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_tree->setTextElideMode(Qt::ElideMiddle); // names of runs differ at their ends
    m_tree->installEventFilter(this);
    m_tree->setIconSize({16, 16});
    m_tree->setUniformRowHeights(true); // faster with a thousand evolutions
    m_tree->setExpandsOnDoubleClick(true);
    m_tree->setEditTriggers(QAbstractItemView::EditKeyPressed | QAbstractItemView::SelectedClicked);
    m_tree->setItemDelegate(m_labels);
    connect(m_labels, &LabelDelegate::renamed, this,
            [this](const QModelIndex& index, const QString& text) {
                runCommand([&] { rename(*m_tree->itemFromIndex(index), text); });
            });
    connect(m_tree, &QTreeWidget::itemActivated, this, &wndEvolExplorer::nodeActivated);
    connect(m_tree, &QTreeWidget::itemChanged, this, [this](const QTreeWidgetItem* node) {
        if (taggedEvolution(node) != nullptr)
            Q_EMIT ticksChanged();
    });
    m_tree->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(m_tree, &QWidget::customContextMenuRequested, this, [this](QPoint position) {
        Q_EMIT menuRequested(m_tree->viewport()->mapToGlobal(position));
    });
}

void wndEvolExplorer::run(const std::function<void()>& action)
{
    guarded(m_user, "wndEvolExplorer", action);
}

/// Runs a command of the user.
void wndEvolExplorer::runCommand(const std::function<void()>& action)
{
    m_user.beginCommand();
    run(action);
}

void wndEvolExplorer::FillEvolsNode()
{
    const std::vector<EVM*> added = m_evolutions.fill(m_document.evolutions());
    for (EVM* const evolution : added)
        m_warnings.add(*evolution);
    if (added.empty())
        return;
    m_workspace.evolutions().setExpanded(true);
    applyFilter();
}

void wndEvolExplorer::SetAsRef()
{
    EVM* const evolution = selectedEvolution();
    if (evolution != nullptr)
        m_document.evolutions().setReference(evolution);
    else
        m_user.showMessage("Please select a modal evolution.", "Tarsil", MessageIcon::Exclamation);
}

void wndEvolExplorer::showReference(EVM* before, EVM* now)
{
    if (QTreeWidgetItem* const node = m_evolutions.nodeOf(before))
        undistinguish(*node);
    if (QTreeWidgetItem* const node = m_evolutions.nodeOf(now))
        distinguish(*node, QStringLiteral("reference evolution"));
}

void wndEvolExplorer::forget(const std::vector<EVM*>& evolutions)
{
    m_warnings.forget(evolutions);
    m_evolutions.remove(evolutions);
}

/// The tool tip also has the path, because a long name is shortened.
void wndEvolExplorer::showWarnings(EVM& evolution, const QString& warnings)
{
    QTreeWidgetItem& node = *m_evolutions.nodeOf(&evolution);
    warn(node, m_images, warnings);
    setPlainToolTip(node, QString::fromStdString(shownPath(evolution.path())) + u'\n' + warnings);
    applyFilter();
}

void wndEvolExplorer::applyFilter()
{
    m_evolutions.applyFilter(m_filter->filter());
}

void wndEvolExplorer::tickShown(bool isTicked)
{
    m_evolutions.tickShown(isTicked);
}

/// The blank ticks all selected evolutions as the current one.
bool wndEvolExplorer::eventFilter(QObject* watched, QEvent* event)
{
    if (!m_images.isLoaded() && event->type() == QEvent::Paint)
        QMetaObject::invokeMethod(this, &wndEvolExplorer::loadImages, Qt::QueuedConnection);
    const bool isBlank = watched == m_tree && event->type() == QEvent::KeyPress
        && static_cast<const QKeyEvent*>(event)->key() == Qt::Key_Space;
    if (!isBlank || m_tree->selectedItems().size() < 2)
        return QWidget::eventFilter(watched, event);
    toggleSelected();
    return true;
}

/// Loads the images after the first frame of the window, and paints all that show them again.
void wndEvolExplorer::loadImages()
{
    m_images.load();
    for (QWidget* const child : findChildren<QWidget*>())
        child->update();
}

void wndEvolExplorer::toggleSelected()
{
    const QTreeWidgetItem* const current = m_tree->currentItem();
    const bool isTicked = current != nullptr && current->checkState(0) == Qt::Checked;
    for (QTreeWidgetItem* const node : m_tree->selectedItems()) {
        if (taggedEvolution(node) != nullptr)
            node->setCheckState(0, isTicked ? Qt::Unchecked : Qt::Checked);
    }
}

/// The current node if it is selected, otherwise the first selected one.
QTreeWidgetItem* wndEvolExplorer::selectedNode() const
{
    QTreeWidgetItem* const current = m_tree->currentItem();
    if (current != nullptr && current->isSelected())
        return current;
    const QList<QTreeWidgetItem*> selected = m_tree->selectedItems();
    return selected.isEmpty() ? nullptr : selected.front();
}

EVM* wndEvolExplorer::selectedEvolution() const
{
    return m_evolutions.evolutionAt(selectedNode());
}

EVM* wndEvolExplorer::evolutionOfSelectedNode() const
{
    return taggedEvolution(selectedNode());
}

std::vector<EVM*> wndEvolExplorer::selectedEvolutions() const
{
    QSet<const EVM*> selected;
    for (const QTreeWidgetItem* const node : m_tree->selectedItems())
        selected.insert(m_evolutions.evolutionAt(node));
    std::vector<EVM*> evolutions;
    for (const auto& evolution : m_document.evolutions().all()) {
        if (selected.contains(evolution.get()))
            evolutions.push_back(evolution.get());
    }
    return evolutions;
}

} // namespace tarsil
