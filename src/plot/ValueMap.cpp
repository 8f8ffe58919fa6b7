// SPDX-License-Identifier: Apache-2.0
#include "plot/ValueMap.h"

#include "surface/PixelMath.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace tarsil {

namespace {

/// Decimal digits that a double keeps through a few operations.
constexpr int reliableDigits = 15;

/// A length in pixels has single precision, like the edge that it is measured from.
double pixels(double length)
{
    return static_cast<double>(static_cast<float>(length));
}

/// Rounds a value to a number of decimals; returns the nearest double.
double roundedTo(double value, int decimals)
{
    std::array<char, 128> text {};
    const auto written = std::to_chars(text.data(), text.data() + text.size(), value,
                                       std::chars_format::fixed, decimals);
    double rounded = value;
    if (written.ec == std::errc())
        std::from_chars(text.data(), written.ptr, rounded);
    return rounded;
}

} // namespace

ValueMap::ValueMap(double first, double last, double length)
    : m_first(first), m_last(last), m_length(length), m_pixelsPerUnit(length / (last - first)),
      m_begin(pixels(first * m_pixelsPerUnit))
{ }

double ValueMap::positionOf(double value) const
{
    constexpr double farAway = 1 << 26; // beyond any surface; `roundToPixel` has the same limit
    const double position = pixels(value * m_pixelsPerUnit) - m_begin;
    if (position > farAway)
        return farAway;
    return position > -farAway ? position : -farAway; // also for a position that is no number
}

int ValueMap::pixelOf(double value) const
{
    return roundToPixel(positionOf(value));
}

double ValueMap::divisionValue(int k, int count) const
{
    const double value = m_first + k * ((m_last - m_first) / count);
    const double largest = std::max(std::fabs(m_first), std::fabs(m_last));
    if (largest == 0 || !std::isfinite(value))
        return value;
    // The error is relative to the larger end: near 0 a value has fewer exact digits.
    const int digitsBefore = static_cast<int>(std::floor(std::log10(largest))) + 1;
    const int decimals = reliableDigits - digitsBefore;
    return decimals < 0 ? value : roundedTo(value, decimals);
}

} // namespace tarsil
