// SPDX-License-Identifier: Apache-2.0
#include "batch/BatchFixture.h"

#include <gmock/gmock.h>

using namespace tarsil;
using test::fileBytes;
using test::runBatch;
using ::testing::HasSubstr;

namespace {

class MixCommand : public test::BatchFixture
{
protected:
    /// The first columns of the point fields, which contain the mode numbers.
    static std::string modeNumbers(const std::string& path)
    {
        const std::string text = fileBytes(path);
        std::string numbers;
        for (const char mode : {'3', '5', '7'}) {
            const std::string start = std::string("  ") + mode + "  0.";
            for (auto at = text.find(start); at != std::string::npos; at = text.find(start, at + 1))
                numbers += mode;
        }
        return numbers;
    }
};

} // namespace

TEST_F(MixCommand, gathersModesInTheOrderGiven)
{
    const auto result =
        runBatch({"mix", "--output", file("out.mix"), writeEvm() + ":1", writeEv2() + ":1"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.out + result.err, "");
    EXPECT_EQ(modeNumbers(file("out.mix")), "3377");
    const std::string text = fileBytes(file("out.mix"));
    EXPECT_LT(text.find("  7  0.100"), text.find("  3  0.000"));
}

TEST_F(MixCommand, warnsOfDifferentNumbersOfPoints)
{
    const auto result = runBatch({"mix", "--output", file("out.mix"), writeEv2()});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.err,
              "tarsil-batch: warning: the modes have from 2 to 3 points, and the output declares 3 "
              "for all of them\n");
    EXPECT_EQ(modeNumbers(file("out.mix")), "33555");
}

TEST_F(MixCommand, acceptsAFileWithAColonInItsName)
{
    const std::string colon = writeEvm("a:1.evm");
    EXPECT_EQ(runBatch({"mix", "--output", file("out.mix"), colon}).status, 0);
    EXPECT_EQ(runBatch({"mix", "--output", file("out.mx2"), colon + ":1"}).status, 0);
    EXPECT_EQ(modeNumbers(file("out.mx2")), "77");
    // The name is used as given, although "1" after the colon could be a list.
    writeEvm("b.evm");
    const std::string listLike = writeEv2("b.ev2:1");
    EXPECT_EQ(runBatch({"mix", "--output", file("out.mix"), listLike}).status, 0);
    EXPECT_EQ(modeNumbers(file("out.mix")), "33555");
}

TEST_F(MixCommand, treatsAColonInAPathAsNoList)
{
    const auto result = runBatch({"mix", "--output", file("out.mix"), "C:\\wing.ev2"});
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.err, HasSubstr("C:\\wing.ev2"));
}

TEST_F(MixCommand, namesAMissingFileWithAColonInItsName)
{
    const auto result = runBatch({"mix", "--output", file("out.mix"), "a:wing.ev2"});
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.err, HasSubstr("File not found: "));
    EXPECT_THAT(result.err, HasSubstr("a:wing.ev2"));
}

TEST_F(MixCommand, refusesABadListAsWrongUsage)
{
    const auto result = runBatch({"mix", "--output", file("out.mix"), writeEv2() + ":1-x"});
    EXPECT_EQ(result.status, 2);
    EXPECT_THAT(result.err, HasSubstr("\"1-x\" is not a list of modes"));
}

TEST_F(MixCommand, namesAPositionThatIsNotThere)
{
    const auto result = runBatch({"mix", "--output", file("out.mix"), writeEv2() + ":7"});
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.err, HasSubstr("no mode at position 7"));
    EXPECT_EQ(fileCount(), 1U);
}

TEST_F(MixCommand, doesNotWriteOverAnInput)
{
    const std::string path = writeEvm("old.evm.mix");
    const auto result = runBatch({"mix", "--output", path, path + ":1"});
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.err, HasSubstr("is one of the files to read"));
}
