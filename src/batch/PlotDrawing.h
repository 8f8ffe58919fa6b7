#pragma once

#include <string>

namespace tarsil {
class EvmPlot;
}

namespace tarsil::batch {

struct PictureOptions;

// What the command "picture" does with a plot that has its series.

/// Gives the plot the scale and the ticks that were asked for; a scale alone brings ticks that fall
/// on round numbers. What was not asked for stays.
void setScale(EvmPlot& plot, const PictureOptions& options);

/// Gives the plot the texts, reference speeds and damping lines that were asked for.
void setTexts(EvmPlot& plot, const PictureOptions& options);

/// Writes the picture in the form that the path ends in. Errors: those of drawing and of writing.
void writePicture(EvmPlot& plot, const std::string& path);

} // namespace tarsil::batch
