// SPDX-License-Identifier: Apache-2.0
#include "batch/BatchFixture.h"

#include <gmock/gmock.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <string>
#include <utility>
#include <vector>

using namespace tarsil;
using test::fileBytes;
using test::runBatch;
using ::testing::AllOf;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::StartsWith;
using namespace Qt::StringLiterals;

namespace {

class CrossingsCommand : public test::BatchFixture
{
protected:
    /// Runs the command with these options on one evolution.
    test::BatchResult crossings(std::vector<std::string> options) const
    {
        options.insert(options.begin(), "crossings");
        options.insert(options.end(), {"--output", file("out.csv"), writeEv2()});
        return runBatch(options);
    }
};

} // namespace

TEST_F(CrossingsCommand, writesStretchesAsJson)
{
    const auto result =
        runBatch({"crossings", "--levels", "0,0.5", "--output", file("out.json"), writeEv2()});
    EXPECT_EQ(result.status, 0) << result.err;
    const QJsonObject json =
        QJsonDocument::fromJson(QByteArray::fromStdString(fileBytes(file("out.json")))).object();
    const QJsonObject evolution = json["evolutions"_L1][0].toObject();
    EXPECT_EQ(evolution["name"_L1].toString(), "wing.ev2"_L1);
    // Mode 3 goes from -1 at 300 to 1 at 400; mode 5 is above the level between 200 and 400.
    const QJsonArray stretches = evolution["stretches"_L1].toArray();
    ASSERT_EQ(stretches.size(), 4);
    const QJsonObject first = stretches[0].toObject();
    EXPECT_EQ(first["mode"_L1].toInt(), 3);
    EXPECT_EQ(first["start"_L1]["speed"_L1].toDouble(), 350);
    EXPECT_EQ(first["start"_L1]["kind"_L1].toString(), "flutter"_L1);
    EXPECT_TRUE(first["end"_L1].isNull());
    EXPECT_FALSE(first["hump"_L1].toBool());
    const QJsonObject hump = stretches[1].toObject();
    EXPECT_EQ(hump["start"_L1]["speed"_L1].toDouble(), 250);
    EXPECT_EQ(hump["end"_L1]["speed"_L1].toDouble(), 350);
    EXPECT_TRUE(hump["hump"_L1].toBool());
    EXPECT_EQ(stretches[2].toObject()["start"_L1]["speed"_L1].toDouble(), 375);
}

TEST_F(CrossingsCommand, writesATable)
{
    const auto result =
        runBatch({"crossings", "--levels", "0", "--output", file("out.csv"), writeEv2()});
    EXPECT_EQ(result.status, 0) << result.err;
    const std::string text = fileBytes(file("out.csv"));
    EXPECT_THAT(text, HasSubstr(" KEAS, 9.00 Hz, flutter, mode 5 (B)\""));
    EXPECT_THAT(text, HasSubstr("wing.ev2,0,3,becomes unstable,flutter,350,0,5,B,"));
}

TEST_F(CrossingsCommand, tracesTheNumbersToTheirSource)
{
    const std::string path = folder().write("none.ev2", fileBytes(writeEv2()));
    ASSERT_EQ(runBatch({"crossings", "--output", file("out.json"), path}).status, 0);
    const QJsonObject json =
        QJsonDocument::fromJson(QByteArray::fromStdString(fileBytes(file("out.json")))).object();
    EXPECT_TRUE(json["program"_L1].toString().startsWith("tarsil-batch "_L1));
    const QJsonObject source = json["sources"_L1][0].toObject();
    EXPECT_EQ(source["size"_L1].toInt(), static_cast<int>(fileBytes(path).size()));
    EXPECT_EQ(source["sha256"_L1].toString().size(), 64);
    EXPECT_EQ(json["settings"_L1]["levels"_L1].toArray().size(), 4);
    const QJsonObject evolution = json["evolutions"_L1][0].toObject();
    EXPECT_THAT(evolution["verdicts"_L1][0]["text"_L1].toString().toStdString(),
                AllOf(StartsWith("250.00 +- "), EndsWith(" KEAS, 9.00 Hz, flutter, mode 5 (B)")));
    const QJsonObject start = evolution["stretches"_L1][0]["start"_L1].toObject();
    EXPECT_NEAR(start["mach"_L1].toDouble(), 0.78, 1e-6);
    EXPECT_EQ(start["altitude_from"_L1].toString(), "mach"_L1);
    // The first factors are 40 and 60 at the two points.
    EXPECT_EQ(start["largest_factor"_L1]["number"_L1].toInt(), 1);
    EXPECT_EQ(start["largest_factor"_L1]["value"_L1].toDouble(), 50);
}

TEST_F(CrossingsCommand, endsWithStatusOneWhereAMarginIsMissing)
{
    const std::string aircraft =
        folder().write("wing.inp", "[FLUTTER ENVELOPE]\n0.78=100|200|150\n");
    const auto require = [&](const std::string& option) {
        return runBatch({"crossings", option, "--aircraft", aircraft, "--require-level", "0",
                         "--output", file("out.csv"), writeEv2()});
    };
    EXPECT_EQ(require("--require").status, 0) << "250 KEAS is above 1.15 x 200";
    EXPECT_THAT(fileBytes(file("out.csv")),
                HasSubstr("pass: 20 KEAS above 1.15 x 200 = 230 KEAS at g = 0"));
    const auto result = require("--require=1.5");
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.err, HasSubstr("wing.ev2: fail: 50 KEAS below 1.5 x 200 = 300 KEAS"));
    EXPECT_THAT(fileBytes(file("out.csv")), HasSubstr("fail: 50 KEAS below"));
}

TEST_F(CrossingsCommand, refusesARequirementWithoutItsParts)
{
    const std::string aircraft = folder().write("wing.inp", "");
    const auto status = [&](std::vector<std::string> options) {
        return crossings(std::move(options)).status;
    };
    EXPECT_EQ(status({"--require"}), 2);
    EXPECT_EQ(status({"--aircraft", aircraft}), 2);
    EXPECT_EQ(status({"--require=0", "--aircraft", aircraft}), 2);
    EXPECT_EQ(status({"--require=much", "--aircraft", aircraft}), 2);
    EXPECT_EQ(status({"--require", "--aircraft", file("none.inp")}), 1);
    EXPECT_EQ(status({"--require", "--aircraft", aircraft}), 1) << "no envelope is no pass";
}

TEST_F(CrossingsCommand, refusesWordsForNumbersAndOtherOutputs)
{
    const std::string path = writeEv2();
    EXPECT_EQ(
        runBatch({"crossings", "--levels", "0,high", "--output", file("o.json"), path}).status, 2);
    EXPECT_EQ(runBatch({"crossings", "--tolerance", "-1", "--output", file("o.json"), path}).status,
              2);
    EXPECT_EQ(runBatch({"crossings", "--output", file("o.txt"), path}).status, 2);
    EXPECT_EQ(runBatch({"crossings", path}).status, 2);
    EXPECT_EQ(fileCount(), 1U);
}

TEST_F(CrossingsCommand, namesTheTextThatIsWrong)
{
    const std::string aircraft = folder().write("wing.inp", "[FLUTTER ENVELOPE]\n0.78=1|2|1\n");
    EXPECT_THAT(crossings({"--tolerance", "-1"}).err,
                HasSubstr("--tolerance: \"-1\" is not a number of at least 0"));
    EXPECT_THAT(crossings({"--require=-2", "--aircraft", aircraft}).err,
                HasSubstr("--require: \"-2\" is not a factor greater than 0"));
}

TEST_F(CrossingsCommand, keepsItsAircraftFile)
{
    const std::string text = "[FLUTTER ENVELOPE]\n0.78=100|200|150\n";
    const std::string aircraft = folder().write("wing.csv", text);
    const auto result = runBatch(
        {"crossings", "--require", "--aircraft", aircraft, "--output", aircraft, writeEv2()});
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.err, HasSubstr("wing.csv is one of the files to read"));
    EXPECT_EQ(fileBytes(aircraft), text);
}

TEST_F(CrossingsCommand, saysWhyAnEvolutionCannotBeTracked)
{
    const std::string path = folder().write("two.evm",
                                            "\n\n\n" + std::string(60, ' ') + "   1       2\n"
                                                + "  7  0.100  100.000 5.00000E-01    4.000"
                                                  "  8  0.200  100.000 5.00000E-01    8.000\n");
    const auto result = runBatch({"crossings", "--tracked", "--output", file("out.json"), path});
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.err, HasSubstr("cannot be tracked: its points have no eigenvalues"));
    EXPECT_EQ(fileCount(), 1U);
}
