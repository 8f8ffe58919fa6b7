// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tarsil {

/// The source of an imported evolution and the units that the user gave; empty for other
/// evolutions. The texts are those of the evolution's file.
struct Provenance
{
    std::string source; ///< path of the solver output
    std::string sourceLines; ///< "120-4711"
    std::string speedUnit; ///< of the printed speeds: "ft/s"
    std::string vref; ///< factor of the printed speeds
    std::string density; ///< unit of the printed densities: "slug/ft3"
    std::string log; ///< what was left out or changed: entries separated by `logSeparator`

    static constexpr std::string_view logSeparator = "; ";

    bool isImported() const { return !source.empty(); }

    std::vector<std::string> logEntries() const;

    /// Sets `log` from entries. A ";" inside an entry becomes a comma.
    void setLogEntries(const std::vector<std::string>& entries);
};

} // namespace tarsil
