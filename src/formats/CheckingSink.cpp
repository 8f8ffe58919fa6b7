// SPDX-License-Identifier: Apache-2.0
#include "formats/CheckingSink.h"

#include "base/files/TextStream.h"
#include "formats/FindingList.h"
#include "formats/FindingTexts.h"

#include <utility>

namespace tarsil {

CheckingSink::CheckingSink(TextStream& stream, FindingList& findings, ModeWatch::ModeEnds ends)
    : m_stream(stream), m_findings(findings), m_modes(findings, ends)
{ }

void CheckingSink::addWrongNumber(NumberStatus status, std::string_view text,
                                  const std::string& where)
{
    add(where + ": " + numberComplaint(status, text));
}

void CheckingSink::add(std::string text)
{
    m_findings.add(m_stream.lineNumber(), std::move(text));
}

} // namespace tarsil
