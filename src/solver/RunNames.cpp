// SPDX-License-Identifier: Apache-2.0
#include "solver/RunNames.h"

#include "base/numbers/NumberFormat.h"
#include "base/numbers/Numbers.h"

#include <map>
#include <set>
#include <tuple>

namespace tarsil::solver {

namespace {

/// The parts of a run without its density ratio.
using WithoutRatio = std::tuple<std::optional<std::string>, std::string, std::optional<double>,
                                std::optional<double>, std::int32_t>;

WithoutRatio withoutRatio(const SolverRun& run)
{
    return {run.key.subcase, run.key.method, run.key.mach, run.key.sigmaValue, run.cycle};
}

std::optional<double> machOf(const SolverRun& run)
{
    if (run.key.mach)
        return run.key.mach;
    const double first =
        run.roots.front().rows.empty() ? notPrinted : run.roots.front().rows.front().mach;
    for (const PrintedRoot& root : run.roots) {
        for (const SummaryRow& row : root.rows) {
            if (row.mach != first)
                return std::nullopt;
        }
    }
    return first;
}

std::string runName(const SolverRun& run, std::string_view stem, bool needsRatio)
{
    std::string name(stem);
    if (run.key.subcase)
        name += "_s" + *run.key.subcase;
    if (const std::optional<double> mach = machOf(run))
        name += "_M" + formatNumber(*mach, "0.00#");
    if (run.key.sigmaValue)
        name += "_a" + shortestText(*run.key.sigmaValue);
    if (needsRatio)
        name += "_r" + formatNumber(*run.key.densityRatio, "0.000#");
    if (run.cycle > 1)
        name += "_c" + std::to_string(run.cycle);
    return name;
}

} // namespace

std::vector<std::string> runNames(const std::vector<SolverRun>& runs, std::string_view stem)
{
    std::map<WithoutRatio, std::size_t> alike;
    for (const SolverRun& run : runs)
        ++alike[withoutRatio(run)];
    std::vector<std::string> names;
    std::map<std::string, int> copies;
    std::set<std::string> used;
    for (const SolverRun& run : runs) {
        const bool needsRatio = run.key.densityRatio && alike[withoutRatio(run)] > 1;
        const std::string wanted = runName(run, stem, needsRatio);
        std::string name = wanted;
        while (!used.insert(name).second)
            name = wanted + "_" + std::to_string(++copies.try_emplace(wanted, 1).first->second);
        names.push_back(name + ".ev2");
    }
    return names;
}

} // namespace tarsil::solver
