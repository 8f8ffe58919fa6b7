// SPDX-License-Identifier: Apache-2.0
#include "FormatFixtures.h"

#include "base/files/TextStream.h"
#include "formats/Ev2Format.h"
#include "formats/EvmFormat.h"
#include "formats/EvolutionChecker.h"
#include "formats/SemicolonReader.h"

#include <gtest/gtest.h>

namespace tarsil::test {

std::string evmHeader(std::string_view speeds, std::string_view modes)
{
    const auto right = [](std::string_view text, std::size_t width) {
        return std::string(width - text.size(), ' ').append(text);
    };
    return "WING\nCLEAN\nsubcase 1\n" + std::string(60, ' ') + right(speeds, 4) + right(modes, 8)
        + "\n";
}

std::string ev2Header(std::string_view modelLines)
{
    return "[PROCESSING DATA INFO]\nProgram_version=1\n\n[MODEL DATA INFO]\n"
        + std::string(modelLines)
        + "\n[RESULT DATA SUMMARY]\nMode|Pt|Im|Re|..|Speed|g|Freq\n-\n-\n-\n";
}

std::string ev2Row(std::size_t fields)
{
    std::string row = "1|1";
    for (std::size_t i = 2; i < fields; ++i)
        row += "|" + std::to_string(i);
    return row + "\n";
}

std::vector<std::string> findingsIn(const std::string& text, const std::string& name)
{
    std::vector<std::string> findings;
    for (const Finding& finding : checkEvolutionText(text, name))
        findings.push_back(std::to_string(finding.line) + ": " + finding.text);
    return findings;
}

std::string with(std::string text, std::string_view old, std::string_view replacement)
{
    EXPECT_NE(text.find(old), std::string::npos);
    return text.replace(text.find(old), old.size(), replacement);
}

void readEvmText(std::string_view text, EVM& evolution)
{
    TextStream stream(text, "wing.evm");
    readEvm(stream, evolution);
}

void readEv2Text(std::string_view text, EVM& evolution)
{
    TextStream stream(text, "wing.ev2");
    readEv2(stream, evolution);
}

void readSemicolonText(std::string_view text, EVM& evolution)
{
    TextStream stream(text, "wing.csv");
    readSemicolonTable(stream, evolution);
}

} // namespace tarsil::test
