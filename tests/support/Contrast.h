// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QColor>

#include <algorithm>
#include <cmath>

namespace tarsil::test {

/// The relative luminance of a colour, from 0 (black) to 1: WCAG 2.1, "relative luminance".
inline double luminance(const QColor& color)
{
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF())
        + 0.0722 * linear(color.blueF());
}

/// The contrast of two opaque colours, from 1 (equal) to 21: WCAG 2.1, "contrast ratio".
inline double contrast(const QColor& one, const QColor& other)
{
    const double lighter = std::max(luminance(one), luminance(other));
    const double darker = std::min(luminance(one), luminance(other));
    return (lighter + 0.05) / (darker + 0.05);
}

} // namespace tarsil::test
