// SPDX-License-Identifier: Apache-2.0

// This file computes Theodorsen's function and the air loads on the natural modes.
#include "StripAerodynamics.h"

#include <cmath>
#include <numbers>

namespace tarsil::goland {

std::complex<double> theodorsen(double reducedFrequency)
{
    using Complex = std::complex<double>;
    const Complex hankel0(std::cyl_bessel_j(0.0, reducedFrequency),
                          -std::cyl_neumann(0.0, reducedFrequency));
    const Complex hankel1(std::cyl_bessel_j(1.0, reducedFrequency),
                          -std::cyl_neumann(1.0, reducedFrequency));
    return hankel1 / (hankel1 + Complex(0.0, 1.0) * hankel0);
}

StripAerodynamics stripAerodynamics(const Wing& wing, const NaturalModes& modes)
{
    const double pi = std::numbers::pi;
    const double b = semiChord(wing);
    const double a = axisPosition(wing);
    const auto weight = modes.weight.asDiagonal();
    const Eigen::MatrixXd& h = modes.deflection;
    const Eigen::MatrixXd& twist = modes.twist;
    const Eigen::MatrixXd atMiddle = h - a * b * twist; // half chord
    const Eigen::MatrixXd atThreeQuarter = h + (0.5 - a) * b * twist; // downwash point
    const Eigen::MatrixXd atQuarter = h - (0.5 + a) * b * twist; // lift point

    StripAerodynamics air;
    air.apparentMass = pi * b * b * (atMiddle.transpose() * weight * atMiddle);
    air.apparentMass += pi * std::pow(b, 4) / 8.0 * (twist.transpose() * weight * twist);
    air.flowDamping = pi * b * b * (atThreeQuarter.transpose() * weight * twist);
    air.wakeDamping = 2.0 * pi * b * (atQuarter.transpose() * weight * atThreeQuarter);
    air.wakeStiffness = 2.0 * pi * b * (atQuarter.transpose() * weight * twist);
    return air;
}

} // namespace tarsil::goland
