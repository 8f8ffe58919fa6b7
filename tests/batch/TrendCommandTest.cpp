// SPDX-License-Identifier: Apache-2.0
#include "batch/BatchFixture.h"

#include <gmock/gmock.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace tarsil;
using test::fileBytes;
using test::runBatch;
using ::testing::HasSubstr;
using namespace Qt::StringLiterals;

namespace {

class TrendCommand : public test::BatchFixture
{ };

} // namespace

TEST_F(TrendCommand, writesAPictureInEachFormat)
{
    for (const char* const name : {"out.png", "out.svg", "out.pdf", "out.emf"}) {
        const auto result =
            runBatch({"trend", "--against", "file", "--output", file(name), writeEv2()});
        EXPECT_EQ(result.status, 0) << result.err;
        EXPECT_GT(fileBytes(file(name)).size(), 500U) << name;
    }
    EXPECT_THAT(test::svgTexts(file("out.svg")), HasSubstr("wing.ev2|"));
}

TEST_F(TrendCommand, writesATable)
{
    const auto result =
        runBatch({"trend", "--levels", "0", "--output", file("out.csv"), writeEv2(), writeEvm()});
    EXPECT_EQ(result.status, 0) << result.err;
    const std::string text = fileBytes(file("out.csv"));
    EXPECT_THAT(text, HasSubstr(",start,250,9,flutter,5,B,,,,\r\n"))
        << "mode 5 crosses 0 half-way from 200 to 300";
    EXPECT_THAT(text, HasSubstr("old.evm,")) << "without Mach number, in the table only";
    EXPECT_THAT(text, HasSubstr(",start,150,6,flutter,7,B,,,,it has no Mach number\r\n"));
}

TEST_F(TrendCommand, writesJsonWithTheRequiredSpeed)
{
    const std::string aircraft =
        folder().write("wing.inp", "[FLUTTER ENVELOPE]\n0.78=100|200|150\n");
    const auto result = runBatch({"trend", "--aircraft", aircraft, "--require=1.5", "--levels", "0",
                                  "--output", file("out.json"), writeEv2()});
    EXPECT_EQ(result.status, 0) << result.err << "a trend judges nothing";
    const QJsonObject json =
        QJsonDocument::fromJson(QByteArray::fromStdString(fileBytes(file("out.json")))).object();
    EXPECT_EQ(json["against"_L1].toString(), "mach"_L1);
    const QJsonObject point = json["points"_L1][0].toObject();
    EXPECT_EQ(point["finding"_L1].toString(), "start"_L1);
    EXPECT_EQ(point["speed"_L1].toDouble(), 250);
    EXPECT_TRUE(point["from_speed"_L1].isNull());
    EXPECT_EQ(point["required_speed"_L1].toDouble(), 300);
    EXPECT_EQ(point["abscissa"_L1].toDouble(), 0.78);
    EXPECT_EQ(point["modes"_L1].toArray(), QJsonArray {5});
}

TEST_F(TrendCommand, refusesWhatItDoesNotKnow)
{
    const std::string path = writeEv2();
    const auto status = [&](std::vector<std::string> options) {
        options.insert(options.begin(), "trend");
        options.push_back(path);
        return runBatch(options).status;
    };
    EXPECT_EQ(status({"--against", "weight", "--output", file("o.png")}), 2);
    EXPECT_EQ(status({"--levels", "0,high", "--output", file("o.png")}), 2);
    EXPECT_EQ(status({"--size", "0x0", "--output", file("o.png")}), 2);
    EXPECT_EQ(status({"--require", "--output", file("o.png")}), 2);
    EXPECT_EQ(status({"--output", file("o.gif")}), 2);
    EXPECT_EQ(status({"--output", path}), 2);
    EXPECT_EQ(fileCount(), 1U) << "nothing is written";
}
