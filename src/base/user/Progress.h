// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <functional>

namespace tarsil {

/// Receives the progress of a long computation: `done` of `total` steps, of which the last may be
/// left out. Returns whether to go on. An empty function never stops.
using Progress = std::function<bool(std::size_t done, std::size_t total)>;

/// Reports progress. Returns whether to go on.
inline bool goesOn(const Progress& progress, std::size_t done, std::size_t total)
{
    return !progress || progress(done, total);
}

/// The progress of a part of a computation of several equal parts, counted from 0. `size` is the
/// number of these parts that it covers.
inline Progress partOf(const Progress& whole, std::size_t part, std::size_t parts,
                       std::size_t size = 1)
{
    constexpr std::size_t steps = 1000; // of each part
    if (!whole)
        return {};
    return [whole, part, parts, size](std::size_t done, std::size_t total) {
        return whole(part * steps + done * size * steps / total, parts * steps);
    };
}

/// Counts the steps of a computation that is made of several functions. A function that is told to
/// stop returns an incomplete result, which is not used.
class StepCounter
{
public:
    /// `total` is the number of steps.
    StepCounter(const Progress& progress, std::size_t total) : m_progress(progress), m_total(total)
    { }

    /// Ends a step. Returns whether to go on.
    bool next()
    {
        ++m_done;
        return look();
    }

    /// Reports the steps so far again, within a long step. Returns whether to go on.
    bool look()
    {
        m_isStopped = m_isStopped || !goesOn(m_progress, m_done, m_total);
        return !m_isStopped;
    }

    bool isStopped() const { return m_isStopped; }

private:
    const Progress& m_progress;
    std::size_t m_total;
    std::size_t m_done = 0;
    bool m_isStopped = false;
};

} // namespace tarsil
