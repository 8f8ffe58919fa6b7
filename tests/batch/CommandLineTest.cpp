// SPDX-License-Identifier: Apache-2.0
#include "batch/CommandLine.h"

#include "batch/BatchFixture.h"

#include <gmock/gmock.h>

#include <array>

using namespace tarsil::batch;
using tarsil::test::runBatch;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::StartsWith;

namespace {

constexpr std::array<OptionDescription, 3> options = {{{"--flag", "", "a flag"},
                                                       {"--number", "N", "a number\nof two lines"},
                                                       {"--many", "TEXT", "many", false, true}}};

constexpr CommandDescription command {"try", "FILE...", 2, "tries", "Tries.", options};

CommandLine parse(const std::vector<std::string>& arguments)
{
    return {command, arguments};
}

std::string usageErrorOf(const std::vector<std::string>& arguments)
{
    try {
        parse(arguments);
    } catch (const UsageError& error) {
        return error.what();
    }
    return "no error";
}

} // namespace

TEST(Arguments, haveValuesAfterABlankOrAnEqualSign)
{
    EXPECT_EQ(parse({"--number", "1", "f"}).value("--number"), "1");
    EXPECT_EQ(parse({"--number=a=b", "f"}).value("--number"), "a=b");
    EXPECT_EQ(parse({"--number=", "f"}).value("--number"), "");
    EXPECT_FALSE(parse({"f"}).has("--number"));
}

TEST(Arguments, mayGoWithoutAValueThatIsOptional)
{
    static constexpr std::array<OptionDescription, 1> choice = {
        {{"--choice", "N", "a number", false, false, true}}};
    static constexpr CommandDescription chooser {"try", "FILE...", 2, "tries", "Tries.", choice};
    const auto line = [](const std::vector<std::string>& arguments) {
        return CommandLine(chooser, arguments);
    };
    EXPECT_EQ(line({"--choice", "f"}).value("--choice"), "");
    EXPECT_THAT(line({"--choice", "f"}).operands(), ElementsAre("f"));
    EXPECT_EQ(line({"--choice=2", "f"}).value("--choice"), "2");
    EXPECT_FALSE(takesNextArgument(chooser, "--choice"));
    EXPECT_THAT(helpText(chooser), HasSubstr("[--choice[=N]]"));
}

TEST(Arguments, takeANegativeNumberAsAValue)
{
    EXPECT_EQ(parse({"--number", "-0.02", "f"}).number("--number"), -0.02);
    EXPECT_EQ(parse({"--number=-0.02", "f"}).number("--number"), -0.02);
}

TEST(Arguments, mayBeInAnyOrder)
{
    const CommandLine line = parse({"a", "--many", "1", "b", "--many=2", "--flag"});
    EXPECT_THAT(line.operands(), ElementsAre("a", "b"));
    EXPECT_THAT(line.values("--many"), ElementsAre("1", "2"));
    EXPECT_TRUE(line.has("--flag"));
}

TEST(Arguments, areOperandsAfterTwoDashes)
{
    EXPECT_THAT(parse({"--", "--flag", "-x"}).operands(), ElementsAre("--flag", "-x"));
    EXPECT_THAT(parse({"-"}).operands(), ElementsAre("-"));
}

TEST(Arguments, refuseWhatTheCommandDoesNotKnow)
{
    EXPECT_EQ(usageErrorOf({"--other", "f"}), "unknown option --other");
    EXPECT_EQ(usageErrorOf({"-x", "f"}), "unknown option -x");
    EXPECT_EQ(usageErrorOf({"f", "--number"}), "--number needs a value");
    EXPECT_EQ(usageErrorOf({"--flag=1", "f"}), "--flag does not accept a value");
    EXPECT_EQ(usageErrorOf({"--flag", "--flag", "f"}), "--flag is given twice");
    EXPECT_EQ(usageErrorOf({}), "no file is given");
    EXPECT_EQ(usageErrorOf({"a", "b", "c"}), "too many files: \"c\"");
}

TEST(Arguments, refuseTextForANumber)
{
    EXPECT_THROW(parse({"--number", "fast", "f"}).number("--number"), UsageError);
    EXPECT_THROW(singlesOf("1,2", 3, "--scale"), UsageError);
    EXPECT_THROW(singlesOf("1,,3", 3, "--scale"), UsageError);
    EXPECT_THROW(singlesOf("1,2,1e99", 3, "--scale"), UsageError);
    EXPECT_THAT(singlesOf("1,-2.5,3e1", 3, "--scale"), ElementsAre(1.0F, -2.5F, 30.0F));
}

TEST(Arguments, areExplainedInTheHelpText)
{
    EXPECT_EQ(helpText(command),
              "Usage: tarsil-batch try [--flag] [--number N] [--many TEXT]... FILE...\n"
              "\n"
              "Tries.\n"
              "\n"
              "  --flag       a flag\n"
              "  --number N   a number\n"
              "               of two lines\n"
              "  --many TEXT  many\n"
              "  --help       prints this text\n");
}

TEST(Usage, isShownForTheProgramAndForEachCommand)
{
    EXPECT_EQ(runBatch({"--help"}).status, 0);
    for (const char* name : {"info", "check", "report", "picture", "convert", "mix"}) {
        EXPECT_THAT(runBatch({"--help"}).out, HasSubstr(std::string("\n  ") + name + " "));
        const auto result = runBatch({name, "--help"});
        EXPECT_EQ(result.status, 0) << name;
        EXPECT_THAT(result.out, StartsWith(std::string("Usage: tarsil-batch ") + name));
        EXPECT_EQ(result.err, "");
    }
}

TEST(Usage, knowsItsVersion)
{
    EXPECT_THAT(runBatch({"--version"}).out, ::testing::MatchesRegex("tarsil-batch [0-9.]+\n"));
}

TEST(Usage, isPointedToWhenItIsWrong)
{
    const auto nothing = runBatch({});
    EXPECT_EQ(nothing.status, 2);
    EXPECT_EQ(nothing.out, "");
    EXPECT_EQ(nothing.err,
              "tarsil-batch: no command is given\n"
              "tarsil-batch: \"tarsil-batch --help\" shows how to use it.\n");
    const auto unknown = runBatch({"draw", "x"});
    EXPECT_EQ(unknown.status, 2);
    EXPECT_THAT(unknown.err, HasSubstr("unknown command draw"));
    const auto option = runBatch({"info", "--xml", "x"});
    EXPECT_EQ(option.status, 2);
    EXPECT_THAT(option.err, HasSubstr("\"tarsil-batch info --help\""));
}
