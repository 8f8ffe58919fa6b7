// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "support/TestFiles.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tarsil::test {

/// The result of a run of the batch program.
struct BatchResult
{
    int status;
    std::string out;
    std::string err;
};

/// Runs the program in this process.
BatchResult runBatch(const std::vector<std::string>& arguments);

/// All texts of an SVG, each followed by a bar.
std::string svgTexts(const std::string& path);

/// Tests with a temporary folder for the files of the batch program.
class BatchFixture : public ::testing::Test
{
protected:
    /// Writes an evolution of the sectioned layout with factors: mode 3 with two points (300 KEAS,
    /// g -1, 4 Hz) and (400, 1, 6), and mode 5 with three, (200, -1, 8), (300, 1, 10) and
    /// (400, -1, 14); first factors are ten times the frequency; Mach 0.78. Returns its path.
    std::string writeEv2(std::string_view name = "wing.ev2") const;

    /// Writes one of the fixed-column layout: mode 7 with (100, -0.5, 4) and (200, 0.5, 8).
    std::string writeEvm(std::string_view name = "old.evm") const;

    std::string file(std::string_view name) const { return m_folder.file(name); }
    const TemporaryFolder& folder() const { return m_folder; }

    /// The number of entries in the folder: a run that fails leaves none.
    std::size_t fileCount() const;

private:
    TemporaryFolder m_folder;
};

} // namespace tarsil::test
