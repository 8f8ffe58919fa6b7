#pragma once

#include "model/PlotAxes.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace tarsil {

// What a workspace file holds, as plain values: the record is filled by `readWorkspace`, written by
// `writeWorkspace`, and knows nothing of the plots and evolutions that it speaks of. Texts are
// UTF-8, with CR LF for a line break; colours are 32-bit RGB, red in the low byte.

/// The position of a text box in its plot, in twentieths of a point.
struct BoxPosition
{
    double left = 0;
    double top = 0;

    bool operator==(const BoxPosition&) const = default;
};

/// A text box of a plot. What is absent leaves the box as it is.
struct TextRecord
{
    std::optional<std::string> rtf; ///< the source: bytes, with its CR LF
    std::optional<BoxPosition> position;

    bool operator==(const TextRecord&) const = default;
};

/// A curve of a plot. It names its mode by two numbers, which may name nothing that is there.
struct SeriesRecord
{
    std::int16_t evolution = 0; ///< from 1: the place in the list of files as it was saved
    std::int16_t mode = 0; ///< from 1: the mode in that evolution
    std::string markerTag;
    std::int32_t markerSize = 0; ///< points
    std::int32_t markerSpacing = 0;
    std::int32_t markerStyle = 0;
    std::string legendText;
    std::int32_t colorIndex = 0; ///< the colour of the curve itself
    std::int32_t markerForegroundColor = 0;
    std::int32_t lineStyle = 0; ///< pen style number, 0 to 5
    std::int16_t lineWidth = 0; ///< pixels
    std::int32_t factor = 1; ///< from 1: the participation factor that is the marker of style 3

    bool operator==(const SeriesRecord&) const = default;
};

/// A reference speed (knots) or the damping of a line, with its caption.
struct MarkRecord
{
    float value = 0;
    std::string caption;

    bool operator==(const MarkRecord&) const = default;
};

/// A plot; until something is read it has the axes of a new one.
struct PlotRecord
{
    std::string caption;
    TextRecord header;
    TextRecord mechanism;
    TextRecord legend;
    PlotAxes axes {};
    std::vector<SeriesRecord> series {};
    std::vector<MarkRecord> referenceSpeeds {};
    std::vector<MarkRecord> dampingLines {};
    bool breaksAtJumps = false; ///< curves break where a root turns from static to oscillatory

    bool operator==(const PlotRecord&) const = default;
};

/// The parameters of an evolution where they are no longer those of its file.
struct EditedRecord
{
    std::string airplane;
    std::string mass;
    float mach = 0;

    bool operator==(const EditedRecord&) const = default;
};

struct WorkspaceRecord
{
    std::string description;
    std::string dateCreated; ///< as it is in the file
    std::string dateModified;
    /// Full paths, in the order of the list of evolutions; empty where an entry is missing.
    std::vector<std::string> files {};
    std::vector<PlotRecord> plots {};
    std::map<std::size_t, EditedRecord> edited {}; ///< by places among the files, from 1
    std::int16_t reference = 0; ///< from 1: the place of the reference evolution; 0 for none

    bool operator==(const WorkspaceRecord&) const = default;
};

/// A value of more bytes than the format reads (`mostStoredBytes`), or with such a field.
struct LongValue
{
    std::string section;
    std::string key;
    std::size_t bytes = 0;

    bool operator==(const LongValue&) const = default;
};

} // namespace tarsil
