// SPDX-License-Identifier: Apache-2.0
#include "base/files/TextStream.h"

#include "base/files/FileLines.h"
#include "base/text/AsciiText.h"
#include "base/user/RunTimeError.h"

namespace tarsil {

TextStream::TextStream(std::string_view text, std::string name)
    : m_text(text), m_name(std::move(name))
{
    skipByteOrderMark();
}

TextStream::TextStream(FileLines& file, std::string name)
    : m_file(&file), m_text(file.next()), m_bytesAfter(file.bytesLeft()), m_name(std::move(name))
{
    skipByteOrderMark();
}

void TextStream::skipByteOrderMark()
{
    if (m_text.starts_with("\xEF\xBB\xBF"))
        m_text.remove_prefix(3);
}

bool TextStream::onlyBlanksLeft() const
{
    return isBlankText(rest()) && (m_file == nullptr || m_file->onlyBlanksLeft());
}

std::string TextStream::location() const
{
    return m_name + ", line " + std::to_string(m_lineNumber);
}

/// Replaces the lines already read by the next lines of the file.
void TextStream::readNextPiece()
{
    if (m_bytesAfter == 0)
        throw RunTimeError(ErrorNumber::InputPastEndOfFile, "TextStream",
                           m_name + " ends after line " + std::to_string(m_lineNumber));
    m_text = m_file->next();
    m_bytesAfter = m_file->bytesLeft();
    m_position = 0;
}

} // namespace tarsil
