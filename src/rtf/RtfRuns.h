// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "rtf/RichText.h"
#include "rtf/RtfFormat.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tarsil {

/// The characters of a source, each with its format.
class RtfRuns
{
public:
    /// Appends a unit. Any line end becomes u'\n', NUL is dropped, an unpaired surrogate becomes
    /// U+FFFD. The second unit of a surrogate pair gets the format of the first.
    void append(char16_t unit, const RtfFormat& format);

    /// Removes a final line break and returns its format; empty when the text does not end in one.
    std::optional<RtfFormat> dropFinalBreak();

    /// The runs of the text; `resolve` converts the formats.
    std::vector<TextRun> resolved(const std::function<TextFormat(const RtfFormat&)>& resolve);

private:
    struct Span
    {
        std::size_t start; ///< index of the first unit in m_text
        RtfFormat format;
    };

    void replaceHalfAtTheEnd();

    std::u16string m_text;
    std::vector<Span> m_spans;
};

} // namespace tarsil
