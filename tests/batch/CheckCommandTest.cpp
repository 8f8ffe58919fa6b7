#include "batch/BatchFixture.h"

#include <gmock/gmock.h>

using namespace tarsil;
using test::runBatch;
using ::testing::HasSubstr;

namespace {

class CheckCommand : public test::BatchFixture
{
protected:
    /// Two points of the same speed.
    std::string writeDoubtful() const
    {
        return folder().write("twice.evm",
                              "\n\n\n" + std::string(60, ' ')
                                  + "   2       1\n"
                                    "  7  0.100  100.000 5.00000E-01    4.000"
                                    "  7  0.200  100.000-5.00000E-01    8.000\n");
    }
};

} // namespace

TEST_F(CheckCommand, isSilentAboutAGoodFile)
{
    const auto result = runBatch({"check", writeEvm()});
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(result.err, "");
    EXPECT_EQ(result.status, 0);
}

TEST_F(CheckCommand, printsEachFindingWithFileAndLine)
{
    const std::string path = writeDoubtful();
    const auto result = runBatch({"check", path, writeEvm()});
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.out, HasSubstr(path + ":5: "));
    EXPECT_EQ(result.err, "");
}

TEST_F(CheckCommand, goesOnBehindAMissingFile)
{
    const std::string path = writeDoubtful();
    const auto result = runBatch({"check", file("missing.evm"), path});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.err, "tarsil-batch: File not found: " + file("missing.evm") + "\n");
    EXPECT_THAT(result.out, HasSubstr(path + ":5: "));
}

TEST_F(CheckCommand, failsForAMissingFileAlone)
{
    EXPECT_EQ(runBatch({"check", file("missing.evm"), writeEvm()}).status, 1);
}
