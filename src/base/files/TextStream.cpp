#include "base/files/TextStream.h"

#include "base/files/FileLines.h"
#include "base/text/AsciiText.h"
#include "base/user/RunTimeError.h"

namespace tarsil {

TextStream::TextStream(std::string_view text, std::string name)
    : m_text(text), m_name(std::move(name))
{
    passOverByteOrderMark();
}

TextStream::TextStream(FileLines& file, std::string name)
    : m_file(&file), m_text(file.next()), m_bytesBehind(file.bytesLeft()), m_name(std::move(name))
{
    passOverByteOrderMark();
}

void TextStream::passOverByteOrderMark()
{
    if (m_text.starts_with("\xEF\xBB\xBF"))
        m_text.remove_prefix(3);
}

bool TextStream::onlyBlanksLeft() const
{
    return isBlankText(rest()) && (m_file == nullptr || m_file->onlyBlanksLeft());
}

std::string TextStream::place() const
{
    return m_name + ", line " + std::to_string(m_lineNumber);
}

/// Puts the next lines of the file into the place of those that have been read.
void TextStream::takeNextLines()
{
    if (m_bytesBehind == 0)
        throw RunTimeError(ErrorNumber::InputPastEndOfFile, "TextStream",
                           m_name + " ends after line " + std::to_string(m_lineNumber));
    m_text = m_file->next();
    m_bytesBehind = m_file->bytesLeft();
    m_position = 0;
}

} // namespace tarsil
