#pragma once

#include "base/numbers/ColorValue.h"

#include <optional>
#include <string>
#include <vector>

namespace tarsil {

/// How a character looks. No colour means automatic: the box's own.
struct TextFormat
{
    std::string family = "Arial"; ///< UTF-8; kept even where no such font is installed
    double points = 10;
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool strikeOut = false;
    std::optional<ColorValue> color {};

    bool operator==(const TextFormat&) const = default;
};

/// Neighbouring characters that look the same. A line break is u'\n', and it has a look too: the
/// height of an empty line is that of its break.
struct TextRun
{
    std::u16string text;
    TextFormat format;

    bool operator==(const TextRun&) const = default;
};

/// A text whose characters have looks of their own.
struct RichText
{
    std::vector<TextRun> runs;

    /// The look at the end, which an empty text keeps.
    TextFormat last;

    bool operator==(const RichText&) const = default;
};

} // namespace tarsil
