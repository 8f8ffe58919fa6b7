// SPDX-License-Identifier: Apache-2.0
#include "plot/CurvePalette.h"

#include "base/numbers/ColorValue.h"
#include "plot/LineStyles.h"
#include "plot/Series.h"
#include "surface/DeviceContext.h"

#include <algorithm>

namespace tarsil {

namespace {

constexpr ColorValue blackInk = 0;

/// The colours of M. Okabe and K. Ito, "Color Universal Design" (2008), as printed by B. Wong,
/// "Points of view: Color blindness", Nature Methods 8, 441 (2011). Their yellow is left out: thin
/// lines of it are hardly visible on white.
constexpr std::array<ColorValue, 7> colorBlindColors = {
    rgb(0, 0, 0),     rgb(0, 114, 178),   rgb(213, 94, 0),  rgb(0, 158, 115),
    rgb(230, 159, 0), rgb(204, 121, 167), rgb(86, 180, 233)};

template <typename List>
auto inTurn(const List& list, std::size_t index)
{
    return list[index % list.size()];
}

} // namespace

std::optional<CurvePalette> paletteNamed(std::string_view name)
{
    const auto found = std::find(paletteNames.begin(), paletteNames.end(), name);
    if (found == paletteNames.end())
        return std::nullopt;
    return static_cast<CurvePalette>(found - paletteNames.begin());
}

void applyPalette(Series& series, CurvePalette palette, std::size_t row)
{
    switch (palette) {
    case CurvePalette::Standard:
        series.ColorIndex = inTurn(BaseColors, row);
        break;
    case CurvePalette::ColorBlind:
        series.ColorIndex = inTurn(colorBlindColors, row);
        break;
    case CurvePalette::LineStyles:
        series.ColorIndex = blackInk;
        if (series.LineStyle != penstyle::none)
            series.LineStyle = inTurn(lineStylesInUse, row);
        break;
    }
}

} // namespace tarsil
