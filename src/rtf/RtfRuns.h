#pragma once

#include "rtf/RichText.h"
#include "rtf/RtfFormat.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tarsil {

/// The characters of a source as they are found, each with its format.
class RtfRuns
{
public:
    /// All units that end a line become u'\n', a NUL is left out, and half a character becomes
    /// U+FFFD. The second half of a character takes the format of the first.
    void append(char16_t unit, const RtfFormat& format);

    /// Takes a line break off the end and returns its format; nothing when the text ends otherwise.
    std::optional<RtfFormat> dropFinalBreak();

    /// The runs, in the formats that `resolve` gives for the source's own.
    std::vector<TextRun> resolved(const std::function<TextFormat(const RtfFormat&)>& resolve);

private:
    struct Span
    {
        std::size_t start; ///< of the first unit in m_text
        RtfFormat format;
    };

    void replaceHalfAtTheEnd();

    std::u16string m_text;
    std::vector<Span> m_spans;
};

} // namespace tarsil
