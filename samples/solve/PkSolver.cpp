// SPDX-License-Identifier: Apache-2.0

// This file holds the p-k iteration and the tracking of the modes over the speed.
#include "PkSolver.h"

#include <Eigen/Eigenvalues>
#include <Eigen/LU>
#include <algorithm>
#include <cmath>
#include <numbers>
#include <stdexcept>

namespace tarsil::goland {

namespace {

using Complex = std::complex<double>;

constexpr double longestStep = 1.0; // of the tracking, knots
constexpr double smallestReducedFrequency = 1.0e-3; // up to it a root counts as real

/// The square of the cosine between two complex shapes; 1 when they are proportional.
double likeness(const Eigen::VectorXcd& first, const Eigen::VectorXcd& second)
{
    return std::norm(first.dot(second)) / (first.squaredNorm() * second.squaredNorm());
}

double reducedFrequencyOf(Complex p, double speed, double semiChord)
{
    return std::max(std::abs(p.imag()) * semiChord / speed, smallestReducedFrequency);
}

} // namespace

bool isReal(Complex p, double speed, double semiChord)
{
    return std::abs(p.imag()) * semiChord <= smallestReducedFrequency * speed;
}

double dampingOf(Complex p, double speed, double semiChord)
{
    if (isReal(p, speed, semiChord)) {
        return 2.0 * p.real() * semiChord / (speed * std::numbers::ln2);
    }
    return 2.0 * p.real() / p.imag();
}

PkSolver::PkSolver(const Wing& wing, const NaturalModes& modes, const Air& air)
    : m_semiChord(semiChord(wing)), m_air(air), m_omega(modes.omega), m_damping(modes.damping),
      m_aerodynamics(stripAerodynamics(wing, modes))
{
    const Eigen::Index n = m_omega.size();
    m_massMatrix = Eigen::MatrixXd::Identity(n, n) + air.density * m_aerodynamics.apparentMass;
    m_inverseMass = m_massMatrix.inverse();
}

Eigen::MatrixXcd PkSolver::stateMatrix(double speed, double reducedFrequency) const
{
    const Eigen::Index n = m_omega.size();
    const Complex lag = theodorsen(reducedFrequency);
    const StripAerodynamics& air = m_aerodynamics;
    const double pressure = m_air.density * speed * speed;
    const double flow = m_air.density * speed;
    Eigen::MatrixXcd stiffness = m_omega.array().square().matrix().cast<Complex>().asDiagonal();
    stiffness += Complex(0.0, 1.0) * m_damping + pressure * lag * air.wakeStiffness;
    const Eigen::MatrixXcd damping = flow * (air.flowDamping + lag * air.wakeDamping);

    Eigen::MatrixXcd state = Eigen::MatrixXcd::Zero(2 * n, 2 * n);
    state.topRightCorner(n, n).setIdentity();
    state.bottomLeftCorner(n, n) = -m_inverseMass * stiffness;
    state.bottomRightCorner(n, n) = -m_inverseMass * damping;
    return state;
}

std::vector<PkSolver::Root> PkSolver::rootsAt(double speed, double reducedFrequency) const
{
    const Eigen::Index n = m_omega.size();
    const Eigen::MatrixXcd state = stateMatrix(speed, reducedFrequency);
    const Eigen::ComplexEigenSolver<Eigen::MatrixXcd> solver(state);
    std::vector<Root> roots;
    for (Eigen::Index index = 0; index < 2 * n; ++index) {
        const Complex p = solver.eigenvalues()(index);
        if (p.imag() > -smallestReducedFrequency * speed / m_semiChord) {
            const Eigen::VectorXcd vector = solver.eigenvectors().col(index);
            roots.push_back({p, vector.head(n)});
        }
    }
    return roots;
}

std::vector<PkSolver::Root> PkSolver::stillAirRoots() const
{
    const Eigen::MatrixXd stiffness = m_omega.array().square().matrix().asDiagonal();
    const Eigen::GeneralizedSelfAdjointEigenSolver<Eigen::MatrixXd> solver(stiffness, m_massMatrix);
    std::vector<Root> roots;
    for (Eigen::Index index = 0; index < m_omega.size(); ++index) {
        const Complex p(0.0, std::sqrt(solver.eigenvalues()(index)));
        roots.push_back({p, solver.eigenvectors().col(index).cast<Complex>()});
    }
    return roots;
}

PkSolver::Root PkSolver::convergedRoot(double speed, const Root& last, Complex expected) const
{
    double k = reducedFrequencyOf(expected, speed, m_semiChord);
    for (int iteration = 0; iteration < 200; ++iteration) {
        const std::vector<Root> roots = rootsAt(speed, k);
        const auto distance = [&](const Root& root) {
            const double shift = std::abs(root.p - expected) / std::abs(last.p);
            return shift + 1.0 - likeness(root.shape, last.shape);
        };
        const auto closer = [&](const Root& left, const Root& right) {
            return distance(left) < distance(right);
        };
        Root best = *std::min_element(roots.begin(), roots.end(), closer);
        const double next = reducedFrequencyOf(best.p, speed, m_semiChord);
        if (std::abs(next - k) <= 1.0e-9 * std::max(k, 1.0)) {
            return best;
        }
        k = iteration < 100 ? next : 0.5 * (k + next);
    }
    throw std::runtime_error("the p-k iteration does not converge");
}

FlutterPoint PkSolver::pointOf(const Root& root, double knots) const
{
    FlutterPoint point;
    point.knots = knots;
    point.trueSpeed = trueSpeed(knots, m_air);
    const bool real = isReal(root.p, point.trueSpeed, m_semiChord);
    point.eigenvalue = real ? Complex(root.p.real(), 0.0) : root.p;
    point.reducedFrequency = point.eigenvalue.imag() * m_semiChord / point.trueSpeed;
    point.damping = dampingOf(root.p, point.trueSpeed, m_semiChord);
    point.frequency = point.eigenvalue.imag() / (2.0 * std::numbers::pi);
    Eigen::Index largest = 0;
    root.shape.cwiseAbs().maxCoeff(&largest);
    point.participation = root.shape / root.shape(largest);
    return point;
}

FlutterCurve PkSolver::follow(const Root& start, const std::vector<double>& knots) const
{
    FlutterCurve curve;
    Root last = start;
    Complex change = 0.0;
    double lastKnots = 0.0;
    for (const double target : knots) {
        const double gap = target - lastKnots;
        const int steps = static_cast<int>(std::ceil(gap / longestStep));
        for (int step = 1; step <= steps; ++step) {
            const double speed = trueSpeed(lastKnots + gap * step / steps, m_air);
            const Root next = convergedRoot(speed, last, last.p + change);
            change = next.p - last.p;
            last = next;
        }
        lastKnots = target;
        curve.push_back(pointOf(last, target));
    }
    return curve;
}

FlutterCurves PkSolver::solve(const std::vector<double>& knots) const
{
    FlutterCurves curves;
    for (const Root& start : stillAirRoots()) {
        curves.push_back(follow(start, knots));
    }
    return curves;
}

} // namespace tarsil::goland
