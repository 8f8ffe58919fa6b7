// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace tarsil {
class EvmPlot;
}

namespace tarsil::batch {

struct PictureOptions;

// Applies the options of the command "picture" to a plot that has its series.

/// Sets the requested scale and ticks; a scale without ticks gets ticks on round numbers. The rest
/// is unchanged.
void setScale(EvmPlot& plot, const PictureOptions& options);

/// Adds the requested texts, reference speeds and damping lines.
void setTexts(EvmPlot& plot, const PictureOptions& options);

} // namespace tarsil::batch
