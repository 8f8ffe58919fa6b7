// SPDX-License-Identifier: Apache-2.0
#include "FuzzTarget.h"

#include "formats/EvolutionChecker.h"
#include "formats/FormatTable.h"

#include <algorithm>
#include <string>

namespace {

void check(std::string_view text, std::string_view fileName)
{
    using namespace tarsil;
    const auto findings = checkEvolutionText(text, fileName);
    fuzz::require(findings.size() <= mostFindings + 1, "the list of findings is limited");
    const auto lines =
        static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n')) + std::size_t {1};
    std::size_t last = 1;
    for (const Finding& finding : findings) {
        fuzz::require(finding.line >= last && finding.line <= std::max<std::size_t>(lines, 4),
                      "findings stand in the order of their lines");
        fuzz::require(!finding.text.empty(), "a finding says something");
        last = finding.line;
    }
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view text = tarsil::fuzz::textOf(data, size);
    for (const tarsil::EvolutionFormat* format : tarsil::evolutionFormats())
        check(text, "fuzz" + std::string(format->extension));
    return 0;
}
