#pragma once

#include "base/numbers/Numbers.h"
#include "formats/ModeWatch.h"

#include <string>
#include <string_view>

namespace tarsil {

class FindingList;
class TextStream;

/// What the sinks of all checkers share: each lists what is doubtful in what a parser reports, and
/// lets the parser go on.
class CheckingSink
{
public:
    CheckingSink(TextStream& stream, FindingList& findings, ModeWatch::ModeEnds ends);

    /// `where` says where in the line the text is.
    void addWrongNumber(NumberStatus status, std::string_view text, const std::string& where);

protected:
    /// A finding in the line last read.
    void add(std::string text);

    TextStream& m_stream;
    FindingList& m_findings;
    ModeWatch m_modes;
};

} // namespace tarsil
