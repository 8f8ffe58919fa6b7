// SPDX-License-Identifier: Apache-2.0
#include "FormatFixtures.h"

#include "formats/EvolutionLoader.h"
#include "formats/FormatTable.h"
#include "support/TestFiles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace tarsil {

namespace {

using test::projectFile;
using ::testing::HasSubstr;

std::string formatNameOf(std::string_view fileName)
{
    const EvolutionFormat* const format = findFormat(fileName);
    return format == nullptr ? "none" : std::string(format->name);
}

TEST(FormatTable, findsTheFirstFormatWhoseExtensionIsInTheName)
{
    EXPECT_EQ(formatNameOf("wing.evm"), "evm");
    EXPECT_EQ(formatNameOf("wing.ev2"), "ev2");
    EXPECT_EQ(formatNameOf("wing.evm.bak"), "evm");
    EXPECT_EQ(formatNameOf("wing.ev2.evm"), "evm");
    EXPECT_EQ(formatNameOf("wing.evm.ev2"), "evm");
}

TEST(FormatTable, findsNoneForAnotherName)
{
    for (const char* name : {"", "evm", "wing.EVM", "wing.txt", "wing.mix"})
        EXPECT_EQ(formatNameOf(name), "none") << name;
}

TEST(FormatTable, refusesANameWithoutAFormat)
{
    const auto error = test::errorOf([] { formatOf("wing.txt"); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->number(), ErrorNumber::InvalidProcedureCall);
    EXPECT_THAT(error->description(),
                HasSubstr("the name \"wing.txt\" contains neither \".evm\" nor \".ev2\""));
}

TEST(FormatTable, makesTheFilterOfTheDialogThatOpensEvolutions)
{
    EXPECT_EQ(mdlMain::evolutionFilter(),
              "Modal Evolution Files (*.evm)|*.evm|New Modal Evolution Files (*.ev2)|*.ev2|"
              "All Files (*.*)|*.*|");
}

TEST(FormatTable, listsItsExtensionsForASentence)
{
    EXPECT_EQ(formatExtensions("or"), ".evm or .ev2");
}

// A new format must be added to each of these files, which no compiler checks.

TEST(FormatTable, isDocumented)
{
    for (const EvolutionFormat* format : evolutionFormats()) {
        const std::string extension(format->extension);
        EXPECT_THAT(projectFile("docs/formats.md"), HasSubstr("(`" + extension + "`)\n"));
        EXPECT_THAT(projectFile("docs/guide.md"), HasSubstr("`" + extension + "`"));
        EXPECT_THAT(projectFile("packaging/tarsil.1"), HasSubstr(".It Pa *" + extension + "\n"));
        EXPECT_THAT(projectFile("packaging/tarsil-batch.1"), HasSubstr(" Pa " + extension + " "));
    }
}

TEST(FormatTable, isKnownToTheDesktop)
{
    for (const EvolutionFormat* format : evolutionFormats())
        EXPECT_THAT(projectFile("packaging/tarsil-mime.xml"),
                    HasSubstr("<glob pattern=\"*" + std::string(format->extension) + "\"/>"));
}

TEST(FormatTable, hasAFuzzTargetForEachReader)
{
    for (const EvolutionFormat* format : evolutionFormats())
        EXPECT_THAT(projectFile("fuzz/CMakeLists.txt"),
                    HasSubstr("\ntarsil_fuzz(" + std::string(format->name) + " "));
}

} // namespace

} // namespace tarsil
