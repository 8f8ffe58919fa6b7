#include "plot/RtfStoredValue.h"

#include "plot/RtfWriter.h"

namespace tarsil {

namespace {

constexpr std::string_view lineEnd = "\r\n";

} // namespace

std::string rtfFromStoredValue(std::string_view value)
{
    std::string rtf;
    for (const char c : value) {
        if (c == '\0')
            rtf += lineEnd;
        else
            rtf += c;
    }
    return rtf;
}

std::string storedValueFromRtf(std::string_view rtf)
{
    std::string value;
    for (std::size_t i = 0; i < rtf.size(); ++i) {
        if (rtf.substr(i, lineEnd.size()) == lineEnd) {
            value += '\0';
            ++i;
        } else {
            value += rtf[i] == '\0' ? ' ' : rtf[i];
        }
    }
    return value;
}

std::string rtfToStore(const RichText& text)
{
    std::string full = writeRtf(text, RtfForm::Full);
    if (storedValueFromRtf(full).size() <= mostStoredBytes)
        return full;
    return writeRtf(text, RtfForm::Short);
}

} // namespace tarsil
