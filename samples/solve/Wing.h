// SPDX-License-Identifier: Apache-2.0

// This header holds the data of the uniform cantilever wing and of the store at its tip.
#pragma once

namespace tarsil::goland {

/// A uniform cantilever wing in SI units; chordwise positions are fractions of the chord aft of the
/// leading edge.
struct Wing
{
    double halfSpan = 0.0; ///< root to tip, m
    double chord = 0.0; ///< m
    double massPerLength = 0.0; ///< kg/m
    double inertiaPerLength = 0.0; ///< about the elastic axis, kg m
    double elasticAxis = 0.0; ///< fraction of the chord
    double massAxis = 0.0; ///< fraction of the chord
    double bendingStiffness = 0.0; ///< EI, N m^2
    double torsionStiffness = 0.0; ///< GJ, N m^2
};

/// A rigid store at the wing tip on a pylon that yields in pitch about the elastic axis; the store
/// carries mass only and no air loads.
struct TipStore
{
    double mass = 0.0; ///< kg
    double offset = 0.0; ///< its mass centre aft of the elastic axis, m
    double inertia = 0.0; ///< in pitch about its own mass centre, kg m^2
    double pylonFrequency = 0.0; ///< in pitch with the wing tip held fast, Hz
    double pylonDamping = 0.0; ///< structural damping g of the pylon's stiffness
};

/// Half the chord in metres, the reference length b of the reduced frequency k = omega b / V.
double semiChord(const Wing& wing);

/// Theodorsen's a: the elastic axis aft of the middle of the chord, in semi-chords.
double axisPosition(const Wing& wing);

/// The mass centre aft of the elastic axis in metres.
double massOffset(const Wing& wing);

/// The wing of M. Goland, J. Applied Mechanics 12(4), 1945, in SI units.
Wing golandWing();

/// The tip store of the second mass configuration, an addition made for these samples.
TipStore sampleStore();

} // namespace tarsil::goland
