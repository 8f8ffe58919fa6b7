// SPDX-License-Identifier: Apache-2.0

// This file writes .evm files: four head lines, then two points of 40 columns on each line.
#include "EvmWriter.h"

#include "NumberText.h"

namespace tarsil::goland {

namespace {

/// Cuts a text or pads it with blanks to the width.
std::string padded(std::string text, std::size_t width)
{
    text.resize(width, ' ');
    return text;
}

std::string headLines(const FlutterCase& flutterCase, const FlutterCurves& curves)
{
    std::string text = "AIRPLANE: GOLAND WING (UNIFORM CANTILEVER), TARSIL SAMPLE SOLVER\n";
    text += "MASS CONFIGURATION: " + flutterCase.configuration.name + "\n";
    text += "CASE: P-K METHOD, MACH " + fixedText(flutterCase.mach, 0, 2) + ", ALTITUDE "
        + fixedText(flutterCase.altitude, 0, 0) + " FT\n";
    text += padded("NUMBER OF SPEEDS AND OF AEROELASTIC MODES", 60);
    text += integerText(static_cast<int>(curves.front().size()), 4);
    text += integerText(static_cast<int>(curves.size()), 8) + "\n";
    return text;
}

/// A point in 40 columns; adjacent fields may touch.
std::string pointField(int mode, const FlutterPoint& point)
{
    return integerText(mode, 3) + fixedText(point.reducedFrequency, 7, 3)
        + fixedText(point.knots, 9, 3) + exponentText(-point.damping, 12)
        + fixedText(point.frequency, 9, 3);
}

} // namespace

std::string evmText(const FlutterCase& flutterCase, const FlutterCurves& curves)
{
    std::string text = headLines(flutterCase, curves);
    bool leftHalf = true;
    int mode = 0;
    for (const FlutterCurve& curve : curves) {
        ++mode;
        for (const FlutterPoint& point : curve) {
            text += pointField(mode, point) + (leftHalf ? "" : "\n");
            leftHalf = !leftHalf;
        }
    }
    return text + (leftHalf ? "" : "\n");
}

} // namespace tarsil::goland
