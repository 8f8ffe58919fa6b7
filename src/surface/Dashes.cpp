// SPDX-License-Identifier: Apache-2.0
#include "surface/Dashes.h"

#include <algorithm>
#include <cstdint>
#include <numeric>

namespace tarsil {

bool isDashed(const Pen& pen)
{
    return pen.width <= 1 && pen.style >= penstyle::dash && pen.style <= penstyle::dashDotDot;
}

QList<qreal> dashPattern(const Pen& pen)
{
    if (!isDashed(pen))
        return {};
    switch (pen.style) {
    case penstyle::dash:
        return {18, 6};
    case penstyle::dot:
        return {3, 3};
    case penstyle::dashDot:
        return {9, 6, 3, 6};
    default:
        return {9, 3, 3, 3, 3, 3};
    }
}

std::vector<Dash> dashesBetween(const QList<qreal>& pattern, double first, double last)
{
    const double period = std::accumulate(pattern.begin(), pattern.end(), 0.0);
    std::vector<Dash> dashes;
    for (auto count = static_cast<std::int64_t>(first / period);; ++count) {
        double dash = static_cast<double>(count) * period;
        if (dash >= last)
            return dashes;
        for (qsizetype i = 0; i + 1 < pattern.size(); i += 2) {
            const double end = dash + pattern[i];
            if (end > first && dash < last)
                dashes.push_back({std::max(dash, first), std::min(end, last)});
            dash = end + pattern[i + 1];
        }
    }
}

} // namespace tarsil
