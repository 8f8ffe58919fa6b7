#pragma once

#include <functional>
#include <string>

namespace tarsil::benchmarks {

/// Seconds of one call.
double seconds(const std::function<void()>& work);

/// The best time of each of two works, measured turn by turn so that both meet the same machine.
struct Pair
{
    double measured;
    double reference;
};
Pair bestOfTurns(int turns, const std::function<void()>& measured,
                 const std::function<void()>& reference);

/// One line of the table: what was measured, against what, both times, and the ratio beside its
/// aim.
void printRow(const std::string& what, const std::string& against, const Pair& times,
              const std::string& aim);

/// One line for something that is no ratio of times.
void printRow(const std::string& what, const std::string& against, const std::string& value,
              const std::string& aim);

} // namespace tarsil::benchmarks
