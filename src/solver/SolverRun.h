// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "solver/SolverUnits.h"
#include "solver/SummaryTable.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace tarsil::solver {

/// A root of an analysis in all its rows.
struct PrintedRoot
{
    std::int32_t id = 0; ///< the number of its mode
    std::vector<SummaryRow> rows;
};

/// A flutter analysis: the tables of one key and one pass, as roots of equal length.
struct SolverRun
{
    AnalysisKey key;
    std::int32_t cycle = 1;
    std::vector<PrintedRoot> roots; ///< in printed order
    std::string banner;
    std::string date;
    std::string title;
    std::string subtitle;
    std::string label;
    std::size_t firstLine = 0;
    std::size_t lastLine = 0;
    bool wasCut = false; ///< whether the roots had unequal lengths
    std::vector<std::string> log;
};

/// Whether rows are loops at one reduced frequency (methods K and KE); otherwise they are speeds of
/// one root.
bool isReducedFrequencyMethod(const std::string& method);

/// The analyses of a file in order of appearance.
///
/// PK, PKNL and KE: POINT is the root. The ids are POINT, or 1..n where the numbering continues
/// that of the previous analysis. K: POINT is the loop, and root r is the r-th row of each table.
/// Roots of unequal length are cut to the shortest.
std::vector<SolverRun> runsOf(const SummaryFile& file);

/// A point of an evolution made from a run.
struct ImportedPoint
{
    double im = 0; ///< rad/s
    double re = 0; ///< rad/s
    double k = notPrinted;
    double keas = 0;
    double damping = 0;
    double frequency = 0; ///< Hz
    double mach = notPrinted;
    double sigma = notPrinted; ///< density relative to sea level
};

struct ImportedMode
{
    std::int32_t id = 0;
    std::vector<ImportedPoint> points;
};

/// A run in the units of evolutions, with its speeds in order.
struct ImportedRun
{
    std::vector<ImportedMode> modes; ///< all of one length
    std::size_t droppedRows = 0; ///< repeated conditions, in PK and PKNL
    std::vector<std::string> log;
};

/// Converts speeds to KEAS. PK and PKNL: rows that repeat density, Mach number and speed (within
/// 5e-4 of it) of an earlier row are dropped, and the others are sorted by speed. K and KE: rows
/// are in order of falling reduced frequency, nothing is dropped, and speeds may decrease. The
/// damping is that of the solver, also for static roots (frequency 0). Error 6 "Overflow" for a row
/// without a valid equivalent airspeed, or with a value beyond the range of a single.
ImportedRun importRun(const SolverRun& run, const UnitChoice& units);

} // namespace tarsil::solver
