// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "base/numbers/ColorValue.h"
#include "model/AeMode.h"

#include <QString>

#include <cstdint>
#include <vector>

namespace tarsil {

/// The style of a curve and the mode that it draws. Values are stored as given.
struct Series
{
    AeMode* Mode = nullptr; ///< not owned; shared by clones
    QString MarkerTag; ///< the text of markers of style 2
    QString LegendText; ///< text in the legend of the plot; the canvas does not draw it
    std::int16_t LineWidth = 0; ///< pixels
    std::int32_t LineStyle = 0; ///< pen style number
    ColorValue ColorIndex = 0; ///< the colour itself, despite the name
    std::int32_t MarkerSpacing = 0; ///< a marker at each multiple of this; 0 for none
    std::int32_t IthMpf = 0; ///< index of the factor shown by style 3, counted from 1
    ColorValue MarkerBackgroundColor = 0; ///< stored, never drawn
    ColorValue MarkerForegroundColor = 0; ///< colour of the markers
    std::int32_t MarkerSize = 0; ///< points
    std::int32_t MarkerStyle = 0; ///< `MarkerTraits::number`

    /// A copy that refers to the same mode.
    Series Clone() const;

    bool operator==(const Series&) const = default;
};

using SeriesList = std::vector<Series>;

} // namespace tarsil
