// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QHash>
#include <QString>

#include <cstddef>
#include <vector>

class QTreeWidgetItem;

namespace tarsil {

class EVM;
class EvolutionFilter;
class ExplorerImages;
class EvolutionList;

/// The parameter whose value a node below an evolution shows.
enum class EvolutionValue { None, Airplane, Mass, Mach };

/// The nodes of the modal evolutions, children of one folder. Each has a check box and the groups
/// "Airplane", "Mass Conf.", "Mach No.", "Method" and "Legend" with their values, and
/// "Modifications" if the file has some; an imported one also has "Imported From", "Solver",
/// "Printed Units" and "Import Log". The key of an evolution is its path; its groups add a suffix.
class EvolutionNodes
{
public:
    /// Folder and images must outlive this object.
    EvolutionNodes(QTreeWidgetItem& folder, ExplorerImages& images);

    /// Inserts nodes for the evolutions without one, at their positions, and returns these. Linear
    /// in the number of new evolutions, plus one look-up for each known one.
    std::vector<EVM*> fill(const EvolutionList& evolutions);

    void remove(const std::vector<EVM*>& evolutions);

    /// Updates the shown parameters.
    void showParameters(const EVM& evolution);

    /// Updates the shown modifications.
    void showModifications(const EVM& evolution);

    /// Null for an evolution without a node.
    QTreeWidgetItem* nodeOf(const EVM* evolution) const;

    /// The evolutions whose check box is ticked, in node order.
    std::vector<EVM*> ticked() const;

    /// Hides the nodes that a filter does not accept, and deselects these.
    void applyFilter(const EvolutionFilter& filter);

    /// Ticks or unticks the nodes that are not hidden.
    void tickShown(bool isTicked);

    /// The evolution of a node in this folder, at any depth; null for other nodes.
    EVM* evolutionAt(const QTreeWidgetItem* node) const;

    /// The parameter whose value a node shows.
    EvolutionValue valueAt(const QTreeWidgetItem& node) const;

private:
    QTreeWidgetItem* makeEvolution(EVM& evolution);
    void addGroups(QTreeWidgetItem& node, const EVM& evolution, const QString& key);
    QString newKey(const EVM& evolution);
    void remove(const EVM& evolution);
    void clear();

    QTreeWidgetItem& m_folder;
    ExplorerImages& m_images;
    QHash<const EVM*, QTreeWidgetItem*> m_nodes;
    QHash<QString, const EVM*> m_keys;
    std::size_t m_sameKeys = 0; ///< number of evolutions whose path was already a key
};

/// The text of a Mach number: the shortest that reads back as the same number.
QString machText(float mach);

} // namespace tarsil
