#pragma once

#include "plot/Marker.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace tarsil {

class EVM;
class EvmPlot;

/// What is drawn of one file: the evolution and those of its modes that get curves. Nothing is
/// owned.
struct EvolutionCurves
{
    EVM* evolution;
    std::vector<AeMode*> modes;
};

/// Every mode of an evolution.
EvolutionCurves allCurvesOf(EVM& evolution);

/// What marks the points of curves.
struct CurveMarkers
{
    MarkerKind kind = MarkerKind::ModeNumber;
    std::int32_t factor = 0; ///< counted from 1, for the kind that shows one
    std::optional<std::int32_t> spacing; ///< points from one marker to the next
    std::int32_t size = 8; ///< points
};

/// More make no picture, and take long to draw.
constexpr std::size_t mostCurves = 500;

/// The plot that files make before anybody has said how it should look, the same in a window and in
/// a picture: each mode gets a curve, marked here and there (four times or so, unless `spacing`
/// says otherwise), and each file a line style of its own, counted over all curves of the plot. A
/// plot without curves and with the scale of a new one gets axes that fit them; an empty header or
/// subtitle says what the files have in common and how they are called. Files that would bring the
/// plot beyond `mostCurves` are left out; returns how many are drawn, the first ones.
std::size_t plotCurves(EvmPlot& plot, const std::vector<EvolutionCurves>& files,
                       const CurveMarkers& markers = {});

} // namespace tarsil
