// SPDX-License-Identifier: Apache-2.0

// The workspace of the samples, whose stored paths do not exist.

#include "batch/BatchFixture.h"

#include <gmock/gmock.h>

#include <algorithm>

using namespace tarsil;
using test::fileBytes;
using test::runBatch;
using test::sample;
using ::testing::HasSubstr;

namespace {

class SampleWorkspace : public test::BatchFixture
{ };

} // namespace

TEST_F(SampleWorkspace, findsItsFilesBesideIt)
{
    const auto result = runBatch({"check", sample("goland.tsw")});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.err, "");
    EXPECT_EQ(std::count(result.out.begin(), result.out.end(), '\n'), 6) << result.out;
    EXPECT_THAT(result.out,
                HasSubstr("C:\\flutter\\goland_clean_m040.ev2 is not there; it was found at "
                          + sample("goland_clean_m040.ev2")));
}

TEST_F(SampleWorkspace, givesTheFlutterSpeedsOfTheSamples)
{
    const auto result = runBatch({"report", "--reference-damping", "0", "--speed-limit", "420",
                                  "--output", file("out.csv"), sample("goland.tsw")});
    EXPECT_EQ(result.status, 0) << result.err;
    const std::string text = fileBytes(file("out.csv"));
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 13);
    EXPECT_THAT(text,
                HasSubstr("goland_clean_m040.ev2,\"CLEAN, Mach 0.40, sea level\",CLEAN,0.4,2,"));
    // The values in samples/README.md are rounded: 266.2 KEAS, 282.7 and 388.2.
    EXPECT_THAT(text, HasSubstr(",266.23"));
    EXPECT_THAT(text, HasSubstr(",282.66"));
    EXPECT_THAT(text, HasSubstr(",388.16"));
}

TEST_F(SampleWorkspace, drawsBothPlots)
{
    const auto result = runBatch({"picture", "--output", file("out.svg"), sample("goland.tsw")});
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_THAT(test::svgTexts(file("out-1.svg")), HasSubstr("Goland wing, clean|"));
    EXPECT_THAT(test::svgTexts(file("out-2.svg")), HasSubstr("Goland wing with a tip store|"));
}

TEST_F(SampleWorkspace, speaksOfItsTextsAndColours)
{
    const auto result = runBatch({"info", "--json", sample("goland.tsw")});
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.out,
                HasSubstr(R"("text":"Goland wing, clean\n","font":"Arial","size":14,"bold":true)"));
    EXPECT_THAT(result.out, HasSubstr(R"("tag":"B")"));
    EXPECT_THAT(result.out, HasSubstr(R"("color":"#008000","marker_color":"#008000")"));
}
