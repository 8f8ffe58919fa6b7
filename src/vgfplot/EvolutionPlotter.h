// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "plot/CurvePalette.h"
#include "plot/Marker.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace tarsil {

class EVM;
class EvmPlot;

/// An evolution and those of its modes that get curves. Nothing is owned.
struct EvolutionCurves
{
    EVM* evolution;
    std::vector<AeMode*> modes;
};

/// Every mode of an evolution.
EvolutionCurves allCurvesOf(EVM& evolution);

/// The markers of the curves of files.
struct CurveMarkers
{
    MarkerKind kind = MarkerKind::ModeNumber;
    std::int32_t factor = 0; ///< index of the factor, counted from 1, for the kind that shows one
    std::optional<std::int32_t>
        spacing; ///< points between markers; empty: about four markers for each curve
    std::int32_t size = 8; ///< points
};

/// More curves are unreadable and slow to draw.
constexpr std::size_t mostCurves = 500;

/// Adds files to a plot in the standard look, the same in a window and in a picture. Each mode gets
/// a curve with about four markers (or as `spacing` says), at other points than its neighbours, and
/// the look of the palette; each file gets its own line style, counted over all curves of the plot,
/// unless the palette gives each curve one. If the plot was empty and its scale that of a new plot,
/// its axes are fitted; an empty header or subtitle is filled with what the files have in common
/// and their names. Stops before the plot would exceed `mostCurves`; returns the number of files
/// drawn.
std::size_t plotCurves(EvmPlot& plot, const std::vector<EvolutionCurves>& files,
                       const CurveMarkers& markers = {},
                       CurvePalette palette = CurvePalette::Standard);

} // namespace tarsil
