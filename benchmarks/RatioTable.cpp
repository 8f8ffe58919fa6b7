// SPDX-License-Identifier: Apache-2.0
#include "RatioTable.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <limits>

namespace tarsil::benchmarks {

double seconds(const std::function<void()>& work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

Pair bestOfTurns(int turns, const std::function<void()>& measured,
                 const std::function<void()>& reference)
{
    Pair best {std::numeric_limits<double>::max(), std::numeric_limits<double>::max()};
    for (int turn = 0; turn < turns; ++turn) {
        best.reference = std::min(best.reference, seconds(reference));
        best.measured = std::min(best.measured, seconds(measured));
    }
    return best;
}

void printRow(const std::string& what, const std::string& against, const Pair& times,
              const std::string& aim)
{
    std::printf("| %s | %s | %.3g ms | %.3g ms | %.2f | %s |\n", what.c_str(), against.c_str(),
                times.measured * 1e3, times.reference * 1e3, times.measured / times.reference,
                aim.c_str());
    std::fflush(stdout);
}

void printRow(const std::string& what, const std::string& against, const std::string& value,
              const std::string& aim)
{
    std::printf("| %s | %s | | | %s | %s |\n", what.c_str(), against.c_str(), value.c_str(),
                aim.c_str());
    std::fflush(stdout);
}

} // namespace tarsil::benchmarks
