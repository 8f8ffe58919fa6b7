// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "base/numbers/ColorValue.h"

#include <optional>
#include <string>
#include <vector>

namespace tarsil {

/// The look of a character. Without a colour it has that of the box.
struct TextFormat
{
    std::string family = "Arial"; ///< UTF-8; kept even when the font is not installed
    double points = 10;
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool strikeOut = false;
    std::optional<ColorValue> color {};

    bool operator==(const TextFormat&) const = default;
};

/// Consecutive characters with the same look. A line break is u'\n' and has a look too: it gives an
/// empty line its height.
struct TextRun
{
    std::u16string text;
    TextFormat format;

    bool operator==(const TextRun&) const = default;
};

/// A text in which each character has its own look.
struct RichText
{
    std::vector<TextRun> runs;

    /// The look at the end of the text; also that of an empty text.
    TextFormat last;

    bool operator==(const RichText&) const = default;
};

} // namespace tarsil
