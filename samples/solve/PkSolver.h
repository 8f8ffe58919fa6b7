// SPDX-License-Identifier: Apache-2.0

// This header solves the flutter equation by the p-k method at one density and many speeds.
#pragma once

#include "Atmosphere.h"
#include "FlutterPoint.h"
#include "StripAerodynamics.h"
#include "Structure.h"
#include "Wing.h"

#include <Eigen/Core>
#include <complex>
#include <vector>

namespace tarsil::goland {

/// Follows every aeroelastic mode from still air upwards through the speeds. The method is that of
/// H. J. Hassig, J. of Aircraft 8(11), 1971: p is free everywhere but in C(k), whose argument is
/// made equal to k = Im(p) b / V of the root by iteration.
class PkSolver
{
public:
    /// The wing, its natural modes and the air of the run. The structural damping is that of the
    /// modes: none for a wing without a store.
    PkSolver(const Wing& wing, const NaturalModes& modes, const Air& air);

    /// One curve per natural mode at the given increasing equivalent airspeeds in knots.
    FlutterCurves solve(const std::vector<double>& knots) const;

private:
    /// A root of the flutter equation: p in rad/s and its vector of modal coordinates.
    struct Root
    {
        std::complex<double> p;
        Eigen::VectorXcd shape;
    };

    Eigen::MatrixXcd stateMatrix(double speed, double reducedFrequency) const;
    std::vector<Root> rootsAt(double speed, double reducedFrequency) const;
    std::vector<Root> stillAirRoots() const;
    Root convergedRoot(double speed, const Root& last, std::complex<double> expected) const;
    FlutterCurve follow(const Root& start, const std::vector<double>& knots) const;
    FlutterPoint pointOf(const Root& root, double knots) const;

    double m_semiChord;
    Air m_air;
    Eigen::VectorXd m_omega;
    Eigen::MatrixXd m_damping;
    StripAerodynamics m_aerodynamics;
    Eigen::MatrixXd m_massMatrix; // with the apparent mass of the air
    Eigen::MatrixXd m_inverseMass;
};

/// Whether p counts as a real root, which has the frequency zero: |Im(p)| b / V <= 0.001.
bool isReal(std::complex<double> p, double speed, double semiChord);

/// Damping g = 2 Re(p) / Im(p) of an oscillation, twice its ratio to critical damping and negative
/// when stable; a real root gives 2 Re(p) b / (V ln 2), V in m/s and b the semi-chord.
double dampingOf(std::complex<double> p, double speed, double semiChord);

} // namespace tarsil::goland
