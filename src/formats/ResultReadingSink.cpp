// SPDX-License-Identifier: Apache-2.0
#include "formats/ResultReadingSink.h"

#include "base/files/TextStream.h"
#include "base/text/QuotedText.h"
#include "base/user/RunTimeError.h"
#include "model/EVM.h"

#include <string>
#include <utility>

namespace tarsil {

void ResultReadingSink::addShortRow(std::size_t fields, std::string_view line) const
{
    throw RunTimeError(ErrorNumber::SubscriptOutOfRange, "EVM",
                       m_stream.location() + ": only " + std::to_string(fields)
                           + " of the fields of a result row: " + quotedText(line));
}

void ResultReadingSink::closeMode()
{
    if (!m_mode)
        return;
    if (m_mode->Points.capacity() > m_mode->Points.size())
        m_mode->Points.shrink_to_fit();
    m_mode->Parent = &m_evolution;
    m_evolution.Modes.push_back(std::move(m_mode));
}

void ResultReadingSink::startMode(std::int16_t number)
{
    constexpr std::size_t shortestRow = 16; // eight fields of one digit and their separators
    closeMode();
    m_mode = std::make_unique<AeMode>();
    m_mode->Id = number;
    m_mode->Points.reserve(expectedPoints(0, shortestRow));
}

} // namespace tarsil
