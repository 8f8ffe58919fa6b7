// SPDX-License-Identifier: Apache-2.0

// This header gives the unsteady air loads of incompressible strip theory after Theodorsen.
#pragma once

#include "Structure.h"
#include "Wing.h"

#include <Eigen/Core>
#include <complex>

namespace tarsil::goland {

/// Theodorsen's function C(k) = F + iG = H1 / (H1 + i H0) with Hankel functions of the second kind,
/// for a real reduced frequency k > 0 (T. Theodorsen, NACA Report 496, 1935).
std::complex<double> theodorsen(double reducedFrequency);

/// Air loads on the natural modes divided by density and powers of speed. All of them are on the
/// left side of the equation of motion, where p is d/dt:
/// rho apparentMass p^2 + rho V flowDamping p + rho V C(k) (wakeDamping p + V wakeStiffness).
struct StripAerodynamics
{
    Eigen::MatrixXd apparentMass; ///< non-circulatory, not lagged
    Eigen::MatrixXd flowDamping; ///< non-circulatory, not lagged
    Eigen::MatrixXd wakeDamping; ///< circulatory, lagged by C(k)
    Eigen::MatrixXd wakeStiffness; ///< circulatory, lagged by C(k)
};

/// Integrates the lift and moment of NACA Report 496 over the span, strip by strip.
StripAerodynamics stripAerodynamics(const Wing& wing, const NaturalModes& modes);

} // namespace tarsil::goland
