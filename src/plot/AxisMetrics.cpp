#include "plot/AxisMetrics.h"

#include "base/user/RunTimeError.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace tarsil::axis {

namespace {

/// Decimal digits that a double keeps through a few operations.
constexpr int reliableDigits = 15;

/// The double nearest to the value written with so many decimals.
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

double divisionValue(double first, double last, int k, int count)
{
    const double value = first + k * ((last - first) / count);
    const double largest = std::max(std::fabs(first), std::fabs(last));
    if (largest == 0 || !std::isfinite(value))
        return value;
    // Counted from the larger bound, as the error is: near 0 a value has fewer digits than others.
    const int digitsBefore = static_cast<int>(std::floor(std::log10(largest))) + 1;
    const int decimals = reliableDigits - digitsBefore;
    return decimals < 0 ? value : roundedTo(value, decimals);
}

void requireIntervals(int count, const char* source)
{
    if (count == 0)
        throw RunTimeError(ErrorNumber::DivisionByZero, source, "the number of ticks is 0");
}

} // namespace tarsil::axis
