#pragma once

#include "model/EVM.h"

#include <QObject>

#include <vector>

namespace tarsil {

/// The open modal evolutions of a document, in load order, and the reference evolution. The list
/// owns them, together with whoever wants to put back one that has left it.
class EvolutionList : public QObject
{
    Q_OBJECT

public:
    EvolutionList();
    ~EvolutionList() override;

    const OwnedEvolutions& all() const { return m_evolutions; }

    bool contains(const EVM* evolution) const;

    /// Appends evolutions, and announces them together.
    void add(OwnedEvolutions evolutions);

    /// Null when there is none.
    EVM* reference() const { return m_reference; }

    /// Null for none. Error 5 for an evolution that is not in the list.
    void setReference(EVM* evolution);

    /// Changes the parameters that users may change. Nothing happens when they are the same.
    void setParameters(EVM& evolution, const EditableParam& parameters);

    /// Makes points and modifications those of another state of its file, which has the same modes
    /// and points; rows of plots keep their modes. Error 5 for another file.
    void takePoints(EVM& evolution, const EVM& state);

    /// Inserts those of `evolutions` that are not in the list, each after its predecessor there;
    /// the others stay where they are.
    void putBack(const OwnedEvolutions& evolutions);

    /// Removes an evolution; it is the reference evolution no longer. Error 5 for one that is not
    /// in the list. Rows of plots that show it are for `Document::remove` to remove.
    void remove(EVM& evolution);

    /// Removes all evolutions that are not in `kept`.
    void removeOthers(const OwnedEvolutions& kept);

    /// Removes all evolutions.
    void clear() { removeOthers({}); }

Q_SIGNALS:
    /// Evolutions are in the list: the last ones, in this order, unless they were put back.
    void added(const std::vector<tarsil::EVM*>& evolutions);

    /// Evolutions leave the list when all have heard of it; they may come back.
    void aboutToBeRemoved(const std::vector<tarsil::EVM*>& evolutions);

    /// Another evolution is the reference evolution, or none (null).
    void referenceChanged(tarsil::EVM* before, tarsil::EVM* now);

    void parametersChanged(tarsil::EVM* evolution);

    /// `takePoints` was called.
    void pointsChanged(tarsil::EVM* evolution);

private:
    void removeAll(const std::vector<EVM*>& leaving);

    OwnedEvolutions m_evolutions;
    EVM* m_reference = nullptr;
};

} // namespace tarsil
