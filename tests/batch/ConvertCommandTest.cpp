// SPDX-License-Identifier: Apache-2.0
#include "batch/BatchFixture.h"

#include <gmock/gmock.h>

using namespace tarsil;
using test::fileBytes;
using test::runBatch;
using ::testing::HasSubstr;

namespace {

class ConvertCommand : public test::BatchFixture
{ };

} // namespace

TEST_F(ConvertCommand, writesFixedColumns)
{
    const auto result = runBatch({"convert", "--output", file("out.evm"), writeEv2()});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.out + result.err, "");
    const std::string text = fileBytes(file("out.evm"));
    // Field of 40 columns: number (3), reduced frequency (7), speed (9), damping (12), frequency
    // (9).
    EXPECT_THAT(text, HasSubstr("  3  0.000  300.000-1.00000E+00    4.000"));
    EXPECT_THAT(text, HasSubstr("  5  0.000  400.000-1.00000E+00   14.000"));
}

TEST_F(ConvertCommand, doesNotWriteOverItsInput)
{
    const std::string path = writeEvm();
    const std::string before = fileBytes(path);
    const auto result = runBatch({"convert", "--output", folder().path() / "." / "old.evm", path});
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.err, HasSubstr("is one of the files to read"));
    EXPECT_EQ(fileBytes(path), before);
}

TEST_F(ConvertCommand, leavesAnOldOutputAsItWasWhenAValueDoesNotFit)
{
    const std::string path = folder().write("big.ev2",
                                            "[PROCESSING DATA INFO]\n\n[MODEL DATA INFO]\n\n"
                                            "[RESULT DATA SUMMARY]\n\n\n\n\n"
                                            "1|1|0|0|0|123456789|0|1\n");
    const std::string output = folder().write("out.evm", "old");
    const auto result = runBatch({"convert", "--output", output, path});
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.err, HasSubstr("mode 1, point 1"));
    EXPECT_EQ(fileBytes(output), "old");
    EXPECT_EQ(fileCount(), 2U);
}

TEST_F(ConvertCommand, acceptsOneFileAndAnOutputOfItsKind)
{
    const std::string path = writeEv2();
    EXPECT_EQ(runBatch({"convert", "--output", file("out.evm"), path, path}).status, 2);
    EXPECT_EQ(runBatch({"convert", "--output", file("out.ev2"), path}).status, 2);
    EXPECT_EQ(runBatch({"convert", path}).status, 2);
}

TEST_F(ConvertCommand, namesAMissingFile)
{
    const auto result = runBatch({"convert", "--output", file("out.evm"), file("missing.ev2")});
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.err, HasSubstr(file("missing.ev2")));
    EXPECT_EQ(fileCount(), 0U);
}
