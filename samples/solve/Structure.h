// SPDX-License-Identifier: Apache-2.0

// This header gives the natural modes of the wing in vacuum by assumed modes.
#pragma once

#include "Wing.h"

#include <Eigen/Core>

namespace tarsil::goland {

/// How many cantilever modes of each kind form the assumed shapes, and how many natural modes are
/// kept for the flutter solution.
struct ModeCount
{
    int bending = 10;
    int torsion = 10;
    int kept = 8;
};

/// Natural modes, each scaled to a generalised mass of 1 and with a positive tip; the columns of
/// the shapes are the modes in the order of frequency, the rows are the stations along the span.
struct NaturalModes
{
    Eigen::VectorXd omega; ///< circular frequency, rad/s
    Eigen::MatrixXd damping; ///< imaginary part of the generalised stiffness, 1/s^2
    Eigen::MatrixXd deflection; ///< of the elastic axis, positive down
    Eigen::MatrixXd twist; ///< positive nose up, rad
    Eigen::VectorXd weight; ///< length of span of each station, m
};

/// Solves the coupled bending and torsion of the wing with the tip store: kinetic energy
/// m h'^2 / 2 + S h' a' + I a'^2 / 2 per length, S = m times the mass offset.
NaturalModes naturalModes(const Wing& wing, const TipStore& store, const ModeCount& count);

} // namespace tarsil::goland
