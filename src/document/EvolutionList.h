// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "model/EVM.h"

#include <QObject>

#include <vector>

namespace tarsil {

/// The open modal evolutions of a document in load order, and the reference evolution. Shares the
/// ownership with the undo history, which can put a removed evolution back.
class EvolutionList : public QObject
{
    Q_OBJECT

public:
    EvolutionList();
    ~EvolutionList() override;

    const OwnedEvolutions& all() const { return m_evolutions; }

    bool contains(const EVM* evolution) const;

    /// Appends evolutions with one signal.
    void add(OwnedEvolutions evolutions);

    /// Null when there is none.
    EVM* reference() const { return m_reference; }

    /// Null for none. Error 5 for an evolution outside the list.
    void setReference(EVM* evolution);

    /// Changes the parameters that users can edit. Does nothing when they are equal.
    void setParameters(EVM& evolution, const EditableParam& parameters);

    /// Error 5 unless both have the same mode numbers and numbers of points.
    static void requireSameModes(const EVM& evolution, const EVM& state);

    /// Copies points and modifications from another state of the file with the same modes and
    /// points; rows of plots keep their modes. Error 5 for another file.
    void takePoints(EVM& evolution, const EVM& state);

    /// Inserts those of `evolutions` that are not in the list, each after its predecessor in
    /// `evolutions`.
    void putBack(const OwnedEvolutions& evolutions);

    /// Removes evolutions from the list; none of them is the reference evolution any more. Error 5
    /// for one outside the list; nothing has changed then. Does not touch rows of plots (see
    /// `Document::remove`).
    void remove(const std::vector<EVM*>& evolutions);

    /// Removes all evolutions that are not in `kept`.
    void removeOthers(const OwnedEvolutions& kept);

    /// Removes all evolutions.
    void clear() { removeOthers({}); }

Q_SIGNALS:
    /// Evolutions were added: at the end in this order, unless they were put back.
    void added(const std::vector<tarsil::EVM*>& evolutions);

    /// Evolutions are about to leave the list; they may be put back.
    void aboutToBeRemoved(const std::vector<tarsil::EVM*>& evolutions);

    /// The reference evolution has changed; null for none.
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
