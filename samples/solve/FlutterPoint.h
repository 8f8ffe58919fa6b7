// SPDX-License-Identifier: Apache-2.0

// This header holds the results of a flutter solution.
#pragma once

#include <Eigen/Core>
#include <complex>
#include <vector>

namespace tarsil::goland {

/// One aeroelastic mode at one speed.
struct FlutterPoint
{
    double knots = 0.0; ///< equivalent airspeed, KEAS
    double trueSpeed = 0.0; ///< m/s
    double reducedFrequency = 0.0; ///< k = omega b / V
    std::complex<double> eigenvalue; ///< p in rad/s
    double damping = 0.0; ///< g, negative when the mode is stable
    double frequency = 0.0; ///< Hz
    Eigen::VectorXcd participation; ///< of the natural modes, the largest is 1
};

/// The points of one aeroelastic mode in the order of speed.
using FlutterCurve = std::vector<FlutterPoint>;

/// The curves of all aeroelastic modes in the order of their frequency in still air.
using FlutterCurves = std::vector<FlutterCurve>;

} // namespace tarsil::goland
