#include "explorer/WndEvolExplorer.h"

#include "base/user/ErrorGuard.h"
#include "base/user/UserInterface.h"
#include "document/Document.h"
#include "explorer/ExplorerNode.h"
#include "explorer/LabelDelegate.h"
#include "explorer/PlotNodes.h"
#include "model/EVM.h"
#include "vgfplot/EvmPlot.h"

#include <QToolBar>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace tarsil {

wndEvolExplorer::wndEvolExplorer(Document& document, wndEvolPlot& plots, UserInterface& user,
                                 QWidget* parent)
    : QWidget(parent), m_document(document), m_plotWindow(plots), m_user(user),
      m_toolBar(new QToolBar(this)), m_tree(new QTreeWidget(this)),
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
    layout->addWidget(m_toolBar);
    layout->addWidget(m_tree);
    setFocusProxy(m_tree);
    followDocument();
}

void wndEvolExplorer::followDocument()
{
    connect(&m_warnings, &EvolutionWarnings::found, this,
            [this](EVM* evolution, const QString& text) {
                warn(*m_evolutions.nodeOf(evolution), m_images, text);
            });
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
    connect(&evolutions, &EvolutionList::parametersChanged, this,
            [this](EVM* evolution) { m_evolutions.showParameters(*evolution); });
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
    if (!added.empty())
        m_workspace.evolutions().setExpanded(true);
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

EVM* wndEvolExplorer::selectedEvolution() const
{
    const QList<QTreeWidgetItem*> selected = m_tree->selectedItems();
    return selected.isEmpty() ? nullptr : m_evolutions.evolutionAt(selected.front());
}

EVM* wndEvolExplorer::evolutionOfSelectedNode() const
{
    const QList<QTreeWidgetItem*> selected = m_tree->selectedItems();
    return selected.isEmpty() ? nullptr : taggedEvolution(selected.front());
}

} // namespace tarsil
