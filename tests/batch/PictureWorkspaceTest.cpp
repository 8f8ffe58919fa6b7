// SPDX-License-Identifier: Apache-2.0
#include "batch/WorkspaceFixture.h"

#include <QImage>

#include <gmock/gmock.h>

#include <filesystem>

using namespace tarsil;
using test::fileBytes;
using test::runBatch;
using test::svgTexts;
using ::testing::HasSubstr;
using ::testing::Not;

namespace {

class PictureOfAWorkspace : public test::WorkspaceFixture
{
protected:
    test::BatchResult draw(const std::vector<std::string>& more) const
    {
        std::vector<std::string> all = {"picture", "--output", file("out.svg")};
        all.insert(all.end(), more.begin(), more.end());
        return runBatch(all);
    }

    bool exists(std::string_view name) const { return std::filesystem::exists(file(name)); }

    /// The texts of a picture, with a bar on either side of each.
    std::string texts(std::string_view name) const { return "|" + svgTexts(file(name)); }
};

} // namespace

TEST_F(PictureOfAWorkspace, isOneForEachPlot)
{
    const auto result = draw({write(record())});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.out + result.err, "");
    EXPECT_FALSE(exists("out.svg"));
    EXPECT_FALSE(exists("out-3.svg"));
    EXPECT_THAT(texts("out-1.svg"), HasSubstr("|header of Wing|"));
    EXPECT_THAT(texts("out-1.svg"), HasSubstr("|t|"));
    EXPECT_THAT(texts("out-1.svg"), HasSubstr("|o|"));
    EXPECT_THAT(texts("out-2.svg"), HasSubstr("|header of Store|"));
    EXPECT_THAT(texts("out-2.svg"), HasSubstr("|b|"));
    EXPECT_THAT(texts("out-2.svg"), Not(HasSubstr("|t|")));
}

TEST_F(PictureOfAWorkspace, leavesOutHiddenCurves)
{
    WorkspaceRecord record = WorkspaceFixture::record();
    const auto picture = [&](const char* name) {
        const std::string path = file(name);
        EXPECT_EQ(runBatch({"picture", "--plot=1", "--output", path, write(record)}).status, 0);
        return fileBytes(path);
    };
    record.plots[0].series[0].isHidden = true;
    const std::string svg = picture("hidden.svg");
    const std::string emf = picture("hidden.emf");
    EXPECT_THAT(svg, Not(HasSubstr("#0000ff")));
    EXPECT_THAT(texts("hidden.svg"), Not(HasSubstr("|t|")));
    EXPECT_THAT(texts("hidden.svg"), HasSubstr("|o|"));
    record.plots[0].series.erase(record.plots[0].series.begin());
    EXPECT_EQ(picture("without.svg"), svg);
    EXPECT_EQ(picture("without.emf"), emf);
}

TEST_F(PictureOfAWorkspace, keepsItsNameForASinglePlot)
{
    EXPECT_EQ(draw({"--plot", "Store", write(record())}).status, 0);
    EXPECT_THAT(texts("out.svg"), HasSubstr("|header of Store|"));
    WorkspaceRecord record = WorkspaceFixture::record();
    record.plots.resize(1);
    EXPECT_EQ(draw({write(record)}).status, 0);
    EXPECT_THAT(texts("out.svg"), HasSubstr("|header of Wing|"));
    EXPECT_FALSE(exists("out-1.svg"));
}

TEST_F(PictureOfAWorkspace, isNumberedBeforeItsLastExtension)
{
    const std::string path = write(record());
    EXPECT_EQ(runBatch({"picture", "--output", file("a.b.PNG"), path}).status, 0);
    EXPECT_TRUE(exists("a.b-1.PNG"));
    EXPECT_TRUE(exists("a.b-2.PNG"));
    EXPECT_EQ(runBatch({"picture", "--output", file(".emf"), path}).status, 0);
    EXPECT_EQ(fileBytes(file("-2.emf")).substr(40, 4), " EMF");
}

TEST_F(PictureOfAWorkspace, goesToAFolderUnderItsCaption)
{
    const std::string folder = file("pictures");
    std::filesystem::create_directory(folder);
    WorkspaceRecord record = WorkspaceFixture::record();
    record.plots[1].caption = "a/b";
    const std::string path = write(record);
    const auto result = runBatch({"picture", "--all", "--output", folder, path});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.out + result.err, "");
    EXPECT_THAT(texts("pictures/Wing.svg"), HasSubstr("|header of Wing|"));
    EXPECT_THAT(texts("pictures/a_b.svg"), HasSubstr("|header of Store|"));
    EXPECT_EQ(
        runBatch({"picture", "--all", "--format", "emf", "--plot", "2", "--output", folder, path})
            .status,
        0);
    EXPECT_EQ(fileBytes(file("pictures/a_b.emf")).substr(40, 4), " EMF");
    EXPECT_FALSE(exists("pictures/Wing.emf"));
}

TEST_F(PictureOfAWorkspace, goesToAFolderWithAllOthersOrNotAtAll)
{
    const std::string folder = file("pictures");
    const std::string path = write(record());
    const auto missing = runBatch({"picture", "--all", "--output", folder, path});
    EXPECT_EQ(missing.status, 1);
    EXPECT_THAT(missing.err, HasSubstr("Path not found"));
    std::filesystem::create_directory(folder);
    WorkspaceRecord record = WorkspaceFixture::record();
    record.plots[1].axes.speed.ticks = 0;
    const auto result = runBatch({"picture", "--all", "--output", folder, write(record)});
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.err, HasSubstr("plot \"Store\""));
    EXPECT_TRUE(std::filesystem::is_empty(folder));
}

TEST_F(PictureOfAWorkspace, goesToAFolderOnlyOnRequest)
{
    const std::string path = write(record());
    const std::vector<std::vector<std::string>> wrong = {
        {"--all", "--format", "bmp", "--output", file("x"), path},
        {"--format", "svg", "--output", file("x.svg"), path},
        {"--all", "--output", file("x"), wing},
        {"--output", file("x"), path}};
    for (const auto& more : wrong) {
        std::vector<std::string> all = {"picture"};
        all.insert(all.end(), more.begin(), more.end());
        EXPECT_EQ(runBatch(all).status, 2) << ::testing::PrintToString(more);
    }
}

TEST_F(PictureOfAWorkspace, hasTheAxesAndColoursOfThePlot)
{
    EXPECT_EQ(draw({write(record())}).status, 0);
    // Ticks at every 50 knots, 5 Hz and 0.5.
    for (const char* text : {"|400|", "|15.0|", "|-1.50|", "|V(keas)|"})
        EXPECT_THAT(texts("out-1.svg"), HasSubstr(text));
    EXPECT_THAT(fileBytes(file("out-1.svg")), HasSubstr("#0000ff"));
    EXPECT_THAT(fileBytes(file("out-2.svg")), Not(HasSubstr("#0000ff")));
}

TEST_F(PictureOfAWorkspace, putsTheTextsWhereTheyStood)
{
    WorkspaceRecord record = WorkspaceFixture::record();
    record.plots.resize(1);
    record.plots[0].legend.rtf = test::rtfOf("XX");
    record.plots[0].mechanism.rtf = test::rtfOf("YY");
    record.plots[0].mechanism.position = {600 * 15, 400 * 15}; // 15 units are a pixel
    EXPECT_EQ(runBatch({"picture", "--output", file("a.png"), write(record)}).status, 0);
    record.plots[0].mechanism.rtf.reset();
    EXPECT_EQ(runBatch({"picture", "--output", file("b.png"), write(record)}).status, 0);
    const QImage with = QImage(QString::fromStdString(file("a.png"))).copy(600, 400, 40, 30);
    const QImage without = QImage(QString::fromStdString(file("b.png"))).copy(600, 400, 40, 30);
    EXPECT_FALSE(with.isNull());
    EXPECT_NE(with, without);
}

TEST_F(PictureOfAWorkspace, usesTextsScaleAndSizeOfTheCommandLine)
{
    const auto result =
        draw({"--plot=1", "--header", "mine", "--legend", "l", "--subtitle", "s", "--size",
              "800x600", "--scale", "0,1000,0,30,0,-1", "--ticks", "2,2,3", "--reference-speed",
              "350=VD", "--damping-line", "-0.5=half", write(record())});
    EXPECT_EQ(result.status, 0) << result.err;
    for (const char* text :
         {"|mine|", "|l|", "|s|", "|500|", "|20.0|", "|-0.50|", "|VD|", "|half|"})
        EXPECT_THAT(texts("out.svg"), HasSubstr(text));
    EXPECT_THAT(texts("out.svg"), Not(HasSubstr("header of Wing")));
    EXPECT_THAT(texts("out.svg"), Not(HasSubstr("|400|")));
    EXPECT_THAT(fileBytes(file("out.svg")), HasSubstr("viewBox=\"0 0 800 600\""));
}

TEST_F(PictureOfAWorkspace, hasTheReferencesAndLinesThatWereSaved)
{
    WorkspaceRecord record = WorkspaceFixture::record();
    const auto picture = [&] {
        EXPECT_EQ(draw({"--plot=1", write(record)}).status, 0);
        return fileBytes(file("out.svg"));
    };
    const std::string plain = picture();
    record.plots[0].series[0].lineWidth = 5;
    EXPECT_NE(picture(), plain);
    record.plots[0].series[0].markerStyle = 3;
    record.plots[0].series[0].factor = 1;
    picture();
    // The first factor of a point of the evolution is ten times its frequency, 10 Hz.
    EXPECT_THAT(texts("out.svg"), HasSubstr("|100|"));
    record.plots[0].series[0].factor = 5;
    picture();
    EXPECT_THAT(texts("out.svg"), HasSubstr("|0.5|"));
    record.plots[0].referenceSpeeds = {{300, "VD"}};
    record.plots[0].dampingLines = {{-0.5F, "half"}};
    const auto result = draw(
        {"--plot=1", "--reference-speed", "200=VC", "--damping-line", "-1=one", write(record)});
    EXPECT_EQ(result.status, 0) << result.err;
    for (const char* text : {"|VD|", "|half|", "|VC|", "|one|"})
        EXPECT_THAT(texts("out.svg"), HasSubstr(text));
}

TEST_F(PictureOfAWorkspace, keepsASavedLineAtDampingZeroOnAGivenScale)
{
    WorkspaceRecord record = WorkspaceFixture::record();
    record.plots[0].dampingLines = {{0, "g = 0"}};
    EXPECT_EQ(draw({"--plot=1", "--scale", "0,1000,0,30,1,-1", write(record)}).status, 0);
    EXPECT_THAT(texts("out.svg"), HasSubstr("|g = 0|"));
}

TEST_F(PictureOfAWorkspace, hasItsHeaderInTheRowThatWasSaved)
{
    WorkspaceRecord record = WorkspaceFixture::record();
    record.plots[0].header.position = {0, 15 * 40};
    EXPECT_EQ(draw({"--plot=1", write(record)}).status, 0);
    const std::string low = fileBytes(file("out.svg"));
    record.plots[0].header.position = {0, 60}; // that of a new plot
    EXPECT_EQ(draw({"--plot=1", write(record)}).status, 0);
    const std::string usual = fileBytes(file("out.svg"));
    EXPECT_NE(low, usual);
    record.plots[0].header.position.reset();
    EXPECT_EQ(draw({"--plot=1", write(record)}).status, 0);
    EXPECT_EQ(fileBytes(file("out.svg")), usual);
}

TEST_F(PictureOfAWorkspace, canTakeATextAway)
{
    EXPECT_EQ(draw({"--plot=1", "--header", "", write(record())}).status, 0);
    EXPECT_THAT(texts("out.svg"), Not(HasSubstr("header of Wing")));
}

TEST_F(PictureOfAWorkspace, leavesOutWhatIsMissing)
{
    std::filesystem::remove(old);
    WorkspaceRecord record = WorkspaceFixture::record();
    record.plots[1].series.insert(record.plots[1].series.begin(), {1, 9, "?", 8, 1, 2, "", 0, 0});
    const auto result = draw({write(record)});
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.err, HasSubstr("File not found: C:\\flutter\\old.evm"));
    EXPECT_THAT(result.err, HasSubstr("wing.ev2 has no mode at position 9; it has 2"));
    EXPECT_THAT(texts("out-1.svg"), HasSubstr("|t|"));
    EXPECT_THAT(texts("out-1.svg"), Not(HasSubstr("|o|")));
    EXPECT_THAT(texts("out-2.svg"), HasSubstr("|b|")) << "after the series that names nothing";
}

TEST_F(PictureOfAWorkspace, namesThePlotThatCannotBeDrawn)
{
    WorkspaceRecord record = WorkspaceFixture::record();
    record.plots[1].axes.speed.ticks = 0;
    const auto result = draw({write(record)});
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.err, HasSubstr("plot \"Store\""));
    EXPECT_TRUE(exists("out-1.svg"));
    EXPECT_FALSE(exists("out-2.svg"));
}

TEST_F(PictureOfAWorkspace, needsAPlot)
{
    WorkspaceRecord record = WorkspaceFixture::record();
    const auto unknown = draw({"--plot", "Tail", write(record)});
    EXPECT_EQ(unknown.status, 1);
    EXPECT_THAT(unknown.err, HasSubstr("there are 1 \"Wing\", 2 \"Store\""));
    record.plots.clear();
    const auto none = draw({write(record)});
    EXPECT_EQ(none.status, 1);
    EXPECT_THAT(none.err, HasSubstr("case.tsw has no plot"));
    EXPECT_EQ(fileCount(), 3U);
}

TEST_F(PictureOfAWorkspace, isNotWrittenOverWhatIsRead)
{
    const std::string path = write(record());
    const std::vector<std::string> inputs = {path, wing, old};
    for (const std::string& input : inputs) {
        std::filesystem::create_hard_link(input, file("out-2.svg"));
        const std::string before = fileBytes(input);
        const auto result = draw({path});
        EXPECT_EQ(result.status, 1) << input;
        EXPECT_THAT(result.err, HasSubstr("out-2.svg is one of the files to read"));
        EXPECT_EQ(fileBytes(input), before);
        EXPECT_FALSE(exists("out-1.svg")) << "all names are looked at before anything is written";
        std::filesystem::remove(file("out-2.svg"));
    }
}

TEST_F(PictureOfAWorkspace, refusesWhatTheSeriesSay)
{
    const std::string path = write(record());
    const std::vector<std::vector<std::string>> wrong = {{"--modes", "1", path},
                                                         {"--marker", "id", path},
                                                         {"--marker-spacing", "3", path},
                                                         {"--marker-size=3", path},
                                                         {path, wing},
                                                         {wing, path},
                                                         {path, path},
                                                         {"--plot", "1", wing}};
    for (const auto& more : wrong) {
        const auto result = draw(more);
        EXPECT_EQ(result.status, 2) << ::testing::PrintToString(more);
        EXPECT_THAT(result.err, HasSubstr("workspace"));
    }
    EXPECT_EQ(fileCount(), 3U);
}
