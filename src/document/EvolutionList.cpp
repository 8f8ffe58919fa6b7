#include "document/EvolutionList.h"

#include "base/user/RunTimeError.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <string_view>
#include <utility>

namespace tarsil {

namespace {

[[noreturn]] void failForStranger(const EVM& evolution)
{
    throw RunTimeError(ErrorNumber::InvalidProcedureCall, "EvolutionList",
                       "the modal evolution \"" + evolution.FileName + "\" is not in this list");
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
    evolution.Param.Airplane = parameters.airplane;
    evolution.Param.Mass = parameters.mass;
    evolution.Param.Mach = parameters.mach;
    Q_EMIT parametersChanged(&evolution);
}

void EvolutionList::takePoints(EVM& evolution, const EVM& state)
{
    const bool isSame =
        std::equal(evolution.Modes.begin(), evolution.Modes.end(), state.Modes.begin(),
                   state.Modes.end(), [](const auto& a, const auto& b) {
                       return a->Id == b->Id && a->Points.size() == b->Points.size();
                   });
    if (!isSame)
        throw RunTimeError(ErrorNumber::InvalidProcedureCall, "EvolutionList",
                           "the file of \"" + evolution.FileName + "\" has other modes now");
    for (std::size_t i = 0; i < evolution.Modes.size(); ++i)
        evolution.Modes[i]->copyFrom(*state.Modes[i]);
    evolution.Param.modifications = state.Param.modifications;
    Q_EMIT pointsChanged(&evolution);
}

TakenEvolution EvolutionList::takeOut(EVM& evolution)
{
    if (!contains(&evolution))
        failForStranger(evolution);
    const bool wasReference = &evolution == m_reference;
    if (wasReference)
        setReference(nullptr);
    Q_EMIT aboutToBeRemoved({&evolution});
    const auto leaving = find(&evolution);
    TakenEvolution taken {static_cast<std::size_t>(leaving - m_evolutions.begin()),
                          std::move(*leaving), wasReference};
    m_evolutions.erase(leaving);
    return taken;
}

void EvolutionList::putBack(TakenEvolution taken)
{
    EVM* const evolution = taken.evolution.get();
    const std::size_t position = std::min(taken.position, m_evolutions.size());
    m_evolutions.insert(m_evolutions.begin() + static_cast<std::ptrdiff_t>(position),
                        std::move(taken.evolution));
    Q_EMIT added({evolution});
    if (taken.wasReference)
        setReference(evolution);
}

void EvolutionList::clear()
{
    if (m_evolutions.empty())
        return;
    setReference(nullptr);
    Q_EMIT aboutToBeRemoved(pointersTo(m_evolutions));
    m_evolutions.clear();
}

OwnedEvolutions::iterator EvolutionList::find(const EVM* evolution)
{
    return std::find_if(m_evolutions.begin(), m_evolutions.end(),
                        [evolution](const auto& one) { return one.get() == evolution; });
}

} // namespace tarsil
