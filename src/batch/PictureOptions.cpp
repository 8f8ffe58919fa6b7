// SPDX-License-Identifier: Apache-2.0
#include "batch/PictureOptions.h"

#include "base/numbers/Numbers.h"
#include "batch/CommandLine.h"
#include "batch/WorkspaceInput.h"
#include "plot/Marker.h"

#include <algorithm>

namespace tarsil::batch {

namespace {

constexpr std::array<std::string_view, 4> pictureOutputs = {".png", ".svg", ".pdf", ".emf"};
constexpr int largestSide = 20000;
constexpr int mostTicks = 1000;
constexpr int largestMarkerNumber = 1000;
constexpr int finestResolution = 2400;
constexpr double finestLine = 0.1;
constexpr double widestLine = 100;

UsageError wrongValue(std::string_view option, std::string_view text, std::string_view expected)
{
    return UsageError(std::string(option) + ": \"" + std::string(text) + "\" is not "
                      + std::string(expected));
}

/// A whole number from 1 to `most`.
std::int16_t countOf(std::string_view text, int most, std::string_view option)
{
    std::int16_t count = 0;
    const bool hasDigitsOnly = text.find_first_not_of("0123456789") == std::string_view::npos;
    if (!hasDigitsOnly || parseInteger16(text, count) != NumberStatus::Ok || count < 1
        || count > most)
        throw wrongValue(option, text, "a whole number from 1 to " + std::to_string(most));
    return count;
}

QSize sizeInPixels(std::string_view text)
{
    const auto pieces = split(text, 'x');
    if (pieces.size() != 2)
        throw wrongValue("--size", text, "a size such as 1000x750 or 165x120mm");
    return {countOf(pieces[0], largestSide, "--size"), countOf(pieces[1], largestSide, "--size")};
}

/// A size "165x120mm", with the resolution. No bitmap of it has more than the most pixels.
PictureSize sizeInMillimetres(const CommandLine& line, std::string_view text)
{
    PictureSize size;
    if (const auto resolution = line.value("--resolution"))
        size.settings.dotsPerInch = countOf(*resolution, finestResolution, "--resolution");
    const auto pieces = split(text.substr(0, text.size() - 2), 'x');
    if (pieces.size() != 2)
        throw wrongValue("--size", text, "a size such as 1000x750 or 165x120mm");
    const QSizeF millimetres(numberOf(pieces[0], "--size"), numberOf(pieces[1], "--size"));
    const double dots = std::max(size.settings.dotsPerInch, 96.0) / 25.4;
    const auto isSide = [dots](double length) {
        return length >= 1 && length * dots <= largestSide;
    };
    if (!isSide(millimetres.width()) || !isSide(millimetres.height()))
        throw wrongValue("--size", text, "a size from 1 mm to 20000 pixels");
    size.pixels = pixelsOf(millimetres);
    size.settings.millimetres = millimetres;
    return size;
}

std::optional<PlotBounds> boundsOf(const CommandLine& line)
{
    const auto text = line.value("--scale");
    if (!text)
        return std::nullopt;
    const std::vector<float> ends = singlesOf(*text, 6, "--scale");
    if (ends[0] == ends[1] || ends[2] == ends[3] || ends[4] == ends[5])
        throw UsageError("--scale: the two ends of an axis are the same");
    return PlotBounds {ends[0], ends[1], ends[2], ends[3], ends[4], ends[5]};
}

std::optional<PlotTicks> ticksOf(const CommandLine& line)
{
    const auto text = line.value("--ticks");
    if (!text)
        return std::nullopt;
    const auto pieces = split(*text, ',');
    if (pieces.size() != 3)
        throw wrongValue("--ticks", *text, "three numbers separated by commas");
    PlotTicks ticks {};
    for (std::size_t i = 0; i < ticks.size(); ++i)
        ticks[i] = countOf(pieces[i], mostTicks, "--ticks");
    return ticks;
}

/// The values of an option "VALUE=CAPTION"; the caption may be missing.
std::vector<CaptionedValue> captionedValuesOf(const CommandLine& line, std::string_view option)
{
    std::vector<CaptionedValue> values;
    for (const std::string& text : line.values(option)) {
        const std::size_t equal = text.find('=');
        const std::string caption = equal == std::string::npos ? "" : text.substr(equal + 1);
        values.push_back(
            {singlesOf(text.substr(0, equal), 1, option).front(), QString::fromStdString(caption)});
    }
    return values;
}

/// "none, id, tag or mpf:I": the values of the option --marker.
std::string markerNames()
{
    std::string names;
    for (const MarkerTraits& traits : markerTraits) {
        if (!names.empty())
            names += &traits == &markerTraits.back() ? " or " : ", ";
        names += traits.name;
        if (traits.needsFactor)
            names += ":I";
    }
    return names;
}

/// Parses a kind of marker and its factor. Returns whether the text is of that kind.
bool parseMarker(std::string_view text, const MarkerTraits& traits, CurveMarkers& markers)
{
    const std::string start = std::string(traits.name) + (traits.needsFactor ? ":" : "");
    if (traits.needsFactor ? !text.starts_with(start) : text != start)
        return false;
    markers.kind = traits.kind;
    if (traits.needsFactor)
        markers.factor = countOf(text.substr(start.size()), ParticipationFactors::capacity,
                                 "--marker " + std::string(traits.name));
    return true;
}

CurveMarkers markersOf(const CommandLine& line)
{
    CurveMarkers markers;
    if (const auto marker = line.value("--marker")) {
        const auto fits = [&](const MarkerTraits& traits) {
            return parseMarker(*marker, traits, markers);
        };
        if (std::none_of(markerTraits.begin(), markerTraits.end(), fits))
            throw wrongValue("--marker", *marker, markerNames());
    }
    if (const auto spacing = line.value("--marker-spacing"))
        markers.spacing = countOf(*spacing, largestMarkerNumber, "--marker-spacing");
    if (const auto size = line.value("--marker-size"))
        markers.size = countOf(*size, largestMarkerNumber, "--marker-size");
    return markers;
}

CurvePalette paletteOf(const CommandLine& line)
{
    const auto name = line.value("--palette");
    if (!name)
        return CurvePalette::Standard;
    if (const auto palette = paletteNamed(*name))
        return *palette;
    throw wrongValue("--palette", *name, "standard, colour-blind or line-styles");
}

/// The format of --all; empty without that option.
std::optional<PictureFormat> folderFormatOf(const CommandLine& line)
{
    const auto name = line.value("--format");
    if (!line.has("--all")) {
        if (name)
            throw UsageError("--format is only for --all");
        return std::nullopt;
    }
    const auto format = pictureFormatOf("." + name.value_or("svg"));
    if (!format)
        throw wrongValue("--format", *name, "emf, svg, pdf or png");
    return format;
}

MetafileDashes dashesOf(const CommandLine& line)
{
    const auto text = line.value("--dashes");
    if (!text || *text == "pens")
        return MetafileDashes::Pens;
    if (*text == "lines")
        return MetafileDashes::Lines;
    throw wrongValue("--dashes", *text, "pens or lines");
}

} // namespace

constinit const std::array<OptionDescription, 20> pictureOptionDescriptions = {
    {{"--modes", "LIST", "modes to draw; default is all"},
     plotOption,
     {"--all", "",
      "writes every plot of a workspace to the folder OUTPUT,\nnamed by its caption: all of them "
      "or "
      "none"},
     {"--format", "FORMAT", "emf, svg, pdf or png: the format for --all; default svg"},
     {"--scale", "VMIN,VMAX,FMIN,FMAX,GMIN,GMAX",
      "bounds of the axes of speed, frequency and damping;\nGMIN is the damping at the speed axis, "
      "GMAX that at\nthe lower end; by default the axes are fitted to the\ndata, or are those of "
      "the workspace"},
     {"--ticks", "V,G,F", "tick counts of the three axes"},
     sizeOption,
     resolutionOption,
     lineWidthOption,
     dashesOption,
     {"--header", "TEXT",
      "text above the plot; in all texts \\n begins a new line,\nand Rich Text Format ({\\rtf...) "
      "keeps its look;\ndefault: airplane, mass, method and Mach number as\nfar as the files "
      "agree"},
     {"--legend", "TEXT", "text of the legend"},
     {"--subtitle", "TEXT",
      "text of the flutter mechanism; default: the names of up\nto six files"},
     {"--reference-speed", "V=CAPTION",
      "mark at a speed; may be repeated. A mark is measured\nfrom the left end of the axis: if the "
      "axis does not\nbegin at 0, the mark is shifted, with a message",
      false, true},
     {"--damping-line", "G=CAPTION", "horizontal line at a damping; may be repeated", false, true},
     {"--marker", "MARKER",
      "text at the points: none, id (the mode number),\ntag (the number of the curve) or mpf:I "
      "(participation\nfactor I); default id"},
     {"--marker-spacing", "N",
      "number of points between markers; by default each\ncurve has about four markers, at other "
      "points than its\nneighbours"},
     {"--marker-size", "N", "size of the markers in points; default 8"},
     {"--palette", "PALETTE",
      "how curves are told apart: standard, colour-blind\n(colours for people who see no red or "
      "green) or\nline-styles (black, for print without colours);\ndefault standard"},
     {"--output", "OUTPUT",
      "the file to write, which ends in .png, .svg, .pdf or\n.emf; with --all an existing folder",
      true}}};

PictureSize pictureSizeOf(const CommandLine& line)
{
    PictureSize size;
    const std::string text = line.value("--size").value_or("");
    if (text.ends_with("mm"))
        size = sizeInMillimetres(line, text);
    else if (line.has("--resolution"))
        throw UsageError("--resolution needs a size in millimetres");
    else if (line.has("--size"))
        size.pixels = sizeInPixels(text);
    if (const auto width = line.number("--least-line-width")) {
        if (!(*width >= finestLine && *width <= widestLine))
            throw wrongValue("--least-line-width", *line.value("--least-line-width"),
                             "a number from 0.1 to 100");
        size.settings.leastLineWidth = *width;
    }
    size.settings.dashes = dashesOf(line);
    return size;
}

PictureOptions pictureOptionsOf(const CommandLine& line)
{
    PictureOptions options;
    options.folderFormat = folderFormatOf(line);
    options.output =
        options.folderFormat ? *line.value("--output") : outputOf(line, pictureOutputs);
    options.size = pictureSizeOf(line);
    if (const auto list = line.value("--modes"))
        options.modes = modeListOf(*list);
    options.bounds = boundsOf(line);
    options.ticks = ticksOf(line);
    options.header = line.value("--header");
    options.legend = line.value("--legend");
    options.subtitle = line.value("--subtitle");
    options.referenceSpeeds = captionedValuesOf(line, "--reference-speed");
    options.dampingLines = captionedValuesOf(line, "--damping-line");
    options.markers = markersOf(line);
    options.palette = paletteOf(line);
    options.plot = line.value(plotOption.name);
    if (options.folderFormat && !hasWorkspace(line.operands()))
        throw UsageError("--all needs a workspace");
    checkWorkspaceOptions(
        line, line.operands(),
        {"--modes", "--marker", "--marker-spacing", "--marker-size", "--palette"});
    return options;
}

} // namespace tarsil::batch
