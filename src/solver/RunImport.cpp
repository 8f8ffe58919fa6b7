// SPDX-License-Identifier: Apache-2.0
#include "solver/SolverRun.h"

#include "base/user/RunTimeError.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>
#include <numbers>
#include <string>
#include <utility>

namespace tarsil::solver {

namespace {

constexpr double sameSpeed = 5e-4; ///< relative
constexpr double staticFrequency = 1e-9; ///< Hz; below it a root is static

double sigmaOf(const SummaryRow& row, const SolverRun& run, const UnitChoice& units)
{
    const double density =
        std::isnan(row.density) ? run.key.densityRatio.value_or(notPrinted) : row.density;
    return density * units.density.factor;
}

[[noreturn]] void refuse(const SummaryRow& row, const std::string& reason)
{
    throw RunTimeError(ErrorNumber::Overflow, "solver",
                       "line " + std::to_string(row.line) + ": " + reason);
}

bool isBeyondSingles(double value)
{
    return std::abs(value) > std::numeric_limits<float>::max();
}

/// Error 6 for values that no evolution can hold: the speed of a negative density, or a value
/// beyond the range of a single.
void requireSingles(const ImportedPoint& point, const SummaryRow& row)
{
    if (std::isnan(point.keas) || isBeyondSingles(point.keas))
        refuse(row, "speed and density give no equivalent airspeed");
    for (const double value :
         {point.re, point.im, point.damping, point.frequency, point.mach, point.sigma}) {
        if (isBeyondSingles(value))
            refuse(row, "a value is too large for an evolution");
    }
}

ImportedPoint importRow(const SummaryRow& row, const SolverRun& run, const UnitChoice& units)
{
    ImportedPoint point;
    point.k = row.k;
    point.damping = row.damping;
    point.frequency = row.frequency;
    point.mach = std::isnan(row.mach) ? run.key.mach.value_or(notPrinted) : row.mach;
    point.sigma = sigmaOf(row, run, units);
    point.keas = equivalentAirspeed(row.speed, std::isnan(point.sigma) ? 1 : point.sigma, units);
    if (isReducedFrequencyMethod(run.key.method)) {
        // The eigenvalues that these methods print are scaled by the speed.
        point.re = std::numbers::pi * row.frequency * row.damping;
        point.im = 2 * std::numbers::pi * row.frequency;
    } else {
        point.re = row.re;
        point.im = row.im;
    }
    requireSingles(point, row);
    return point;
}

/// Equal, or both missing.
bool isSame(double a, double b)
{
    return a == b || (std::isnan(a) && std::isnan(b));
}

bool isSameCondition(const ImportedPoint& a, const ImportedPoint& b)
{
    return isSame(a.sigma, b.sigma) && isSame(a.mach, b.mach)
        && std::abs(a.keas - b.keas) <= sameSpeed * std::max(a.keas, b.keas);
}

/// The indices of the rows to keep: those whose condition differs from that of every earlier kept
/// row. Rows are compared only with neighbours in order of speed.
std::vector<std::size_t> rowsToKeep(const std::vector<ImportedPoint>& points)
{
    std::vector<std::size_t> kept;
    std::multimap<double, std::size_t> bySpeed;
    for (std::size_t i = 0; i < points.size(); ++i) {
        constexpr double reach = 2 * sameSpeed;
        const auto first = bySpeed.lower_bound(points[i].keas * (1 - reach));
        const auto last = bySpeed.upper_bound(points[i].keas * (1 + reach));
        const bool isRepeated = std::any_of(first, last, [&](const auto& entry) {
            return isSameCondition(points[entry.second], points[i]);
        });
        if (isRepeated)
            continue;
        kept.push_back(i);
        bySpeed.emplace(points[i].keas, i);
    }
    return kept;
}

std::vector<ImportedPoint> select(const std::vector<ImportedPoint>& points,
                                  const std::vector<std::size_t>& rows)
{
    std::vector<ImportedPoint> selected;
    selected.reserve(rows.size());
    for (const std::size_t row : rows)
        selected.push_back(points[row]);
    return selected;
}

void dropRepeatedRows(ImportedRun& imported)
{
    const std::vector<std::size_t> kept = rowsToKeep(imported.modes.front().points);
    imported.droppedRows = imported.modes.front().points.size() - kept.size();
    if (imported.droppedRows == 0)
        return;
    for (ImportedMode& mode : imported.modes)
        mode.points = select(mode.points, kept);
    imported.log.push_back("rows of repeated conditions dropped: "
                           + std::to_string(imported.droppedRows));
}

template <typename Less>
void sortRows(ImportedMode& mode, Less less)
{
    std::stable_sort(mode.points.begin(), mode.points.end(), less);
}

void sortBySpeed(ImportedMode& mode)
{
    sortRows(mode, [](const ImportedPoint& a, const ImportedPoint& b) { return a.keas < b.keas; });
}

void sortByFallingReducedFrequency(ImportedMode& mode)
{
    sortRows(mode, [](const ImportedPoint& a, const ImportedPoint& b) {
        return !std::isnan(a.k) && (std::isnan(b.k) || a.k > b.k);
    });
}

bool turnsBack(const ImportedMode& mode)
{
    return !std::is_sorted(
        mode.points.begin(), mode.points.end(),
        [](const ImportedPoint& a, const ImportedPoint& b) { return a.keas < b.keas; });
}

void logStaticRoots(ImportedRun& imported)
{
    std::size_t points = 0;
    for (const ImportedMode& mode : imported.modes)
        points += static_cast<std::size_t>(
            std::count_if(mode.points.begin(), mode.points.end(), [](const ImportedPoint& point) {
                return std::abs(point.frequency) < staticFrequency;
            }));
    if (points > 0)
        imported.log.push_back("points with static roots, whose printed damping is kept: "
                               + std::to_string(points));
}

} // namespace

ImportedRun importRun(const SolverRun& run, const UnitChoice& units)
{
    ImportedRun imported;
    for (const PrintedRoot& root : run.roots) {
        ImportedMode mode {root.id, {}};
        mode.points.reserve(root.rows.size());
        for (const SummaryRow& row : root.rows)
            mode.points.push_back(importRow(row, run, units));
        imported.modes.push_back(std::move(mode));
    }
    if (isReducedFrequencyMethod(run.key.method)) {
        for (ImportedMode& mode : imported.modes)
            sortByFallingReducedFrequency(mode);
        if (std::any_of(imported.modes.begin(), imported.modes.end(), turnsBack))
            imported.log.emplace_back("speeds turn back in some roots: the solver's order is kept");
    } else {
        dropRepeatedRows(imported);
        for (ImportedMode& mode : imported.modes)
            sortBySpeed(mode);
    }
    logStaticRoots(imported);
    return imported;
}

} // namespace tarsil::solver
