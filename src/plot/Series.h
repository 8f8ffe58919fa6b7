#pragma once

#include "base/numbers/ColorValue.h"
#include "model/AeMode.h"

#include <QString>

#include <cstdint>
#include <vector>

namespace tarsil {

/// The style of one curve and the mode that it draws. Values are stored as given.
struct Series
{
    AeMode* Mode = nullptr; ///< not owned; shared by clones
    QString MarkerTag; ///< the marker of style 2
    QString LegendText; ///< text in the plot's legend; not drawn by the canvas
    std::int16_t LineWidth = 0; ///< pixels
    std::int32_t LineStyle = 0; ///< pen style number
    ColorValue ColorIndex = 0; ///< the colour itself, despite the name
    std::int32_t MarkerSpacing = 0; ///< a marker at each multiple of this; 0 for none
    std::int32_t IthMpf = 0; ///< counted from 1: the factor shown by style 3
    ColorValue MarkerBackgroundColor = 0; ///< kept and saved, never drawn
    ColorValue MarkerForegroundColor = 0; ///< colour of the marker text
    std::int32_t MarkerSize = 0; ///< points
    std::int32_t MarkerStyle = 0; ///< `MarkerTraits::number`

    /// A new series with the same mode and copies of everything else.
    Series Clone() const;

    bool operator==(const Series&) const = default;
};

using SeriesList = std::vector<Series>;

} // namespace tarsil
