// SPDX-License-Identifier: Apache-2.0
#include "batch/BatchFixture.h"

#include <gmock/gmock.h>

using namespace tarsil;
using test::runBatch;
using ::testing::HasSubstr;

namespace {

class CheckCommand : public test::BatchFixture
{
protected:
    /// Writes two points of equal speed.
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

TEST_F(CheckCommand, continuesAfterAMissingFile)
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

TEST_F(CheckCommand, printsEachFindingInOneLineWhateverTheNames)
{
    const std::string path =
        folder().write("a\nb.evm:5: x\x1B[31m.evm", "\n\n\n" + std::string(80, ' ') + "\n");
    const auto result = runBatch({"check", path, file("no\nfile.evm")});
    EXPECT_EQ(result.status, 1);
    for (const std::string& text : {result.out, result.err}) {
        EXPECT_THAT(text, ::testing::Not(HasSubstr("\x1B")));
        EXPECT_THAT(text, ::testing::Not(HasSubstr("\nb.evm")));
        EXPECT_THAT(text, ::testing::Not(HasSubstr("\nfile.evm")));
    }
    EXPECT_THAT(result.out, HasSubstr("a?b.evm:5: x?[31m.evm:4: columns 61-64"));
    EXPECT_THAT(result.err, HasSubstr("no?file.evm"));
}

TEST_F(CheckCommand, namesALastRowThatIsCut)
{
    // Read without an error: the last frequency becomes 1 Hz instead of 14, and all factors vanish.
    std::string text = test::fileBytes(writeEv2());
    text.resize(text.rfind("|14|") + 2);
    const std::string path = folder().write("cut.ev2", text);
    const auto result = runBatch({"check", path});
    EXPECT_EQ(result.status, 1);
    for (const char* finding :
         {": the file ends in this row without an end of line: its last field, \"1\", may be cut",
          ": 8 fields, but the first row has 21",
          ": from here on no row has participation factors"})
        EXPECT_THAT(result.out, HasSubstr(path + ":30" + finding));
}
