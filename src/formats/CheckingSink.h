// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "base/numbers/Numbers.h"
#include "formats/ModeWatch.h"

#include <string>
#include <string_view>

namespace tarsil {

class FindingList;
class TextStream;

/// The base of the sinks of checkers: lists what is doubtful in what a parser reports, and lets the
/// parser continue.
class CheckingSink
{
public:
    CheckingSink(TextStream& stream, FindingList& findings, ModeWatch::ModeEnds ends);

    /// `where` is the position of the text in its line.
    void addWrongNumber(NumberStatus status, std::string_view text, const std::string& where);

protected:
    /// Adds a finding for the line last read.
    void add(std::string text);

    TextStream& m_stream;
    FindingList& m_findings;
    ModeWatch m_modes;
};

} // namespace tarsil
