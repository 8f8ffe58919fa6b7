// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "plot/Series.h"

#include <QString>

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

namespace tarsil {

/// What is drawn at points of a curve.
enum class MarkerKind { None, ModeNumber, Tag, ParticipationFactor };

/// The properties of a kind of marker. A new kind needs an entry in `markerTraits`; the compiler
/// reports every switch that lacks it.
struct MarkerTraits
{
    MarkerKind kind;
    std::int32_t number; ///< in `Series::MarkerStyle` and in workspaces
    std::string_view name; ///< on the command line
    bool needsFactor; ///< uses the participation factor `Series::IthMpf`
};

inline constexpr std::array<MarkerTraits, 4> markerTraits = {
    {{MarkerKind::None, 0, "none", false},
     {MarkerKind::ModeNumber, 1, "id", false},
     {MarkerKind::Tag, 2, "tag", false},
     {MarkerKind::ParticipationFactor, 3, "mpf", true}}};

constexpr const MarkerTraits& traitsOf(MarkerKind kind)
{
    return markerTraits[static_cast<std::size_t>(kind)];
}

/// The number of a kind in `Series::MarkerStyle` and in workspaces.
constexpr std::int32_t markerNumber(MarkerKind kind)
{
    return traitsOf(kind).number;
}

/// The kind of a number; empty for an unknown number, which draws nothing.
std::optional<MarkerKind> markerOfNumber(std::int32_t number);

/// The markers of a curve.
struct MarkerOptions
{
    std::int32_t size = 8; ///< points
    std::int32_t spacing = 10; ///< a marker at each multiple of this; 0 for none
    MarkerKind kind = MarkerKind::ModeNumber;
    std::int32_t ithMpf = 1; ///< counted from 1

    void applyTo(Series& series) const;

    bool operator==(const MarkerOptions&) const = default;
};

/// The text at a point of a series; empty for none. "?" for a factor that the point does not have.
QString markerText(const Series& series, const Point& point);

} // namespace tarsil
