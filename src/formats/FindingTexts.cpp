#include "formats/FindingTexts.h"

#include "base/files/FileLines.h"
#include "base/files/TextStream.h"
#include "base/text/QuotedText.h"

#include <algorithm>

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
    text.remove_prefix(std::min(text.find_first_not_of(" \t"), text.size()));
    return quotedText(text.substr(0, text.find_last_not_of(" \t") + 1));
}

bool isCutOff(const TextStream& stream, std::string_view line)
{
    return stream.atEndOfStream() && line.data() + line.size() == stream.rest().data();
}

} // namespace tarsil
