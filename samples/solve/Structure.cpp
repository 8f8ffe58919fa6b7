// SPDX-License-Identifier: Apache-2.0

// This file forms the mass and stiffness of the assumed modes and solves the natural modes.
#include "Structure.h"

#include "BeamModes.h"

#include <Eigen/Eigenvalues>
#include <cmath>
#include <numbers>

namespace tarsil::goland {

namespace {

constexpr int panelCount = 400; // even, for Simpson's rule

/// Values of all assumed shapes at the stations: bending columns first, then torsion columns, then
/// the pitch of the pylon, which does not move the wing.
struct AssumedShapes
{
    Eigen::MatrixXd deflection;
    Eigen::MatrixXd twist;
    Eigen::VectorXd weight;
};

AssumedShapes assumedShapes(const Wing& wing, const ModeCount& count)
{
    const int total = count.bending + count.torsion + 1;
    AssumedShapes shapes;
    shapes.deflection = Eigen::MatrixXd::Zero(panelCount + 1, total);
    shapes.twist = Eigen::MatrixXd::Zero(panelCount + 1, total);
    shapes.weight.resize(panelCount + 1);
    for (int row = 0; row <= panelCount; ++row) {
        const double eta = static_cast<double>(row) / panelCount;
        const bool atEnd = row == 0 || row == panelCount;
        const double simpson = atEnd ? 1.0 : (row % 2 == 1 ? 4.0 : 2.0);
        shapes.weight(row) = simpson * wing.halfSpan / (3.0 * panelCount);
        for (int mode = 1; mode <= count.bending; ++mode) {
            shapes.deflection(row, mode - 1) = bendingShape(mode, eta);
        }
        for (int mode = 1; mode <= count.torsion; ++mode) {
            shapes.twist(row, count.bending + mode - 1) = torsionShape(mode, eta);
        }
    }
    return shapes;
}

/// Adds the kinetic energy of the store, whose pitch is the twist of the tip plus the pitch of the
/// pylon (the last coordinate).
void addStore(Eigen::MatrixXd& mass, const TipStore& store, const AssumedShapes& shapes)
{
    Eigen::VectorXd pitch = shapes.twist.row(panelCount).transpose();
    pitch(pitch.size() - 1) = 1.0;
    const Eigen::VectorXd tip = shapes.deflection.row(panelCount).transpose();
    const Eigen::VectorXd centre = tip + store.offset * pitch;
    mass += store.mass * centre * centre.transpose();
    mass += store.inertia * pitch * pitch.transpose();
}

Eigen::MatrixXd massMatrix(const Wing& wing, const TipStore& store, const AssumedShapes& shapes)
{
    const auto weight = shapes.weight.asDiagonal();
    const Eigen::MatrixXd& h = shapes.deflection;
    const Eigen::MatrixXd& a = shapes.twist;
    const double coupling = wing.massPerLength * massOffset(wing);
    Eigen::MatrixXd mass = wing.massPerLength * (h.transpose() * weight * h);
    mass += wing.inertiaPerLength * (a.transpose() * weight * a);
    mass += coupling * (h.transpose() * weight * a + a.transpose() * weight * h);

    addStore(mass, store, shapes);
    return mass;
}

Eigen::MatrixXd stiffnessMatrix(const Wing& wing, const TipStore& store, const ModeCount& count)
{
    const int total = count.bending + count.torsion + 1;
    Eigen::MatrixXd stiffness = Eigen::MatrixXd::Zero(total, total);
    const double span = wing.halfSpan;
    for (int mode = 1; mode <= count.bending; ++mode) {
        const double root = bendingRoot(mode);
        stiffness(mode - 1, mode - 1) =
            wing.bendingStiffness * std::pow(root, 4) / (span * span * span);
    }
    for (int mode = 1; mode <= count.torsion; ++mode) {
        const int index = count.bending + mode - 1;
        const double root = torsionRoot(mode);
        stiffness(index, index) = wing.torsionStiffness * root * root / (2.0 * span);
    }
    const double omega = 2.0 * std::numbers::pi * store.pylonFrequency;
    stiffness(total - 1, total - 1) =
        (store.inertia + store.mass * store.offset * store.offset) * omega * omega;
    return stiffness;
}

/// Turns every mode so that the larger of its tip deflection and tip twist is positive.
void fixSigns(NaturalModes& modes)
{
    for (Eigen::Index mode = 0; mode < modes.deflection.cols(); ++mode) {
        const double deflection = modes.deflection(panelCount, mode);
        const double twist = modes.twist(panelCount, mode);
        const double leading = std::abs(deflection) > std::abs(twist) ? deflection : twist;
        if (leading < 0.0) {
            modes.deflection.col(mode) *= -1.0;
            modes.twist.col(mode) *= -1.0;
            modes.damping.col(mode) *= -1.0;
            modes.damping.row(mode) *= -1.0;
        }
    }
}

} // namespace

NaturalModes naturalModes(const Wing& wing, const TipStore& store, const ModeCount& count)
{
    const AssumedShapes shapes = assumedShapes(wing, count);
    const Eigen::Index used = shapes.twist.cols() - (store.mass > 0.0 ? 0 : 1);
    const Eigen::MatrixXd mass = massMatrix(wing, store, shapes).topLeftCorner(used, used);
    const Eigen::MatrixXd stiffness = stiffnessMatrix(wing, store, count).topLeftCorner(used, used);
    const Eigen::GeneralizedSelfAdjointEigenSolver<Eigen::MatrixXd> solver(stiffness, mass);
    const Eigen::MatrixXd vectors = solver.eigenvectors().leftCols(count.kept);
    NaturalModes modes;
    modes.omega = solver.eigenvalues().head(count.kept).cwiseSqrt();
    modes.damping = Eigen::MatrixXd::Zero(count.kept, count.kept);
    if (store.mass > 0.0) {
        const Eigen::VectorXd pylonPitch = vectors.row(used - 1).transpose();
        const double pylonStiffness = stiffness(used - 1, used - 1);
        modes.damping = store.pylonDamping * pylonStiffness * pylonPitch * pylonPitch.transpose();
    }
    modes.deflection = shapes.deflection.leftCols(used) * vectors;
    modes.twist = shapes.twist.leftCols(used) * vectors;
    modes.weight = shapes.weight;
    fixSigns(modes);
    return modes;
}

} // namespace tarsil::goland
