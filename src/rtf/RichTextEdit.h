#pragma once

#include "rtf/RichText.h"

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

namespace tarsil {

// Changes of a rich text. Positions count UTF-16 units from 0, a line break as one; ranges that
// reach beyond the text end with it.

std::u16string plainText(const RichText& text);

/// The look of the character at `position`; behind the text, the look that the text ends with.
const TextFormat& formatAt(const RichText& text, std::size_t position);

/// Puts `characters` of one look in place of a range.
void replaceText(RichText& text, std::size_t position, std::size_t length,
                 std::u16string_view characters, const TextFormat& format);

/// Changes the look of each character of a range.
void changeFormat(RichText& text, std::size_t position, std::size_t length,
                  const std::function<void(TextFormat&)>& change);

/// Joins neighbouring runs that look the same and drops empty ones.
void joinRuns(RichText& text);

// Positions as programs see them that show a line break as the two characters CR LF.

/// The text with CR LF for each line break.
std::u16string shownText(std::u16string_view plain);

/// The position in the shown text of a position in the plain one.
std::size_t shownPosition(std::u16string_view plain, std::size_t position);

/// A range of the plain text.
struct TextRange
{
    std::size_t position;
    std::size_t length;

    bool operator==(const TextRange&) const = default;
};

/// The smallest range of whole characters that holds a range of the shown one: a line break and a
/// character of two units are taken whole. An empty range is the place before the character that it
/// stands in.
TextRange plainRange(std::u16string_view plain, std::size_t shownPosition, std::size_t shownLength);

} // namespace tarsil
