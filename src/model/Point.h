// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace tarsil {

class AeMode;

/// The modal participation factors of a point: an ordered collection of at most five singles,
/// stored inside the point to save an allocation.
class ParticipationFactors
{
public:
    static constexpr std::size_t capacity = 5;

    std::size_t size() const { return m_count; }
    bool empty() const { return m_count == 0; }
    float operator[](std::size_t index) const { return m_values[index]; }

    /// Error 9 "Subscript out of range" when there are five factors already.
    void append(float factor);

    const float* begin() const { return m_values.data(); }
    const float* end() const { return m_values.data() + m_count; }

private:
    std::array<float, capacity> m_values {};
    std::uint32_t m_count = 0;
};

/// An aeroelastic mode at one speed: 64 bytes, no allocation.
class Point
{
public:
    float kfreq = 0; ///< reduced frequency, dimensionless; old format only
    float re = 0; ///< real part of the eigenvalue; new format only
    float im = 0; ///< imaginary part of the eigenvalue; new format only
    float speed = 0; ///< equivalent airspeed (KEAS)
    float G = 0; ///< damping g, dimensionless; negative is stable
    float f = 0; ///< frequency, Hz
    float mach = 0; ///< Mach number; imported evolutions only
    float sigma = 0; ///< density relative to sea level; imported evolutions only, 0: not printed
    ParticipationFactors mpf;
    AeMode* Parent = nullptr; ///< the mode that owns this point

    /// Copies the eight values, the participation factors and `Parent` of `source`.
    void Clone(const Point& source);
};

} // namespace tarsil
