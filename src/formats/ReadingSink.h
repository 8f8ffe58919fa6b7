#pragma once

#include "base/numbers/Numbers.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace tarsil {

class EVM;
class TextStream;

/// What the sinks of all readers share: each makes an evolution of what a parser reports, and
/// raises the first thing that is wrong as an error.
class ReadingSink
{
public:
    ReadingSink(TextStream& stream, EVM& evolution) : m_stream(stream), m_evolution(evolution) { }

    /// Error 13 or 6; `where` says where in the line the text is.
    [[noreturn]] void addWrongNumber(NumberStatus status, std::string_view text,
                                     const std::string& where) const;

protected:
    /// How many points to reserve for a mode: as many as are declared, but no more than there can
    /// be in the rest of the file and `bytesAtHand`, each of them `shortest` bytes at least.
    std::size_t expectedPoints(std::size_t bytesAtHand, std::size_t shortest) const;

    TextStream& m_stream;
    EVM& m_evolution;
};

} // namespace tarsil
