// SPDX-License-Identifier: Apache-2.0
#include "explorer/EvolutionNodes.h"

#include "base/files/PathNames.h"
#include "base/numbers/Numbers.h"
#include "document/EvolutionFilter.h"
#include "document/EvolutionList.h"
#include "explorer/ExplorerNode.h"
#include "model/EVM.h"
#include "model/KeyedTexts.h"
#include "model/Provenance.h"

#include <QList>

#include <iterator>
#include <string>

namespace tarsil {

namespace {

constexpr QLatin1String airplaneSuffix("_airplane");
constexpr QLatin1String massSuffix("_mass");
constexpr QLatin1String machSuffix("_mach");
constexpr QLatin1String methodSuffix("_method");
constexpr QLatin1String legendSuffix("_legend");
constexpr QLatin1String modificationsSuffix("_modifications");
constexpr QLatin1String sourceSuffix("_source");
constexpr QLatin1String solverSuffix("_solver");
constexpr QLatin1String unitsSuffix("_units");
constexpr QLatin1String importLogSuffix("_importlog");

QTreeWidgetItem* addGroup(QTreeWidgetItem& node, const QString& key, const char* text)
{
    return append(node, makeNode(key, QString::fromLatin1(text)));
}

void addValue(QTreeWidgetItem& group, const QString& text, bool isEditable)
{
    append(group, makeValueNode(text, isEditable));
}

void addValue(QTreeWidgetItem& group, const std::string& text)
{
    addValue(group, QString::fromStdString(text), false);
}

void fillModifications(QTreeWidgetItem& group, const EVM& evolution)
{
    qDeleteAll(group.takeChildren());
    for (const KeyedTexts::Entry& modification : evolution.Param.modifications)
        addValue(group, modification.text);
}

/// Adds the groups of imported evolutions.
void addProvenance(QTreeWidgetItem& node, const EVM& evolution, const QString& key)
{
    const Provenance& provenance = evolution.provenance;
    QTreeWidgetItem& source = *addGroup(node, key + sourceSuffix, "Imported From");
    addValue(source, shownPath(provenance.source));
    addValue(source, "lines " + provenance.sourceLines);
    addValue(*addGroup(node, key + solverSuffix, "Solver"), evolution.solverVersion);
    QTreeWidgetItem& units = *addGroup(node, key + unitsSuffix, "Printed Units");
    addValue(units, "speed: " + provenance.speedUnit);
    addValue(units, "vref: " + provenance.vref);
    addValue(units, "density: " + provenance.density);
    const std::vector<std::string> entries = provenance.logEntries();
    if (entries.empty())
        return;
    QTreeWidgetItem& log = *addGroup(node, key + importLogSuffix, "Import Log");
    for (const std::string& entry : entries)
        addValue(log, entry);
}

} // namespace

QString machText(float mach)
{
    return QString::fromStdString(shortestText(mach));
}

EvolutionNodes::EvolutionNodes(QTreeWidgetItem& folder, ExplorerImages& images)
    : m_folder(folder), m_images(images)
{ }

/// Inserts runs of adjacent nodes at once, so that the tree is laid out once.
std::vector<EVM*> EvolutionNodes::fill(const EvolutionList& evolutions)
{
    std::vector<EVM*> added;
    QList<QTreeWidgetItem*> nodes;
    int position = 0;
    const auto insertNodes = [&] {
        m_folder.insertChildren(position, nodes);
        position += static_cast<int>(nodes.size());
        nodes.clear();
    };
    for (const auto& evolution : evolutions.all()) {
        if (m_nodes.contains(evolution.get())) {
            insertNodes();
            ++position;
        } else {
            nodes.append(makeEvolution(*evolution));
            added.push_back(evolution.get());
        }
    }
    insertNodes();
    return added;
}

void EvolutionNodes::remove(const std::vector<EVM*>& evolutions)
{
    if (evolutions.size() == static_cast<std::size_t>(m_nodes.size())) {
        clear();
        return;
    }
    for (const EVM* const evolution : evolutions)
        remove(*evolution);
}

void EvolutionNodes::showParameters(const EVM& evolution)
{
    QTreeWidgetItem* const node = nodeOf(&evolution);
    if (node == nullptr)
        return;
    const Param& param = evolution.Param;
    const QString texts[] = {QString::fromStdString(param.Airplane),
                             QString::fromStdString(param.Mass), machText(param.Mach)};
    for (int group = 0; group < static_cast<int>(std::size(texts)); ++group)
        node->child(group)->child(0)->setText(0, texts[group]);
}

void EvolutionNodes::showModifications(const EVM& evolution)
{
    QTreeWidgetItem* const node = nodeOf(&evolution);
    if (node == nullptr)
        return;
    const QString key = keyOf(*node) + modificationsSuffix;
    for (int i = 0; i < node->childCount(); ++i) {
        if (keyOf(*node->child(i)) == key)
            return fillModifications(*node->child(i), evolution);
    }
    if (!evolution.Param.modifications.empty())
        fillModifications(*addGroup(*node, key, "Modifications"), evolution);
}

void EvolutionNodes::remove(const EVM& evolution)
{
    const Node node(m_nodes.take(&evolution)); // the destructor removes it from the tree
    if (node != nullptr)
        m_keys.remove(keyOf(*node));
}

void EvolutionNodes::clear()
{
    m_nodes.clear();
    m_keys.clear();
    qDeleteAll(m_folder.takeChildren());
}

QTreeWidgetItem* EvolutionNodes::nodeOf(const EVM* evolution) const
{
    return m_nodes.value(evolution);
}

std::vector<EVM*> EvolutionNodes::ticked() const
{
    std::vector<EVM*> result;
    for (int i = 0; i < m_folder.childCount(); ++i) {
        const QTreeWidgetItem* const node = m_folder.child(i);
        if (node->checkState(0) == Qt::Checked)
            result.push_back(taggedEvolution(node));
    }
    return result;
}

void EvolutionNodes::applyFilter(const EvolutionFilter& filter)
{
    for (int i = 0; i < m_folder.childCount(); ++i) {
        QTreeWidgetItem* const node = m_folder.child(i);
        const bool hasWarnings = !node->data(0, FindingsRole).toString().isEmpty();
        const bool isHidden = !filter.accepts(*taggedEvolution(node), hasWarnings);
        if (isHidden == node->isHidden())
            continue;
        node->setHidden(isHidden);
        if (isHidden)
            node->setSelected(false); // no command acts on what the user does not see
    }
}

void EvolutionNodes::tickShown(bool isTicked)
{
    for (int i = 0; i < m_folder.childCount(); ++i) {
        if (!m_folder.child(i)->isHidden())
            m_folder.child(i)->setCheckState(0, isTicked ? Qt::Checked : Qt::Unchecked);
    }
}

EVM* EvolutionNodes::evolutionAt(const QTreeWidgetItem* node) const
{
    while (node != nullptr && node->parent() != &m_folder)
        node = node->parent();
    return taggedEvolution(node);
}

EvolutionValue EvolutionNodes::valueAt(const QTreeWidgetItem& node) const
{
    const QTreeWidgetItem* const group = node.parent();
    if (group == nullptr || group->parent() == nullptr || group->parent()->parent() != &m_folder)
        return EvolutionValue::None;
    const QString suffix = keyOf(*group).mid(keyOf(*group->parent()).size());
    if (suffix == airplaneSuffix)
        return EvolutionValue::Airplane;
    if (suffix == massSuffix)
        return EvolutionValue::Mass;
    return suffix == machSuffix ? EvolutionValue::Mach : EvolutionValue::None;
}

QTreeWidgetItem* EvolutionNodes::makeEvolution(EVM& evolution)
{
    const QString key = newKey(evolution);
    Node node = makeNode(key, QString::fromStdString(evolution.FileName));
    node->setFlags(node->flags() | Qt::ItemIsUserCheckable);
    node->setCheckState(0, Qt::Unchecked);
    setPlainToolTip(*node, QString::fromStdString(shownPath(evolution.path())));
    setImage(*node, m_images, QStringLiteral("evolution"));
    setTag(*node, &evolution);
    addGroups(*node, evolution, key);
    m_nodes.insert(&evolution, node.get());
    m_keys.insert(key, &evolution);
    return node.release();
}

void EvolutionNodes::addGroups(QTreeWidgetItem& node, const EVM& evolution, const QString& key)
{
    const Param& param = evolution.Param;
    addValue(*addGroup(node, key + airplaneSuffix, "Airplane"),
             QString::fromStdString(param.Airplane), true);
    QTreeWidgetItem* const mass = addGroup(node, key + massSuffix, "Mass Conf.");
    setImage(*mass, m_images, QStringLiteral("mass"));
    addValue(*mass, QString::fromStdString(param.Mass), true);
    addValue(*addGroup(node, key + machSuffix, "Mach No."), machText(param.Mach), true);
    addValue(*addGroup(node, key + methodSuffix, "Method"),
             QString::fromStdString(param.AnalysisType), false);
    QTreeWidgetItem* const legend = addGroup(node, key + legendSuffix, "Legend");
    for (const auto& mode : evolution.Modes)
        addValue(*legend, QStringLiteral("Mode %1").arg(mode->Id), false);
    if (!param.modifications.empty())
        fillModifications(*addGroup(node, key + modificationsSuffix, "Modifications"), evolution);
    if (evolution.provenance.isImported())
        addProvenance(node, evolution, key);
}

/// The path of the evolution. Should two paths be equal, the later one gets a number, counted over
/// all evolutions so that no search is needed.
QString EvolutionNodes::newKey(const EVM& evolution)
{
    const QString path = QString::fromStdString(evolution.path());
    QString key = path;
    while (m_keys.contains(key))
        key = path + u'|' + QString::number(++m_sameKeys);
    return key;
}

} // namespace tarsil
