#include "runtime/TextStream.h"

#include "runtime/RunTimeError.h"

namespace tarsil {

TextStream::TextStream(std::string_view text, std::string name)
    : m_text(text), m_name(std::move(name))
{
    if (m_text.starts_with("\xEF\xBB\xBF"))
        m_text.remove_prefix(3);
}

std::string TextStream::place() const
{
    return m_name + ", line " + std::to_string(m_lineNumber);
}

void TextStream::throwPastEnd() const
{
    throw RunTimeError(ErrorNumber::InputPastEndOfFile, "TextStream",
                       m_name + " ends after line " + std::to_string(m_lineNumber));
}

} // namespace tarsil
