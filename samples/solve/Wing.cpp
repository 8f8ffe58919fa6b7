// SPDX-License-Identifier: Apache-2.0

// This file holds the numbers of the Goland wing and of the store at its tip.
#include "Wing.h"

namespace tarsil::goland {

double semiChord(const Wing& wing)
{
    return 0.5 * wing.chord;
}

double axisPosition(const Wing& wing)
{
    return 2.0 * wing.elasticAxis - 1.0;
}

double massOffset(const Wing& wing)
{
    return (wing.massAxis - wing.elasticAxis) * wing.chord;
}

Wing golandWing()
{
    Wing wing;
    wing.halfSpan = 6.096;
    wing.chord = 1.8288;
    wing.massPerLength = 35.72;
    wing.inertiaPerLength = 8.64;
    wing.elasticAxis = 0.33;
    wing.massAxis = 0.43;
    wing.bendingStiffness = 9.77e6;
    wing.torsionStiffness = 0.987e6;
    return wing;
}

TipStore sampleStore()
{
    TipStore store;
    store.mass = 25.0;
    store.offset = 0.0;
    store.inertia = 1.0;
    store.pylonFrequency = 8.2;
    store.pylonDamping = 0.03;
    return store;
}

} // namespace tarsil::goland
