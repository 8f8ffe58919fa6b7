// SPDX-License-Identifier: Apache-2.0

// This file computes the mode shapes of a uniform cantilever beam without loss of digits.
#include "BeamModes.h"

#include <cmath>
#include <numbers>

namespace tarsil::goland {

double bendingRoot(int mode)
{
    double root = (mode - 0.5) * std::numbers::pi;
    for (int step = 0; step < 50; ++step) {
        const double value = std::cos(root) + 1.0 / std::cosh(root);
        const double slope = -std::sin(root) - std::tanh(root) / std::cosh(root);
        root -= value / slope;
    }
    return root;
}

double bendingShape(int mode, double eta)
{
    // cosh - sigma sinh is split into its two exponentials: the growing one has the small factor
    // (1 - sigma) / 2, which is written by its closed form.
    const double root = bendingRoot(mode);
    const double decay = std::exp(-root);
    const double denominator = std::sinh(root) + std::sin(root);
    const double sigma = (std::cosh(root) + std::cos(root)) / denominator;
    const double oneMinusSigma = (std::sin(root) - std::cos(root) - decay) / denominator;
    const double x = root * eta;
    const double growing = 0.5 * oneMinusSigma * std::exp(x);
    const double falling = 0.5 * (1.0 + sigma) * std::exp(-x);
    return growing + falling - std::cos(x) + sigma * std::sin(x);
}

double torsionRoot(int mode)
{
    return (mode - 0.5) * std::numbers::pi;
}

double torsionShape(int mode, double eta)
{
    return std::sin(torsionRoot(mode) * eta);
}

} // namespace tarsil::goland
