// SPDX-License-Identifier: Apache-2.0

// This file holds the mass configurations, Mach numbers and altitudes of the samples.
#include "Cases.h"

#include "NumberText.h"
#include "PkSolver.h"
#include "Structure.h"

#include <cmath>

namespace tarsil::goland {

namespace {

MassConfiguration cleanWing()
{
    MassConfiguration configuration;
    configuration.name = "CLEAN";
    configuration.title = "clean wing";
    configuration.fileName = "clean";
    configuration.modeNames = {"first bending",  "first torsion", "second torsion",
                               "second bending", "third torsion", "fourth torsion",
                               "fifth torsion"};
    return configuration;
}

MassConfiguration wingWithStore()
{
    MassConfiguration configuration;
    configuration.name = "TIP_STORE";
    configuration.title = "wing with tip store";
    configuration.fileName = "tipstore";
    configuration.store = sampleStore();
    configuration.modifications = {
        "Tip store 25 kg on the elastic axis, 1.0 kg m2 in pitch, no air loads",
        "Tip pylon 8.2 Hz in store pitch, structural damping 0.03"};
    configuration.modeNames = {"first bending",  "store pitch",    "first torsion",
                               "second torsion", "second bending", "third torsion",
                               "fourth torsion", "fifth torsion"};
    return configuration;
}

} // namespace

std::vector<FlutterCase> sampleCases()
{
    const MassConfiguration clean = cleanWing();
    const MassConfiguration store = wingWithStore();
    return {{clean, 0.40, 0.0, RowWidth::FactorPhaseAndMode, false, true},
            {clean, 0.50, 14000.0, RowWidth::FactorAndPhase, true, false},
            {clean, 0.60, 24000.0, RowWidth::NoFactors, false, false},
            {store, 0.40, 0.0, RowWidth::FactorAndPhase, true, true},
            {store, 0.50, 14000.0, RowWidth::FactorPhaseAndMode, false, false},
            {store, 0.60, 24000.0, RowWidth::NoFactors, false, false}};
}

std::vector<double> sampleSpeeds()
{
    std::vector<double> speeds;
    for (int index = 0; index <= 50; ++index) {
        speeds.push_back(20.0 + 8.0 * index);
    }
    return speeds;
}

Air airOf(const FlutterCase& flutterCase)
{
    return standardAir(flutterCase.altitude * metresInFoot);
}

FlutterCurves solveCase(const FlutterCase& flutterCase)
{
    const MassConfiguration& configuration = flutterCase.configuration;
    const Wing wing = golandWing();
    ModeCount count;
    count.kept = static_cast<int>(configuration.modeNames.size());
    const NaturalModes modes = naturalModes(wing, configuration.store, count);
    return PkSolver(wing, modes, airOf(flutterCase)).solve(sampleSpeeds());
}

std::string fileStem(const FlutterCase& flutterCase)
{
    const int hundredths = static_cast<int>(std::lround(100.0 * flutterCase.mach));
    std::string digits = integerText(hundredths, 3);
    for (char& digit : digits) {
        digit = digit == ' ' ? '0' : digit;
    }
    return "goland_" + flutterCase.configuration.fileName + "_m" + digits;
}

} // namespace tarsil::goland
