// SPDX-License-Identifier: Apache-2.0
#include "batch/BatchFixture.h"

#include <gmock/gmock.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace tarsil;
using test::fileBytes;
using test::runBatch;
using ::testing::AllOf;
using ::testing::HasSubstr;
using namespace Qt::StringLiterals;

namespace {

class TrackCommand : public test::BatchFixture
{
protected:
    /// Two roots of 100 and 109 rad/s at 100 KEAS that cross between 120 and 130 KEAS, printed by
    /// frequency.
    std::string writeCrossingRoots() const
    {
        const char* const rows[2][5] = {{"100|-1", "102|-1", "104|-1", "103|-2", "101|-2"},
                                        {"109|-2", "107|-2", "105|-2", "106|-1", "108|-1"}};
        std::string text = "[PROCESSING DATA INFO]\nProgram_version=1\n\n[MODEL DATA INFO]\n"
                           "Airplane=WING\nNo_of_modif=1\nModif(1)=first\n\n"
                           "[RESULT DATA SUMMARY]\n-\n-\n-\n-\n";
        for (int mode = 0; mode < 2; ++mode) {
            for (int point = 0; point < 5; ++point)
                text += std::to_string(mode + 3) + "|" + std::to_string(point + 1) + "|"
                    + rows[mode][point] + "|0.5|" + std::to_string(100 + 10 * point)
                    + "|-0.01|16|0.3|1|\n";
        }
        return folder().write("roots.ev2", text);
    }
};

} // namespace

TEST_F(TrackCommand, writesAnEvolutionThatFollowsTheRoots)
{
    const auto result = runBatch({"track", writeCrossingRoots()});
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_THAT(result.out, HasSubstr("roots_tracked.ev2"));
    const std::string text = fileBytes(file("roots_tracked.ev2"));
    EXPECT_THAT(
        text,
        AllOf(HasSubstr("No_of_modif=2\nModif(1)=first\n"
                        "Modif(2)=modes 3 and 4 exchanged above 120.00 KEAS (by tracking)\n"),
              HasSubstr("3|3|104|-1|0.5|120|-0.01|16|0.3|1|\n"
                        "3|4|106|-1|0.5|130|-0.01|16|0.3|1|\n"),
              HasSubstr("4|4|103|-2|0.5|130|-0.01|16|0.3|1|\n")));
    EXPECT_EQ(runBatch({"check", file("roots_tracked.ev2")}).out,
              runBatch({"check", file("roots.ev2")}).out)
        << "nothing becomes doubtful by tracking";
}

TEST_F(TrackCommand, printsMovesAsJsonAndWritesNothing)
{
    const auto result = runBatch({"track", "--json", writeCrossingRoots()});
    EXPECT_EQ(result.status, 0) << result.err;
    const QJsonObject json =
        QJsonDocument::fromJson(QByteArray::fromStdString(result.out)).object();
    ASSERT_EQ(json["moves"_L1].toArray().size(), 2);
    const QJsonObject move = json["moves"_L1][0].toObject();
    EXPECT_EQ(move["point_to"_L1].toInt(), 4);
    EXPECT_EQ(move["track"_L1].toInt(), 3);
    EXPECT_EQ(move["from_mode"_L1].toInt(), 3);
    EXPECT_EQ(move["to_mode"_L1].toInt(), 4);
    EXPECT_EQ(fileCount(), 1U);
}

TEST_F(TrackCommand, exchangesModesByHand)
{
    const auto result = runBatch(
        {"track", "--swap", "3,4@120", "--output", file("back.ev2"), writeCrossingRoots()});
    EXPECT_EQ(result.status, 0) << result.err;
    const std::string text = fileBytes(file("back.ev2"));
    EXPECT_THAT(text,
                AllOf(HasSubstr("Modif(3)=modes 3 and 4 exchanged above 120.00 KEAS (by hand)"),
                      HasSubstr("3|4|103|-2|0.5|130|-0.01|16|0.3|1|\n")));
}

TEST_F(TrackCommand, refusesWhatItCannotDo)
{
    const std::string path = writeCrossingRoots();
    EXPECT_EQ(runBatch({"track", "--swap", "3", path}).status, 2);
    EXPECT_EQ(runBatch({"track", "--swap", "3,x@5", path}).status, 2);
    EXPECT_THAT(runBatch({"track", "--swap", "3,4@1e300", path}).err,
                HasSubstr("--swap: \"3,4@1e300\" is not two mode numbers and a speed"));
    EXPECT_THAT(runBatch({"track", "--swap", "3,9@100", path}).err,
                HasSubstr("there is no mode 9"));
    EXPECT_THAT(runBatch({"track", "--swap", "3,3@100", path}).err, HasSubstr("with itself"));
    EXPECT_THAT(runBatch({"track", "--swap", "3,4@900", path}).err,
                HasSubstr("no point is above 900.00 KEAS"));
    EXPECT_THAT(runBatch({"track", writeEvm()}).err, HasSubstr("not an evolution with sections"));
    EXPECT_THAT(runBatch({"track", "--output", path, path}).err,
                HasSubstr("is one of the files to read"));
    EXPECT_EQ(fileCount(), 2U) << "nothing is written";
}

TEST_F(TrackCommand, saysWhyModesOfUnequalLengthCannotBeTracked)
{
    EXPECT_THAT(runBatch({"track", writeEv2()}).err,
                HasSubstr("its modes have unequal numbers of points"));
}
