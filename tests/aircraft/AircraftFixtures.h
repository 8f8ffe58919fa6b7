// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "aircraft/AirplaneInfo.h"
#include "aircraft/AirplaneInfoReader.h"
#include "base/files/TextStream.h"
#include "base/user/RunTimeError.h"
#include "support/Errors.h"

#include <optional>
#include <string_view>

namespace tarsil::test {

/// Reads a text; "wing.inp" is its name in messages.
inline AirplaneInfo readText(std::string_view text)
{
    AirplaneInfo info;
    TextStream stream(text, "wing.inp");
    readAirplaneInfo(stream, info);
    return info;
}

/// The error that stops the reader, if any, and what was read before it.
struct StoppedReading
{
    AirplaneInfo info;
    std::optional<RunTimeError> error;

    int number() const { return error ? static_cast<int>(error->number()) : 0; }
    std::string description() const { return error ? error->description() : "no error"; }
};

inline StoppedReading readUntilError(std::string_view text)
{
    StoppedReading result;
    TextStream stream(text, "wing.inp");
    result.error = errorOf([&] { readAirplaneInfo(stream, result.info); });
    return result;
}

} // namespace tarsil::test
