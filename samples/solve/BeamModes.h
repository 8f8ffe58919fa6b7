// SPDX-License-Identifier: Apache-2.0

// This header gives the closed-form mode shapes of a uniform cantilever beam.
#pragma once

namespace tarsil::goland {

/// The root beta L of cosh(x) cos(x) = -1 for a bending mode numbered from 1.
double bendingRoot(int mode);

/// Deflection of a bending mode at eta = y / L (0 root, 1 tip). The tip value is +-2, and the mean
/// of its square over the span is 1.
double bendingShape(int mode, double eta);

/// Twist of a torsion mode numbered from 1, sin((2 mode - 1) pi eta / 2).
double torsionShape(int mode, double eta);

/// The argument (2 mode - 1) pi / 2 of the torsion mode at the tip.
double torsionRoot(int mode);

} // namespace tarsil::goland
