// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "model/PlotAxes.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace tarsil {

// The contents of a workspace file as plain values, read by `readWorkspace` and written by
// `writeWorkspace`. Independent of plots and evolutions. Texts are UTF-8, with CR LF for a line
// break; colours are 32-bit RGB, red in the low byte.

/// The position of a text box in its plot, in twentieths of a point.
struct BoxPosition
{
    double left = 0;
    double top = 0;

    bool operator==(const BoxPosition&) const = default;
};

/// A text box of a plot. An absent value leaves the box unchanged.
struct TextRecord
{
    std::optional<std::string> rtf; ///< the source in bytes, with CR LF
    std::optional<BoxPosition> position;

    bool operator==(const TextRecord&) const = default;
};

/// A curve of a plot. The two numbers of its mode may not exist.
struct SeriesRecord
{
    std::int16_t evolution = 0; ///< position in the saved list of files, from 1
    std::int16_t mode = 0; ///< position of the mode in that evolution, from 1
    std::string markerTag;
    std::int32_t markerSize = 0; ///< points
    std::int32_t markerSpacing = 0;
    std::int32_t markerStyle = 0;
    std::string legendText;
    std::int32_t colorIndex = 0; ///< the colour of the curve itself
    std::int32_t markerForegroundColor = 0;
    std::int32_t lineStyle = 0; ///< pen style number, 0 to 5
    std::int16_t lineWidth = 0; ///< pixels
    std::int32_t factor = 1; ///< the participation factor of marker style 3, from 1
    bool isHidden = false; ///< not drawn

    bool operator==(const SeriesRecord&) const = default;
};

/// A reference speed (KEAS) or the damping of a line, with its caption.
struct ReferenceRecord
{
    float value = 0;
    std::string caption;

    bool operator==(const ReferenceRecord&) const = default;
};

/// A plot, by default with the axes of a new one.
struct PlotRecord
{
    std::string caption;
    TextRecord header;
    TextRecord mechanism;
    TextRecord legend;
    PlotAxes axes {};
    std::vector<SeriesRecord> series {};
    std::vector<ReferenceRecord> referenceSpeeds {};
    std::vector<ReferenceRecord> dampingLines {};
    bool breaksAtJumps = false; ///< curves break where a root turns from static to oscillatory

    bool operator==(const PlotRecord&) const = default;
};

/// The parameters of an evolution if they differ from its file.
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
    std::string dateCreated; ///< as in the file
    std::string dateModified;
    /// Full paths, in the order of the evolutions; empty for a missing entry.
    std::vector<std::string> files {};
    std::vector<PlotRecord> plots {};
    std::map<std::size_t, EditedRecord> edited {}; ///< by positions in the list of files, from 1
    std::int16_t reference = 0; ///< position of the reference evolution, from 1; 0 for none

    bool operator==(const WorkspaceRecord&) const = default;
};

/// A value of more bytes than readers accept (`mostStoredBytes`), or with such a field.
struct LongValue
{
    std::string section;
    std::string key;
    std::size_t bytes = 0;

    bool operator==(const LongValue&) const = default;
};

} // namespace tarsil
