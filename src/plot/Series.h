#pragma once

#include "base/numbers/ColorValue.h"
#include "model/AeMode.h"

#include <QString>

#include <cstdint>
#include <vector>

namespace tarsil {

/// What stands at a series' marked points.
namespace markerstyle {
constexpr std::int32_t none = 0;
constexpr std::int32_t modeNumber = 1;
constexpr std::int32_t tag = 2;
constexpr std::int32_t participationFactor = 3;
} // namespace markerstyle

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
    std::int32_t MarkerStyle = 0;

    /// A new series with the same mode and copies of everything else.
    Series Clone() const;

    bool operator==(const Series&) const = default;
};

using SeriesList = std::vector<Series>;

/// What stands at the marked points of a curve.
struct MarkerOptions
{
    std::int32_t size = 8; ///< points
    std::int32_t spacing = 10;
    std::int32_t style = markerstyle::modeNumber;
    std::int32_t ithMpf = 1; ///< counted from 1

    void applyTo(Series& series) const;

    bool operator==(const MarkerOptions&) const = default;
};

} // namespace tarsil
