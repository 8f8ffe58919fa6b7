// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "rtf/RichText.h"

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

namespace tarsil {

// Changes of a rich text. Positions count UTF-16 units from 0; a line break counts one. A range
// that exceeds the text is cut at its end.

std::u16string plainText(const RichText& text);

/// The look of the character at `position`; after the last character, `last`.
const TextFormat& formatAt(const RichText& text, std::size_t position);

/// Replaces a range by `characters` of one look.
void replaceText(RichText& text, std::size_t position, std::size_t length,
                 std::u16string_view characters, const TextFormat& format);

/// Applies `change` to the look of each character of a range.
void changeFormat(RichText& text, std::size_t position, std::size_t length,
                  const std::function<void(TextFormat&)>& change);

/// Joins consecutive runs of equal look and removes empty ones.
void joinRuns(RichText& text);

// The shown text has CR LF for each line break, so its positions differ from those of the plain
// text.

/// The plain text with CR LF for each line break.
std::u16string shownText(std::u16string_view plain);

/// Converts a position in the plain text to one in the shown text.
std::size_t shownPosition(std::u16string_view plain, std::size_t position);

/// A range of the plain text.
struct TextRange
{
    std::size_t position;
    std::size_t length;

    bool operator==(const TextRange&) const = default;
};

/// The smallest range of whole characters in the plain text that contains a range of the shown
/// text. A line break and a surrogate pair are never split. An empty range becomes the position
/// before the character that contains it.
TextRange plainRange(std::u16string_view plain, std::size_t shownPosition, std::size_t shownLength);

} // namespace tarsil
