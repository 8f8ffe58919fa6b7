// SPDX-License-Identifier: Apache-2.0
#include "formats/ReadingSink.h"

#include "base/files/TextStream.h"
#include "model/EVM.h"

#include <algorithm>

namespace tarsil {

void ReadingSink::addWrongNumber(NumberStatus status, std::string_view text,
                                 const std::string& where) const
{
    throwNumberError(status, text, "EVM", m_stream.location() + ", " + where);
}

std::size_t ReadingSink::expectedPoints(std::size_t bytesAtHand, std::size_t shortest) const
{
    const auto declared = static_cast<std::size_t>(std::max<int>(m_evolution.numberOfSpeeds, 1));
    return std::min(declared, (bytesAtHand + m_stream.bytesLeft()) / shortest + 1);
}

} // namespace tarsil
