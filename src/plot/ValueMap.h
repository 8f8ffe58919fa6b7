#pragma once

namespace tarsil {

/// The map between the values along one direction of a plot and pixels: `first` is at pixel 0 and
/// `last` at pixel `length`. Either of them may be the larger one.
///
///     first                     last
///       |-------------------------|
///       0                      length
///
/// Values are those of an axis (knots, Hz, dimensionless damping) or of the axes of a root locus.
class ValueMap
{
public:
    /// Equal values have no map to pixels: only `valueAt` and the divisions may be used then.
    ValueMap(double first, double last, double length);

    /// The pixel nearest to a value, rounded as `roundToPixel` does.
    int pixelOf(double value) const;

    /// The pixels from value 0 to `value`.
    double lengthOf(double value) const { return value * m_length / (m_last - m_first); }

    double valueAt(double pixel) const { return m_first + pixel / m_length * (m_last - m_first); }

    /// The division `k` of `count` equal ones, counted from `first`: where it is, and its value.
    /// The value is the one that decimal arithmetic gives, without what binary fractions leave:
    /// three quarters of the way from 0 to -0.35 are -0.2625 and not -0.26249999999999996, so that
    /// a label half-way between two decimals is rounded as such.
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
