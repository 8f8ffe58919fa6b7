// SPDX-License-Identifier: Apache-2.0
#include "solver/UnitEvidence.h"

#include "base/numbers/NumberFormat.h"
#include "base/text/TextCodec.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

namespace tarsil::solver {

namespace {

// Rows that determine a chord: oscillating, and with enough printed digits of k.
constexpr double leastK = 0.01;
constexpr double leastFrequency = 0.05; ///< Hz

constexpr double chordTolerance = 0.01;

// Speeds of sound in the atmosphere, metres per second.
constexpr double leastSpeedOfSound = 285;
constexpr double mostSpeedOfSound = 350;

// Standard atmosphere: T = a^2 / (gamma R), and density by temperature in the troposphere.
constexpr double gammaR = 401.874; ///< J/(kg K)
constexpr double seaLevelTemperature = 288.15; ///< K
constexpr double densityExponent = 4.2559;
constexpr double leastTemperature = 218; ///< K
constexpr double mostTemperature = 300; ///< K

constexpr double densityTolerance = 0.05;

double median(std::vector<double> values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

/// The reduced frequency from its inverse, which is printed with more digits.
double exactK(const SummaryRow& row)
{
    return std::isfinite(row.inverseK) && row.inverseK != 0 ? 1 / row.inverseK : row.k;
}

template <typename Visit>
void forEachRow(const std::vector<SolverRun>& runs, Visit visit)
{
    for (const SolverRun& run : runs) {
        for (const PrintedRoot& root : run.roots) {
            for (const SummaryRow& row : root.rows)
                visit(run, row);
        }
    }
}

/// A quotient outside the range of numbers proves nothing.
void addFinite(double value, std::vector<double>& values)
{
    if (std::isfinite(value))
        values.push_back(value);
}

std::vector<double> chords(const std::vector<SolverRun>& runs)
{
    std::vector<double> values;
    forEachRow(runs, [&values](const SolverRun& run, const SummaryRow& row) {
        const bool tellsChord = !isReducedFrequencyMethod(run.key.method) && row.k > leastK
            && row.frequency > leastFrequency && row.speed != 0;
        if (tellsChord)
            addFinite(exactK(row) * std::abs(row.speed) / (std::numbers::pi * row.frequency),
                      values);
    });
    return values;
}

void findChord(const std::vector<SolverRun>& runs, UnitEvidence& evidence)
{
    const std::vector<double> values = chords(runs);
    if (values.empty())
        return;
    const double chord = median(values);
    evidence.chord = chord;
    evidence.isChordConsistent = std::all_of(values.begin(), values.end(), [chord](double value) {
        return std::abs(value - chord) <= chordTolerance * chord;
    });
}

void findSpeedOfSound(const std::vector<SolverRun>& runs, UnitEvidence& evidence)
{
    std::vector<double> values;
    forEachRow(runs, [&values](const SolverRun&, const SummaryRow& row) {
        if (row.mach > 0 && row.speed != 0)
            addFinite(std::abs(row.speed) / row.mach, values);
    });
    if (values.empty())
        return;
    evidence.speedOfSound = median(std::move(values));
    for (const Unit& unit : speedUnits) {
        const double metres = *evidence.speedOfSound * unit.factor;
        if (metres >= leastSpeedOfSound && metres <= mostSpeedOfSound)
            evidence.speed = unit;
    }
}

/// The printed densities with the ratios that follow from the temperatures of their rows.
std::vector<std::pair<double, double>> densitiesAndRatios(const std::vector<SolverRun>& runs,
                                                          const Unit& speed)
{
    std::vector<std::pair<double, double>> pairs;
    forEachRow(runs, [&](const SolverRun&, const SummaryRow& row) {
        if (!(row.mach > 0) || !(row.density > 0))
            return;
        const double sound = std::abs(row.speed) * speed.factor / row.mach;
        const double temperature = sound * sound / gammaR;
        if (temperature > leastTemperature && temperature < mostTemperature)
            pairs.emplace_back(row.density,
                               std::pow(temperature / seaLevelTemperature, densityExponent));
    });
    return pairs;
}

void findDensityUnit(const std::vector<SolverRun>& runs, UnitEvidence& evidence)
{
    if (!evidence.speed)
        return;
    const auto pairs = densitiesAndRatios(runs, *evidence.speed);
    for (const Unit& unit : densityUnits) {
        const auto agreeing = std::count_if(pairs.begin(), pairs.end(), [&unit](const auto& pair) {
            return std::abs(pair.first * unit.factor - pair.second)
                <= densityTolerance * pair.second;
        });
        if (agreeing > 0 && 2 * static_cast<std::size_t>(agreeing) >= pairs.size())
            evidence.density = unit;
    }
}

} // namespace

UnitEvidence unitEvidence(const std::vector<SolverRun>& runs)
{
    UnitEvidence evidence;
    findChord(runs, evidence);
    findSpeedOfSound(runs, evidence);
    findDensityUnit(runs, evidence);
    return evidence;
}

std::vector<std::string> evidenceText(const UnitEvidence& evidence, const SummaryFile& file)
{
    std::vector<std::string> lines;
    if (evidence.chord) {
        const std::string chord = "reference chord " + formatNumber(*evidence.chord, "0.000");
        lines.push_back(evidence.isChordConsistent
                            ? chord + ": in which unit of length is this your chord?"
                            : chord + ", but the rows disagree: inconsistent");
    }
    if (evidence.speedOfSound)
        lines.push_back("V/Mach = " + formatNumber(*evidence.speedOfSound, "0.0") + ": "
                        + (evidence.speed ? std::string(evidence.speed->name)
                                          : "a speed of sound in no known unit"));
    if (evidence.density)
        lines.push_back("densities fit the standard atmosphere in "
                        + std::string(evidence.density->name));
    for (const LogEntry& card : file.cards)
        lines.push_back("line " + std::to_string(card.line) + ": " + decodeText(card.text));
    return lines;
}

} // namespace tarsil::solver
