// SPDX-License-Identifier: Apache-2.0
#include "formats/FindingTexts.h"

#include "base/files/TextStream.h"
#include "base/text/AsciiText.h"
#include "base/text/QuotedText.h"

namespace tarsil {

std::string numberComplaint(NumberStatus status, std::string_view text)
{
    if (status == NumberStatus::Overflow)
        return quotedTrimmed(text) + " is too large";
    if (isBlankText(text))
        return "is blank, where a number should stand";
    if (text.find('*') != std::string_view::npos)
        return quotedTrimmed(text)
            + " is not a number: the value did not fit when the file was written";
    return quotedTrimmed(text) + " is not a number";
}

std::string quotedTrimmed(std::string_view text)
{
    return quotedText(trimmed(text));
}

bool isCutOff(const TextStream& stream, std::string_view line)
{
    return stream.atEndOfStream() && line.data() + line.size() == stream.rest().data();
}

} // namespace tarsil
