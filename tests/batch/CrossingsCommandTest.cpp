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

class CrossingsCommand : public test::BatchFixture
{ };

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
    EXPECT_THAT(text, HasSubstr("\"250.00 KEAS, 9.00 Hz, flutter, mode 5 (B)\""));
    EXPECT_THAT(text, HasSubstr("wing.ev2,3,0,350,5,flutter,B,,,1,400,up to the last speed"));
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

TEST_F(CrossingsCommand, saysWhyAnEvolutionCannotBeTracked)
{
    const auto result =
        runBatch({"crossings", "--tracked", "--output", file("out.json"), writeEvm()});
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.err, HasSubstr("cannot be tracked: its points have no eigenvalues"));
    EXPECT_EQ(fileCount(), 1U);
}
