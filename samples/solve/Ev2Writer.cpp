// SPDX-License-Identifier: Apache-2.0

// This file writes .ev2 files: three sections and one row of fields split by bars for each point.
#include "Ev2Writer.h"

#include "NumberText.h"

#include <cmath>
#include <complex>
#include <numbers>

namespace tarsil::goland {

namespace {

constexpr int factorCount = 5;

std::string processingSection()
{
    return "[PROCESSING DATA INFO]\n"
           "Program_version=goland-solve 1.0\n"
           "EV2_version=2\n"
           "Running_date=01.01.2000 00:00:00 (fixed)\n"
           "\n";
}

std::string numberedLines(const std::string& key, const std::vector<std::string>& texts)
{
    std::string lines;
    int number = 0;
    for (const std::string& text : texts) {
        ++number;
        lines.append(key)
            .append("(")
            .append(std::to_string(number))
            .append(")=")
            .append(text)
            .append("\n");
    }
    return lines;
}

std::string modelSection(const FlutterCase& flutterCase, const FlutterCurves& curves)
{
    const MassConfiguration& configuration = flutterCase.configuration;
    const std::string altitude = fixedText(flutterCase.altitude, 0, 0);
    std::string text = "[MODEL DATA INFO]\n"
                       "Nastran_version=none, Tarsil sample solver\n"
                       "Flutter_method=PK\n"
                       "Airplane=GOLAND WING\n"
                       "Script=goland-solve\n";
    text += "Mass_config=" + configuration.name + "\n";
    text += "Mach_number=" + fixedText(flutterCase.mach, 0, 2) + "\n";
    text += "Struct_modes=" + std::to_string(curves.size()) + "\n";
    text += "Aeroel_modes=" + std::to_string(curves.size()) + "\n";
    text += "No_of_speeds=" + std::to_string(curves.front().size()) + "\n";
    text += "Analysis_type=CANTILEVER, ALTITUDE " + altitude + " FT\n";
    text += "No_of_modif=" + std::to_string(configuration.modifications.size()) + "\n";
    text += numberedLines("Modif", configuration.modifications);
    text += numberedLines("Legend", {configuration.title, "altitude " + altitude + " ft"});
    return text + "\n";
}

std::string headingLines(RowWidth rowWidth)
{
    std::string title = "Mode|Point|    Im(p)   |    Re(p)   |  k=wb/V |  Speed  | Damping g  "
                        "|Frequency|   zeta     |   TAS   |";
    std::string units = "  -  |  - |    rad/s   |    rad/s   |    -    |  KEAS   |     -      "
                        "|   Hz    |     -      |   m/s   |";
    for (int factor = 1; factor <= factorCount && rowWidth != RowWidth::NoFactors; ++factor) {
        const bool withMode = rowWidth == RowWidth::FactorPhaseAndMode;
        title += " MPF " + std::to_string(factor) + " | Phase |" + (withMode ? "No|" : "");
        units += "   -   |  deg  |" + std::string(withMode ? " -|" : "");
    }
    const std::string rule(title.size(), '-');
    return rule + "\n" + title + "\n" + units + "\n" + rule + "\n";
}

std::string factorFields(const FlutterPoint& point, RowWidth rowWidth)
{
    std::string fields;
    for (int index = 0; index < factorCount && rowWidth != RowWidth::NoFactors; ++index) {
        const std::complex<double> factor = point.participation(index);
        const double degrees = std::arg(factor) * 180.0 / std::numbers::pi;
        fields += fixedText(std::abs(factor), 7, 5) + "|" + fixedText(degrees, 7, 2) + "|";
        if (rowWidth == RowWidth::FactorPhaseAndMode) {
            fields += integerText(index + 1, 2) + "|";
        }
    }
    return fields;
}

std::string row(int mode, int number, const FlutterPoint& point, RowWidth rowWidth)
{
    std::string text = integerText(mode, 4) + "|" + integerText(number, 5) + "|";
    text += exponentText(point.eigenvalue.imag(), 12) + "|";
    text += exponentText(point.eigenvalue.real(), 12) + "|";
    text += fixedText(point.reducedFrequency, 9, 4) + "|";
    text += fixedText(point.knots, 9, 3) + "|";
    text += exponentText(point.damping, 12) + "|";
    text += fixedText(point.frequency, 9, 3) + "|";
    text += exponentText(-point.eigenvalue.real() / std::abs(point.eigenvalue), 12) + "|";
    text += fixedText(point.trueSpeed, 9, 3) + "|";
    return text + factorFields(point, rowWidth) + "\n";
}

} // namespace

std::string ev2Text(const FlutterCase& flutterCase, const FlutterCurves& curves)
{
    std::string text = processingSection() + modelSection(flutterCase, curves);
    text += "[RESULT DATA SUMMARY]\n" + headingLines(flutterCase.rowWidth);
    int mode = 0;
    for (const FlutterCurve& curve : curves) {
        ++mode;
        int number = 0;
        for (const FlutterPoint& point : curve) {
            ++number;
            text += row(mode, number, point, flutterCase.rowWidth);
        }
    }
    return text + "\n";
}

} // namespace tarsil::goland
