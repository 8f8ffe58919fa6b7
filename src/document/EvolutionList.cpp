// SPDX-License-Identifier: Apache-2.0
#include "document/EvolutionList.h"

#include "base/user/RunTimeError.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <unordered_set>
#include <utility>

namespace tarsil {

namespace {

[[noreturn]] void failForStranger(const EVM& evolution)
{
    throw RunTimeError(ErrorNumber::InvalidProcedureCall, "EvolutionList",
                       "the modal evolution \"" + evolution.FileName + "\" is not in this list");
}

OwnedEvolutions::iterator findEvolution(OwnedEvolutions& evolutions, const EVM* evolution)
{
    return std::find_if(evolutions.begin(), evolutions.end(),
                        [evolution](const auto& one) { return one.get() == evolution; });
}

std::vector<EVM*> pointersTo(const OwnedEvolutions& evolutions)
{
    std::vector<EVM*> pointers;
    pointers.reserve(evolutions.size());
    for (const auto& evolution : evolutions)
        pointers.push_back(evolution.get());
    return pointers;
}

} // namespace

EvolutionList::EvolutionList() = default;
EvolutionList::~EvolutionList() = default;

bool EvolutionList::contains(const EVM* evolution) const
{
    return std::any_of(m_evolutions.begin(), m_evolutions.end(),
                       [evolution](const auto& one) { return one.get() == evolution; });
}

void EvolutionList::add(OwnedEvolutions evolutions)
{
    if (evolutions.empty())
        return;
    const std::vector<EVM*> names = pointersTo(evolutions);
    m_evolutions.reserve(m_evolutions.size() + evolutions.size());
    std::move(evolutions.begin(), evolutions.end(), std::back_inserter(m_evolutions));
    Q_EMIT added(names);
}

void EvolutionList::setReference(EVM* evolution)
{
    if (evolution != nullptr && !contains(evolution))
        failForStranger(*evolution);
    if (evolution == m_reference)
        return;
    EVM* const before = std::exchange(m_reference, evolution);
    Q_EMIT referenceChanged(before, evolution);
}

void EvolutionList::setParameters(EVM& evolution, const EditableParam& parameters)
{
    if (evolution.Param.editable() == parameters)
        return;
    evolution.Param.Airplane = parameters.airplane;
    evolution.Param.Mass = parameters.mass;
    evolution.Param.Mach = parameters.mach;
    Q_EMIT parametersChanged(&evolution);
}

void EvolutionList::requireSameModes(const EVM& evolution, const EVM& state)
{
    const bool isSame =
        std::equal(evolution.Modes.begin(), evolution.Modes.end(), state.Modes.begin(),
                   state.Modes.end(), [](const auto& a, const auto& b) {
                       return a->Id == b->Id && a->Points.size() == b->Points.size();
                   });
    if (!isSame)
        throw RunTimeError(ErrorNumber::InvalidProcedureCall, "EvolutionList",
                           "the file of \"" + evolution.FileName + "\" has other modes now");
}

void EvolutionList::takePoints(EVM& evolution, const EVM& state)
{
    requireSameModes(evolution, state);
    for (std::size_t i = 0; i < evolution.Modes.size(); ++i)
        evolution.Modes[i]->copyFrom(*state.Modes[i]);
    evolution.Param.modifications = state.Param.modifications;
    Q_EMIT pointsChanged(&evolution);
}

void EvolutionList::putBack(const OwnedEvolutions& evolutions)
{
    std::vector<EVM*> missing;
    auto position = m_evolutions.begin();
    for (const auto& evolution : evolutions) {
        const auto known = findEvolution(m_evolutions, evolution.get());
        if (known != m_evolutions.end()) {
            position = std::next(known);
            continue;
        }
        position = std::next(m_evolutions.insert(position, evolution));
        missing.push_back(evolution.get());
    }
    if (!missing.empty())
        Q_EMIT added(missing);
}

void EvolutionList::remove(const std::vector<EVM*>& evolutions)
{
    std::unordered_set<const EVM*> known;
    for (const auto& evolution : m_evolutions)
        known.insert(evolution.get());
    for (const EVM* evolution : evolutions) {
        if (known.count(evolution) == 0)
            failForStranger(*evolution);
    }
    if (!evolutions.empty())
        removeAll(evolutions);
}

void EvolutionList::removeOthers(const OwnedEvolutions& kept)
{
    const std::unordered_set<std::shared_ptr<EVM>> known(kept.begin(), kept.end());
    std::vector<EVM*> leaving;
    for (const auto& evolution : m_evolutions) {
        if (known.count(evolution) == 0)
            leaving.push_back(evolution.get());
    }
    if (!leaving.empty())
        removeAll(leaving);
}

void EvolutionList::removeAll(const std::vector<EVM*>& leaving)
{
    const std::unordered_set<const EVM*> gone(leaving.begin(), leaving.end());
    if (gone.count(m_reference) > 0)
        setReference(nullptr);
    Q_EMIT aboutToBeRemoved(leaving);
    std::erase_if(m_evolutions, [&gone](const auto& one) { return gone.count(one.get()) > 0; });
}

} // namespace tarsil
