// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "formats/ReadingSink.h"
#include "model/AeMode.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>

namespace tarsil {

/// Makes modes of the rows of a result table: a row with another mode number ends the current mode.
class ResultReadingSink : public ReadingSink
{
public:
    using ReadingSink::ReadingSink;

    Point& newPoint(std::optional<std::int16_t> modeNumber)
    {
        // Always has a number, because an invalid one is an error.
        if (!m_mode || m_mode->Id != *modeNumber)
            startMode(*modeNumber);
        Point& point = m_mode->Points.emplace_back();
        point.Parent = m_mode.get();
        return point;
    }

    /// Error 9.
    [[noreturn]] void addShortRow(std::size_t fields, std::string_view line) const;

    /// Appends the current mode, if there is one.
    void closeMode();

private:
    void startMode(std::int16_t number);

    std::unique_ptr<AeMode> m_mode; ///< the mode being read
};

} // namespace tarsil
