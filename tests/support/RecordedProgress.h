// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "base/user/Progress.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace tarsil::test {

/// Receives the progress of a computation, and stops it.
class RecordedProgress
{
public:
    /// `stopsAt` is the report that is answered by a stop, from 1; 0 never stops.
    explicit RecordedProgress(std::size_t stopsAt = 0) : m_stopsAt(stopsAt) { }

    /// Must not be called after this object has gone.
    Progress receiver()
    {
        return [this](std::size_t done, std::size_t total) {
            m_shares.push_back(static_cast<double>(done) / static_cast<double>(total));
            return m_shares.size() != m_stopsAt;
        };
    }

    std::size_t count() const { return m_shares.size(); }

    /// Whether no report is smaller than the one before it, or larger than the whole.
    bool rises() const
    {
        return std::is_sorted(m_shares.begin(), m_shares.end())
            && (m_shares.empty() || m_shares.back() <= 1);
    }

    /// The largest step between two reports, as a share of the whole.
    double largestStep() const
    {
        double last = 0;
        double largest = 0;
        for (const double share : m_shares) {
            largest = std::max(largest, share - last);
            last = share;
        }
        return largest;
    }

private:
    std::size_t m_stopsAt;
    std::vector<double> m_shares;
};

} // namespace tarsil::test
