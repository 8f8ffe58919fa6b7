// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "base/numbers/Numbers.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace tarsil {

class EVM;
class TextStream;

/// The base of the sinks of readers: makes an evolution of what a parser reports, and raises the
/// first fault as an error.
class ReadingSink
{
public:
    ReadingSink(TextStream& stream, EVM& evolution) : m_stream(stream), m_evolution(evolution) { }

    /// Error 13 or 6; `where` is the position of the text in its line.
    [[noreturn]] void addWrongNumber(NumberStatus status, std::string_view text,
                                     const std::string& where) const;

protected:
    /// The number of points to reserve for a mode: the declared number, limited by what the rest of
    /// the file and `bytesAtHand` can contain at `shortest` bytes for each point.
    std::size_t expectedPoints(std::size_t bytesAtHand, std::size_t shortest) const;

    TextStream& m_stream;
    EVM& m_evolution;
};

} // namespace tarsil
