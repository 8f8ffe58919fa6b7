// SPDX-License-Identifier: Apache-2.0

// Published results of other programs, which are not in the repository: what is said about their
// stability. Skipped when the folder is missing.

#include "analysis/StabilityTable.h"
#include "analysis/StabilityTexts.h"
#include "analysis/TrackedFile.h"
#include "base/files/InputFile.h"
#include "formats/EvolutionFile.h"
#include "model/EVM.h"
#include "support/TestFiles.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

using namespace tarsil;

namespace {

struct RealCase
{
    const char* name;
    const char* verdict; ///< the start of the verdict at g = 0
};

class RealCrossingsTest : public ::testing::TestWithParam<RealCase>
{
protected:
    void SetUp() override
    {
        if (!std::filesystem::is_directory(test::realResults()))
            GTEST_SKIP() << "no folder " << test::realResults();
        evolution = openEvolution(path());
    }

    static std::string path()
    {
        return test::realResults() + "/" + GetParam().name + std::string(".ev2");
    }

    std::unique_ptr<EVM> evolution;
};

/// All values of a point, sorted: the same set before and after tracking.
std::vector<float> dampingsAt(const EVM& evolution, std::size_t point)
{
    std::vector<float> values;
    for (const auto& mode : evolution.Modes)
        values.push_back(mode->Points[point].G);
    std::sort(values.begin(), values.end());
    return values;
}

// 765.96 KEAS and 3.178 Hz of the BAH wing are those of its own solver's print, interpolated.
// The others are what its curves show: the section and the swept wing flutter once, each by its
// second mode; the wing printed in another unit, and the method KE with six coarse points, are
// unstable from their first points.
INSTANTIATE_TEST_SUITE_P(
    Files, RealCrossingsTest,
    ::testing::Values(RealCase {"bah_wing_s2_2",
                                "765.96 +- 0.06 KEAS, 3.18 Hz, flutter, mode 4 (A)"},
                      RealCase {"bah_wing_s1", "unstable from the first speed: modes 2, 3, 4"},
                      RealCase {"naca0012_s1", "167.22 +- 0.13 KEAS, 6.22 Hz, flutter, mode 2 (A)"},
                      RealCase {"swept15_pk_s1", "292.37 +- 0.43 KEAS, 139.70 Hz, flutter, mode 2"},
                      RealCase {"swept15_ke_s1", "unstable from the first speed: modes 1, 2"}));

} // namespace

TEST_P(RealCrossingsTest, saysWhereInstabilityBegins)
{
    const EvolutionStability stability = judged({evolution.get(), 0, std::nullopt}, {});
    EXPECT_TRUE(
        verdictText(stability.verdicts.at(0), stability.lastSpeed).starts_with(GetParam().verdict))
        << verdictText(stability.verdicts.at(0), stability.lastSpeed);
}

TEST_P(RealCrossingsTest, keepsEveryNumberWhenItIsTracked)
{
    const TrackedEvolution tracked = trackEvolution(*evolution, {});
    const test::TemporaryFolder folder;
    const auto result = openEvolution(
        folder.write("real_tracked.ev2", trackedText(FileBytes(path()).bytes(), tracked)));
    ASSERT_EQ(result->Modes.size(), evolution->Modes.size());
    for (std::size_t i = 0; i < tracked.tracking.points(); ++i)
        EXPECT_EQ(dampingsAt(*result, i), dampingsAt(*evolution, i)) << "point " << i + 1;
}
