// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "batch/ModeList.h"
#include "model/PlotAxes.h"
#include "plot/CurvePalette.h"
#include "vgfplot/EvolutionPlotter.h"
#include "vgfplot/PictureWriter.h"

#include <QSize>
#include <QString>

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace tarsil::batch {

class CommandLine;
struct OptionDescription;

/// A value on an axis with a text: a reference speed (KEAS) or a damping line.
struct CaptionedValue
{
    float value;
    QString caption;
};

/// The options of the command "picture".
struct PictureOptions
{
    std::string output;
    /// Every plot of a workspace goes to the folder `output`, in this format. Empty: `output` is a
    /// file.
    std::optional<PictureFormat> folderFormat;
    std::optional<std::string> plot; ///< of a workspace; empty: all plots
    QSize size {1000, 750}; ///< pixels at 96 per inch
    std::optional<ModeList> modes;
    std::optional<PlotBounds> bounds; ///< empty: fitted to the data, or those of the workspace
    std::optional<PlotTicks> ticks;
    // Texts as given: Rich Text Format, or "\n" for a line break. An empty optional leaves the box
    // unchanged.
    std::optional<std::string> header;
    std::optional<std::string> legend;
    std::optional<std::string> subtitle;
    std::vector<CaptionedValue> referenceSpeeds;
    std::vector<CaptionedValue> dampingLines;
    CurveMarkers markers;
    CurvePalette palette = CurvePalette::Standard;
};

extern const std::array<OptionDescription, 17> pictureOptionDescriptions;

/// The value of --size, or `otherwise`; UsageError for an invalid one.
QSize pictureSizeOf(const CommandLine& line, QSize otherwise);

/// Reads the options; UsageError for invalid ones.
PictureOptions pictureOptionsOf(const CommandLine& line);

} // namespace tarsil::batch
