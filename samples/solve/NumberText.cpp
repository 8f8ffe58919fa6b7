// SPDX-License-Identifier: Apache-2.0

// This file writes numbers in fixed widths, independent of the locale of the desktop.
#include "NumberText.h"

#include <iomanip>
#include <locale>
#include <sstream>

namespace tarsil::goland {

namespace {

std::ostringstream textStream()
{
    std::ostringstream stream;
    stream.imbue(std::locale::classic());
    return stream;
}

} // namespace

std::string fixedText(double value, int width, int digits)
{
    std::ostringstream stream = textStream();
    stream << std::fixed << std::setprecision(digits) << std::setw(width) << value + 0.0;
    return stream.str();
}

std::string exponentText(double value, int width, int digits)
{
    std::ostringstream stream = textStream();
    stream << std::scientific << std::uppercase << std::setprecision(digits) << std::setw(width)
           << value + 0.0;
    return stream.str();
}

std::string integerText(int value, int width)
{
    std::ostringstream stream = textStream();
    stream << std::setw(width) << value;
    return stream.str();
}

} // namespace tarsil::goland
