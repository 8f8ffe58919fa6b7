// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <vector>

namespace tarsil::solver {

/// A value that a table lacks, or that was printed as stars.
constexpr double notPrinted = std::numeric_limits<double>::quiet_NaN();

/// A row of a flutter summary, in the units of the solver.
struct SummaryRow
{
    double k = notPrinted; ///< reduced frequency
    double inverseK = notPrinted; ///< 1/k, printed with more digits than k
    double density = notPrinted; ///< of a PKNL table
    double mach = notPrinted; ///< of a PKNL table
    double speed = 0; ///< as printed; may be negative
    double damping = 0; ///< g; negative is stable
    double frequency = 0; ///< Hz
    double re = 0; ///< of the eigenvalue, as printed
    double im = 0;
    std::size_t line = 0; ///< in the file, counted from 1
};

/// The common part of the tables of a flutter analysis: the numbers in the line above a table. A
/// value that the line lacks is empty.
struct AnalysisKey
{
    std::optional<std::string> subcase;
    std::string method; ///< "PK", "PKNL", "KE", "K"
    std::optional<double> mach;
    std::optional<double> sigmaValue; ///< the angle of a NASTRAN-95 summary
    std::optional<double> densityRatio;

    bool operator==(const AnalysisKey&) const = default;
};

/// A printed table with its continuation pages: the rows of one POINT.
struct SummaryTable
{
    AnalysisKey key;
    std::int32_t cycle = 1; ///< the pass in which this key and POINT were printed
    std::int32_t point = 0;
    bool carriesDensity = false; ///< nine numbers in a row instead of seven
    std::vector<SummaryRow> rows;
    std::string banner; ///< the solver and its version, as printed
    std::string date; ///< of the run, as printed
    std::string title;
    std::string subtitle;
    std::string label;
    std::size_t firstLine = 0; ///< of the title "FLUTTER  SUMMARY"
    std::size_t lastLine = 0; ///< of the last row
};

/// A remark of the reader on a line.
struct LogEntry
{
    std::size_t line = 0;
    std::string text;
};

/// The contents of a file: its tables in printed order, the cards of the echoed deck about units,
/// and remarks.
struct SummaryFile
{
    std::vector<SummaryTable> tables;
    std::vector<LogEntry> cards; ///< AERO and PARAM,VREF cards as echoed
    std::vector<LogEntry> log;
    std::size_t lines = 0;
    bool isBinary = false; ///< the file begins with bytes that text does not contain
    bool isStopped = false; ///< the user has stopped the reading; then there is nothing else
};

} // namespace tarsil::solver
