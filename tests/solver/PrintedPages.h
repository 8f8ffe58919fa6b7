// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "solver/SummaryReader.h"

#include <string>
#include <string_view>
#include <vector>

namespace tarsil::test {

/// A page of a flutter summary as solvers print it.
struct PrintedPage
{
    std::string title = "WING";
    std::string subtitle = "CLEAN";
    std::string label = "FIRST RUN";
    std::string subcase = "1"; ///< empty for none
    std::string pointLine = "       POINT =    1     MACH NUMBER =  0.3000     DENSITY RATIO =  "
                            "1.0000E+00     METHOD = PK";
    bool hasDensity = false;
    std::vector<std::string> rows;
};

/// The text of a page; its rows start after line 10.
inline std::string printed(const PrintedPage& page)
{
    const std::string headings = page.hasDensity
        ? "    KFREQ   1./KFREQ   DENSITY   MACH NO.   VELOCITY   DAMPING   FREQUENCY   COMPLEX   "
          "EIGENVALUE"
        : "       KFREQ     1./KFREQ     VELOCITY     DAMPING     FREQUENCY     COMPLEX   "
          "EIGENVALUE";
    std::string text = "1    " + page.title
        + "                             MARCH  23, 2022  MSC Nastran  3/11/18   PAGE     1\n";
    text += "      " + page.subtitle + "\n";
    text += "0     " + page.label;
    text += page.subcase.empty() ? "\n" : "                  SUBCASE " + page.subcase + "\n";
    text += "0                                      FLUTTER  SUMMARY\n";
    text += "                         CONFIGURATION = AEROSG2D     XY-SYMMETRY = ASYMMETRIC\n";
    text += page.pointLine + "\n \n\n" + headings + "\n\n";
    for (const std::string& row : page.rows)
        text += row + "\n";
    return text;
}

/// The line with POINT, Mach number, density ratio and method.
inline std::string pointLine(int point, const std::string& mach = "0.3000",
                             const std::string& ratio = "1.0000E+00",
                             const std::string& method = "PK")
{
    return "       POINT =    " + std::to_string(point) + "     MACH NUMBER =  " + mach
        + "     DENSITY RATIO =  " + ratio + "     METHOD = " + method + "  ";
}

/// A row of seven numbers with this speed, damping and frequency.
inline std::string row(const std::string& speed, const std::string& damping = "-1.0000000E-02",
                       const std::string& frequency = "5.0000000E+00")
{
    return "        0.5000       2.0000000E+00     " + speed + "     " + damping + "     "
        + frequency + "    -1.5000000E-01     3.1415927E+01";
}

/// Rows of 100 and 200, in the unit of speed of the page.
inline const std::vector<std::string> twoRows = {row("1.0E+02"), row("2.0E+02")};

/// Reads a text in memory.
inline solver::SummaryFile readSummariesOfText(std::string_view text)
{
    solver::SummaryScanner scanner;
    scanner.read(text);
    return scanner.result();
}

} // namespace tarsil::test
