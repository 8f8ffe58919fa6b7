// SPDX-License-Identifier: Apache-2.0

// This header lists the flutter runs that make up the sample files.
#pragma once

#include "Atmosphere.h"
#include "FlutterPoint.h"
#include "Wing.h"

#include <string>
#include <vector>

namespace tarsil::goland {

/// The layout of the participation factors in the rows of an .ev2 file; the value is the number of
/// fields of a row.
enum class RowWidth { NoFactors = 11, FactorAndPhase = 21, FactorPhaseAndMode = 26 };

/// A mass configuration of the wing.
struct MassConfiguration
{
    std::string name; ///< as written in the files, e.g. CLEAN
    std::string title; ///< for people, e.g. clean wing
    std::string fileName; ///< its part of the file names, e.g. clean
    TipStore store; ///< mass 0 for none
    std::vector<std::string> modifications; ///< sentences on what differs from CLEAN
    std::vector<std::string> modeNames; ///< of the aeroelastic modes in still-air order
};

/// A run: a mass configuration at a Mach number and its altitude.
struct FlutterCase
{
    MassConfiguration configuration;
    double mach = 0.0; ///< nominal, of the flutter point of CLEAN
    double altitude = 0.0; ///< ft in the standard atmosphere
    RowWidth rowWidth = RowWidth::NoFactors;
    bool windowsLineEnds = false; ///< CR LF in the .ev2 file, otherwise LF
    bool oldFile = false; ///< also written as .evm
};

/// The six runs of the samples.
std::vector<FlutterCase> sampleCases();

/// The speeds of every run in KEAS.
std::vector<double> sampleSpeeds();

/// The air of a run.
Air airOf(const FlutterCase& flutterCase);

/// Solves a run: natural modes, then the p-k method with one aeroelastic mode for each
/// mode name.
FlutterCurves solveCase(const FlutterCase& flutterCase);

/// The file name of a run without its ending, e.g. goland_clean_m040.
std::string fileStem(const FlutterCase& flutterCase);

} // namespace tarsil::goland
