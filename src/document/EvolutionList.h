#pragma once

#include "model/EVM.h"

#include <QObject>

#include <cstddef>
#include <memory>
#include <vector>

namespace tarsil {

/// An evolution that has left its list and can be put back.
struct TakenEvolution
{
    std::size_t position = 0; ///< from 0, which it had and will have again
    std::unique_ptr<EVM> evolution;
    bool wasReference = false;
};

/// The open modal evolutions of a document, in load order, and the reference evolution. The list
/// owns them. An evolution keeps its address for life, also while it is out of the list.
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

    /// Changes the parameters that users may change.
    void setParameters(EVM& evolution, const EditableParam& parameters);

    /// Makes points and modifications those of another state of its file, which has the same modes
    /// and points; rows of plots keep their modes. Error 5 for another file.
    void takePoints(EVM& evolution, const EVM& state);

    /// Takes an evolution out of the list; it is the reference evolution no longer. Error 5 for one
    /// that is not in the list. Rows of plots that show it are for `Document::takeOut` to remove.
    TakenEvolution takeOut(EVM& evolution);

    /// Puts an evolution back that was taken out, at its position, and makes it the reference
    /// evolution when it was.
    void putBack(TakenEvolution taken);

    /// Removes all evolutions.
    void clear();

Q_SIGNALS:
    /// Evolutions are in the list, the last ones in this order unless they were put back.
    void added(const std::vector<tarsil::EVM*>& evolutions);

    /// Evolutions leave the list when all have heard of it; they may come back.
    void aboutToBeRemoved(const std::vector<tarsil::EVM*>& evolutions);

    /// Another evolution is the reference evolution, or none (null).
    void referenceChanged(tarsil::EVM* before, tarsil::EVM* now);

    void parametersChanged(tarsil::EVM* evolution);

    /// `takePoints` was called.
    void pointsChanged(tarsil::EVM* evolution);

private:
    OwnedEvolutions::iterator find(const EVM* evolution);

    OwnedEvolutions m_evolutions;
    EVM* m_reference = nullptr;
};

} // namespace tarsil
