#pragma once

#include "solver/SolverUnits.h"
#include "solver/SummaryTable.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace tarsil::solver {

/// One root of an analysis through all its rows.
struct PrintedRoot
{
    std::int32_t id = 0; ///< the number of its mode
    std::vector<SummaryRow> rows;
};

/// One flutter analysis: the tables of one key and one pass, as roots of equal length.
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
    bool wasCut = false; ///< the roots had unequal lengths
    std::vector<std::string> log;
};

/// Whether rows are the loops of one reduced frequency, in methods K and KE; otherwise they are the
/// speeds of one root.
bool isReducedFrequencyMethod(const std::string& method);

/// The analyses of a file in order of appearance.
///
/// PK, PKNL and KE: POINT is the root; the ids are POINT, or 1..n where the numbering runs on from
/// the analysis before. K: POINT is the loop, and root r has the r-th row of each table. Roots of
/// unequal length are cut to the shortest.
std::vector<SolverRun> runsOf(const SummaryFile& file);

/// One point of an evolution that is made of a run.
struct ImportedPoint
{
    double im = 0; ///< rad/s
    double re = 0; ///< rad/s
    double k = notPrinted;
    double keas = 0;
    double damping = 0;
    double frequency = 0; ///< Hz
    double mach = notPrinted;
    double sigma = notPrinted; ///< density over that at sea level
};

struct ImportedMode
{
    std::int32_t id = 0;
    std::vector<ImportedPoint> points;
};

/// A run in the units of evolutions, its speeds in order.
struct ImportedRun
{
    std::vector<ImportedMode> modes; ///< all of one length
    std::size_t droppedRows = 0; ///< repeated conditions, in PK and PKNL
    std::vector<std::string> log;
};

/// Converts speeds to KEAS. PK and PKNL: rows that repeat density, Mach number and speed (within
/// 5e-4 of it) of an earlier one are dropped, and the others sorted by speed. K and KE: rows are in
/// order of falling reduced frequency, nothing is dropped, and speeds may turn back. The solver's
/// damping is kept, also where a root is static (frequency 0). Error 6 "Overflow" for a row whose
/// speed and density give no equivalent airspeed, or with a value that no single can hold.
ImportedRun importRun(const SolverRun& run, const UnitChoice& units);

} // namespace tarsil::solver
