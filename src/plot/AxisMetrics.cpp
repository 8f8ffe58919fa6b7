// SPDX-License-Identifier: Apache-2.0
#include "plot/AxisMetrics.h"

#include "base/user/RunTimeError.h"

namespace tarsil::axis {

void requireIntervals(int count, const char* source)
{
    if (count == 0)
        throw RunTimeError(ErrorNumber::DivisionByZero, source, "the number of ticks is 0");
}

} // namespace tarsil::axis
