// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace tarsil {

/// Maps the values along one direction of a plot to pixels: `first` to pixel 0, `last` to pixel
/// `length`. Either may be the larger one.
///
///     first                     last
///       |-------------------------|
///       0                      length
///
/// Values are in the units of an axis (KEAS, Hz, dimensionless damping, or those of a root locus).
class ValueMap
{
public:
    /// If `first` equals `last`, only `valueAt` and the divisions may be called.
    ValueMap(double first, double last, double length);

    /// The exact position of a value in pixels. Saturates far outside any surface.
    double positionOf(double value) const;

    /// The pixel nearest to a value, rounded by `roundToPixel`.
    int pixelOf(double value) const;

    /// The pixels between value 0 and `value`.
    double lengthOf(double value) const { return value * m_length / (m_last - m_first); }

    double valueAt(double pixel) const { return m_first + pixel / m_length * (m_last - m_first); }

    /// Position and value of division `k` of `count` equal ones, counted from `first`. The value is
    /// that of decimal arithmetic: three quarters of the way from 0 to -0.35 is -0.2625, not
    /// -0.26249999999999996, so that a label half-way between two decimals rounds correctly.
    double divisionPixel(int k, int count) const { return k * (m_length / count); }
    double divisionValue(int k, int count) const;

private:
    double m_first;
    double m_last;
    double m_length;
    double m_pixelsPerUnit;
    double m_begin; ///< pixels from value 0 to `first`
};

} // namespace tarsil
