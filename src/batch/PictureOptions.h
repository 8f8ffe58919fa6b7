// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "batch/CommandLine.h"
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

/// A value on an axis with a text: a reference speed (KEAS) or a damping line.
struct CaptionedValue
{
    float value;
    QString caption;
};

/// The size of a picture and what depends on it.
struct PictureSize
{
    QSize pixels {1000, 750}; ///< at 96 per inch
    PictureSettings settings;
};

/// The options of the command "picture".
struct PictureOptions
{
    std::string output;
    /// Every plot of a workspace goes to the folder `output`, in this format. Empty: `output` is a
    /// file.
    std::optional<PictureFormat> folderFormat;
    std::optional<std::string> plot; ///< of a workspace; empty: all plots
    PictureSize size;
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

extern const std::array<OptionDescription, 20> pictureOptionDescriptions;

// The options of every picture.
inline constexpr OptionDescription sizeOption {
    "--size", "WxH[mm]",
    "size of the picture, in pixels (default 1000x750) or in\nmillimetres: 165x120mm"};
inline constexpr OptionDescription resolutionOption {
    "--resolution", "DPI", "pixels per inch of a .png whose size is in millimetres;\ndefault 300"};
inline constexpr OptionDescription lineWidthOption {
    "--least-line-width", "W",
    "narrower lines in .svg, .pdf and .png get this width, in\npixels of 1/96 inch; default 1"};

inline constexpr OptionDescription dashesOption {
    "--dashes", "DASHES",
    "dashes of a .emf: pens, which each program draws in its\nown way and some draw solid, or "
    "lines, short ones;\ndefault pens"};

/// The values of the options of every picture; UsageError for invalid ones.
PictureSize pictureSizeOf(const CommandLine& line);

/// Reads the options; UsageError for invalid ones.
PictureOptions pictureOptionsOf(const CommandLine& line);

} // namespace tarsil::batch
