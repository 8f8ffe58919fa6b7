// SPDX-License-Identifier: Apache-2.0

// This header writes numbers in fixed widths for the sample files.
#pragma once

#include <string>

namespace tarsil::goland {

/// A number with the given digits after the point, right aligned in the width.
std::string fixedText(double value, int width, int digits);

/// A number in the form 0.00000E+00 with the given digits after the point, right aligned in the
/// width.
std::string exponentText(double value, int width, int digits = 5);

/// An integer, right aligned in the width.
std::string integerText(int value, int width);

} // namespace tarsil::goland
