#pragma once

#include <QHash>
#include <QString>

#include <cstddef>
#include <vector>

class QTreeWidgetItem;

namespace tarsil {

class EVM;
class ExplorerImages;
class EvolutionList;

/// The parameter that a value under an evolution's node shows.
enum class EvolutionValue { None, Airplane, Mass, Mach };

/// The nodes of the modal evolutions, children of one folder. Each has a check box and, under it,
/// the groups "Airplane", "Mass Conf.", "Mach No.", "Method" and "Legend" with their values, and
/// "Modifications" where its file names some; an imported one also has "Imported From", "Solver",
/// "Printed Units" and "Import Log". An evolution's key is its path; the keys of its groups are
/// that with a suffix.
class EvolutionNodes
{
public:
    /// The folder and the images must outlive this.
    EvolutionNodes(QTreeWidgetItem& folder, ExplorerImages& images);

    /// Inserts nodes for the evolutions that have none yet, at their positions, and returns them.
    /// Takes time in proportion to the number of new ones, besides one look-up for each known one.
    std::vector<EVM*> fill(const EvolutionList& evolutions);

    void remove(const std::vector<EVM*>& evolutions);

    /// Shows the parameters as they are now.
    void showParameters(const EVM& evolution);

    /// Shows the modifications as they are now.
    void showModifications(const EVM& evolution);

    /// Null for an evolution without a node.
    QTreeWidgetItem* nodeOf(const EVM* evolution) const;

    /// The evolutions whose check box is ticked, from the first node to the last.
    std::vector<EVM*> ticked() const;

    /// The evolution of a node of this folder or of a node below one; null for other nodes.
    EVM* evolutionAt(const QTreeWidgetItem* node) const;

    /// Which parameter a node shows the value of.
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
    std::size_t m_sameKeys = 0; ///< evolutions so far whose path another one had
};

/// The text that shows a Mach number: the shortest one that reads back as the same number.
QString machText(float mach);

} // namespace tarsil
