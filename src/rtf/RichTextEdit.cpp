// SPDX-License-Identifier: Apache-2.0
#include "rtf/RichTextEdit.h"

#include <algorithm>
#include <utility>

namespace tarsil {

namespace {

/// Splits the run at `position` if necessary and returns the index of the run that begins there.
std::size_t cutAt(RichText& text, std::size_t position)
{
    for (std::size_t i = 0; i < text.runs.size(); ++i) {
        TextRun& run = text.runs[i];
        if (position == 0)
            return i;
        if (position < run.text.size()) {
            TextRun rest {run.text.substr(position), run.format};
            run.text.resize(position);
            text.runs.insert(text.runs.begin() + static_cast<std::ptrdiff_t>(i) + 1,
                             std::move(rest));
            return i + 1;
        }
        position -= run.text.size();
    }
    return text.runs.size();
}

auto runAt(RichText& text, std::size_t index)
{
    return text.runs.begin() + static_cast<std::ptrdiff_t>(index);
}

bool isSecondUnit(std::u16string_view text, std::size_t position)
{
    return position > 0 && position < text.size() && text[position] >= 0xDC00
        && text[position] <= 0xDFFF && text[position - 1] >= 0xD800 && text[position - 1] <= 0xDBFF;
}

} // namespace

std::u16string plainText(const RichText& text)
{
    std::u16string plain;
    for (const TextRun& run : text.runs)
        plain += run.text;
    return plain;
}

const TextFormat& formatAt(const RichText& text, std::size_t position)
{
    for (const TextRun& run : text.runs) {
        if (position < run.text.size())
            return run.format;
        position -= run.text.size();
    }
    return text.last;
}

void replaceText(RichText& text, std::size_t position, std::size_t length,
                 std::u16string_view characters, const TextFormat& format)
{
    const std::size_t first = cutAt(text, position);
    const std::size_t end = length == 0 ? first : cutAt(text, position + length);
    const auto next = text.runs.erase(runAt(text, first), runAt(text, std::max(first, end)));
    text.runs.insert(next, {std::u16string(characters), format});
    joinRuns(text);
}

void changeFormat(RichText& text, std::size_t position, std::size_t length,
                  const std::function<void(TextFormat&)>& change)
{
    const std::size_t first = cutAt(text, position);
    const std::size_t end = length == 0 ? first : cutAt(text, position + length);
    for (std::size_t i = first; i < end; ++i)
        change(text.runs[i].format);
    joinRuns(text);
}

void joinRuns(RichText& text)
{
    std::vector<TextRun> joined;
    for (TextRun& run : text.runs) {
        if (run.text.empty())
            continue;
        if (!joined.empty() && joined.back().format == run.format)
            joined.back().text += run.text;
        else
            joined.push_back(std::move(run));
    }
    text.runs = std::move(joined);
}

std::u16string shownText(std::u16string_view plain)
{
    std::u16string shown;
    for (const char16_t unit : plain) {
        if (unit == u'\n')
            shown += u'\r';
        shown += unit;
    }
    return shown;
}

std::size_t shownPosition(std::u16string_view plain, std::size_t position)
{
    const auto before = plain.substr(0, position);
    return before.size()
        + static_cast<std::size_t>(std::count(before.begin(), before.end(), u'\n'));
}

TextRange plainRange(std::u16string_view plain, std::size_t shownPosition, std::size_t shownLength)
{
    const std::size_t shownEnd = shownPosition + shownLength;
    std::size_t begin = 0;
    std::size_t end = 0;
    std::size_t shown = 0; // position of plain[i] in the shown text
    for (std::size_t i = 0; i < plain.size() && shown < shownEnd; ++i) {
        const std::size_t next = shown + (plain[i] == u'\n' ? 2 : 1);
        if (next <= shownPosition)
            begin = i + 1;
        end = i + 1;
        shown = next;
    }
    if (isSecondUnit(plain, begin))
        --begin;
    if (shownLength == 0)
        return {begin, 0};
    if (isSecondUnit(plain, end))
        ++end;
    return {begin, std::max(begin, end) - begin};
}

} // namespace tarsil
