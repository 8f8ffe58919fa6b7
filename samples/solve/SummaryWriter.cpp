// SPDX-License-Identifier: Apache-2.0

// This file writes flutter summaries: a page of rows for each root of each subcase.
#include "SummaryWriter.h"

#include "NumberText.h"

#include <cstddef>

namespace tarsil::goland {

namespace {

constexpr std::size_t step = 2; // of the speeds that are printed

/// A number with seven decimals, like the output of a solver.
std::string longText(double value)
{
    return exponentText(value, 18, 7);
}

std::string pageHead(const SolvedCase& solved, int subcase, int page)
{
    const MassConfiguration& configuration = solved.flutterCase.configuration;
    std::string text = "1    GOLAND WING                                                       ";
    text += "JANUARY   1, 2000  TARSIL SAMPLE SOLVER 1.0   PAGE " + integerText(page, 5) + "\n";
    text += "      " + configuration.name + "\n";
    text += "0     ALTITUDE " + fixedText(solved.flutterCase.altitude, 0, 0) + " FT";
    text += "                                                           SUBCASE "
        + integerText(subcase, 0) + "\n";
    text += "0                                                  FLUTTER  SUMMARY\n";
    return text;
}

std::string pointLine(const SolvedCase& solved, int root)
{
    const double ratio = airOf(solved.flutterCase).density / seaLevelDensity;
    return "       POINT = " + integerText(root, 4)
        + "     MACH NUMBER = " + fixedText(solved.flutterCase.mach, 7, 4)
        + "     DENSITY RATIO = " + exponentText(ratio, 12) + "     METHOD = PK\n";
}

std::string rowText(const FlutterPoint& point)
{
    return fixedText(point.reducedFrequency, 14, 4) + longText(1 / point.reducedFrequency)
        + longText(point.trueSpeed / metresInFoot) + longText(point.damping)
        + longText(point.frequency) + longText(point.eigenvalue.real())
        + longText(point.eigenvalue.imag()) + "\n";
}

std::string pageText(const SolvedCase& solved, int subcase, int root, int page)
{
    std::string text = pageHead(solved, subcase, page);
    text += "                         CONFIGURATION = WING     XY-SYMMETRY = ASYMMETRIC     "
            "XZ-SYMMETRY = SYMMETRIC\n";
    text += pointLine(solved, root);
    text += "\n\n         KFREQ         1./KFREQ          VELOCITY           DAMPING         "
            "FREQUENCY        COMPLEX   EIGENVALUE\n\n";
    const FlutterCurve& curve = solved.curves[static_cast<std::size_t>(root) - 1];
    for (std::size_t i = 0; i < curve.size(); i += step) {
        text += rowText(curve[i]);
    }
    return text;
}

} // namespace

std::string summaryText(const std::vector<SolvedCase>& cases)
{
    std::string text;
    int page = 0;
    int subcase = 0;
    for (const SolvedCase& solved : cases) {
        ++subcase;
        for (std::size_t root = 1; root <= solved.curves.size(); ++root) {
            text += pageText(solved, subcase, static_cast<int>(root), ++page);
        }
    }
    return text + "1                                        * * * END OF JOB * * *\n";
}

} // namespace tarsil::goland
