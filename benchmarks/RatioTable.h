// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <string>

namespace tarsil::benchmarks {

/// The duration of a call in seconds.
double seconds(const std::function<void()>& work);

/// The best times of two functions, measured alternately so that both meet the same conditions.
struct Pair
{
    double measured;
    double reference;
};
Pair bestOfTurns(int turns, const std::function<void()>& measured,
                 const std::function<void()>& reference);

/// Prints a row of the table: what was measured, against what, both times, and the ratio with its
/// aim.
void printRow(const std::string& what, const std::string& against, const Pair& times,
              const std::string& aim);

/// Prints a row for a value that is not a ratio of times.
void printRow(const std::string& what, const std::string& against, const std::string& value,
              const std::string& aim);

} // namespace tarsil::benchmarks
