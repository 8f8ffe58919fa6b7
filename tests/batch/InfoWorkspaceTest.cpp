// SPDX-License-Identifier: Apache-2.0
#include "batch/WorkspaceFixture.h"
#include "workspace/WorkspaceTexts.h"

#include <gmock/gmock.h>

#include <filesystem>

using namespace tarsil;
using test::drawn;
using test::runBatch;
using test::wholeWorkspace;
using test::with;
using ::testing::HasSubstr;

namespace {

class InfoOfAWorkspace : public test::WorkspaceFixture
{
protected:
    std::string json(const std::string& bytes) const
    {
        const auto result = runBatch({"info", "--json", folder().write("case.tsw", bytes)});
        EXPECT_EQ(result.status, 0);
        EXPECT_EQ(result.err, "");
        return result.out;
    }
};

/// A run without format except these, in JSON.
std::string run(const std::string& text, const std::string& bold, const std::string& color)
{
    return R"({"text":")" + text + R"(","font":"Arial","size":10,"bold":)" + bold
        + R"(,"italic":false,"underline":false,"strikeout":false,"color":)" + color + "}";
}

} // namespace

TEST_F(InfoOfAWorkspace, givesTheWholeRecordAsJson)
{
    const std::string expected =
        R"({"workspace":{"description":"Goland wing, clean","created":"07-Mar-2024 14:05:31",)"
        R"("modified":"08-Mar-2024 09:00:00",)"
        R"("files":["C:\\flutter\\clean.evm","C:\\flutter\\store.ev2"],)"
        R"("edited":[],"reference":null,)"
        R"("plots":[{"caption":"Plot1","header":{"text":"Wing","runs":[)"
        + run("Wing", "false", "null")
        + R"(],"left":1500,"top":120},"legend":{"text":"1\n2","runs":[)"
        + run(R"(1\n2)", "false", "null")
        + R"(],"left":9000,"top":600},)"
          R"("mechanism":{"text":"","runs":[],"left":1500.5,"top":-30},)"
          R"json("speed_axis":{"label":"V(keas)","min":0,"max":700,"ticks":7},)json"
          R"json("frequency_axis":{"label":"f(Hz)","min":0,"max":50,"ticks":5},)json"
          R"("damping_axis":{"label":"g","min":0,"max":-0.25,"ticks":5},)"
          R"("series":[{"evolution":1,"mode":3,"tag":"","marker_size":8,"marker_spacing":5,)"
          R"("marker_style":1,"legend":"clean","color":"#ff0000","marker_color":"#000000",)"
          R"("line_style":0,"line_width":0,"factor":1},)"
          R"({"evolution":2,"mode":1,"tag":"s","marker_size":10,"marker_spacing":0,)"
          R"("marker_style":2,"legend":"store, half full","color":"#0000ff",)"
          R"("marker_color":"#008000","line_style":0,"line_width":0,"factor":1}],)"
          R"("reference_speeds":[],"damping_lines":[]}]}})"
          "\n";
    EXPECT_EQ(json(drawn(wholeWorkspace)), expected);
}

TEST_F(InfoOfAWorkspace, givesEveryLookOfAText)
{
    const std::string rtf = "{\\rtf1{\\fonttbl{\\f0 Courier;}}{\\colortbl ;\\red255\\green128;}|"
                            "\\f0\\fs19\\cf1\\i\\ul\\strike a\\plain\\b Fl\\'fcgel\\par|}";
    const std::string text = json(drawn(with(std::string(wholeWorkspace), "{\\rtf1 }", rtf)));
    EXPECT_THAT(text,
                HasSubstr(R"("mechanism":{"text":"aFl)"
                          "\xC3\xBC"
                          R"(gel","runs":[{"text":"a","font":"Courier","size":9.5,)"
                          R"("bold":false,"italic":true,"underline":true,"strikeout":true,)"
                          R"("color":"#ff8000"},{"text":"Fl)"));
    EXPECT_THAT(text, HasSubstr(R"("bold":true,"italic":false,"underline":false,)"));
}

TEST_F(InfoOfAWorkspace, givesNothingForWhatIsAbsent)
{
    WorkspaceRecord record;
    record.plots.resize(1);
    record.plots[0].legend.position = {1, 2.5};
    const std::string text = json(test::fileBytes(write(record)));
    EXPECT_THAT(text, HasSubstr(R"("header":{"text":"","runs":[],"left":null,"top":null})"));
    EXPECT_THAT(text, HasSubstr(R"("legend":{"text":"","runs":[],"left":1,"top":2.5})"));
    EXPECT_THAT(text, HasSubstr(R"("files":[],)"));
    EXPECT_THAT(text, HasSubstr(R"("series":[],"reference_speeds":[],"damping_lines":[]}]}})"));
    record.plots.clear();
    EXPECT_THAT(json(test::fileBytes(write(record))), HasSubstr(R"("plots":[]}})"));
}

TEST_F(InfoOfAWorkspace, keepsNumbersThatNameNothingAndColoursOfAllBits)
{
    const std::string text = json(drawn(with(std::string(wholeWorkspace), "1|3||8|5|1|clean|255|0",
                                             "-7|32767||-1|0|9|clean|-1|-2147483393")));
    EXPECT_THAT(text, HasSubstr(R"("evolution":-7,"mode":32767,"tag":"","marker_size":-1,)"));
    // -2147483393 is 0x800000FF.
    EXPECT_THAT(text, HasSubstr(R"("color":"#ffffff","marker_color":"#ff0000")"));
}

TEST_F(InfoOfAWorkspace, cutsATextWhereTheReaderCutsIt)
{
    WorkspaceRecord record = WorkspaceFixture::record();
    record.description = std::string(1100, 'x');
    record.plots[0].header.rtf = "{\\rtf1 " + std::string(2000, 'y') + "}";
    const std::string text = json(test::fileBytes(write(record)));
    EXPECT_THAT(text, HasSubstr("\"" + std::string(1023, 'x') + "\""));
    EXPECT_THAT(text, HasSubstr("\"" + std::string(1023 - 7, 'y') + "\""));
}

TEST_F(InfoOfAWorkspace, writesLineBreaksOfEveryTextAlike)
{
    WorkspaceRecord record = WorkspaceFixture::record();
    record.description = "first\r\nsecond";
    EXPECT_THAT(json(test::fileBytes(write(record))), HasSubstr(R"("first\nsecond")"));
}

TEST_F(InfoOfAWorkspace, needsNoneOfTheEvolutions)
{
    std::filesystem::remove(wing);
    std::filesystem::remove(old);
    EXPECT_EQ(runBatch({"info", write(record())}).status, 0);
    EXPECT_EQ(runBatch({"info", "--json", write(record(), "other.TSW")}).status, 0);
}

TEST_F(InfoOfAWorkspace, givesTextForPeople)
{
    WorkspaceRecord record = WorkspaceFixture::record();
    record.plots[0].header.rtf = test::rtfOf("first\\par second");
    record.plots[1].series.clear();
    const auto result = runBatch({"info", write(record)});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.out,
              "case.tsw\n"
              "  description            a case\n"
              "  created                07-Mar-2024 14:05:31\n"
              "  modified               08-Mar-2024 09:00:00\n"
              "  file 1                 C:\\flutter\\wing.ev2\n"
              "  file 2                 C:\\flutter\\old.evm\n"
              "\n"
              "  plot 1                 Wing\n"
              "  header                 first\n"
              "                         second\n"
              "  speed axis             V(keas) from 0 to 450, 9 ticks\n"
              "  frequency axis         f(Hz) from 0 to 20, 4 ticks\n"
              "  damping axis           g from 0 to -2, 4 ticks\n"
              " evolution      mode       tag    colour  legend\n"
              "         1         2         t   #0000ff  torsion\n"
              "         2         1         o   #ff0000  old\n"
              "\n"
              "  plot 2                 Store\n"
              "  header                 header of Store\n"
              "  speed axis             V(keas) from 0 to 450, 9 ticks\n"
              "  frequency axis         f(Hz) from 0 to 20, 4 ticks\n"
              "  damping axis           g from 0 to -2, 4 ticks\n");
}

TEST_F(InfoOfAWorkspace, givesReferencesLooksAndEditedParameters)
{
    WorkspaceRecord record = WorkspaceFixture::record();
    record.files.emplace_back();
    record.edited = {{2, {"QRX", "Flügel \"B\"", 0.62F}}};
    record.reference = 1;
    record.plots[0].referenceSpeeds = {{352.1F, "Vd  "}, {400, ""}};
    record.plots[0].dampingLines = {{0.01F, "g = 1.00 %"}};
    record.plots[0].series[0].isHidden = true;
    record.plots[0].series[1].lineStyle = 2;
    record.plots[0].series[1].lineWidth = 3;
    record.plots[0].series[1].factor = 4;
    const std::string path = write(record);
    const std::string text = json(test::fileBytes(path));
    EXPECT_THAT(text,
                HasSubstr(R"(old.evm",null],"edited":[{"evolution":2,"airplane":"QRX",)"
                          R"("mass":"Flügel \"B\"","mach":0.62}],"reference":1,"plots")"));
    EXPECT_THAT(text, HasSubstr(R"("line_width":0,"factor":1,"hidden":true},)"));
    EXPECT_THAT(text, HasSubstr(R"("line_style":2,"line_width":3,"factor":4}])"));
    EXPECT_THAT(text,
                HasSubstr(R"("reference_speeds":[{"speed":352.1,"caption":"Vd  "},)"
                          R"({"speed":400,"caption":""}],)"
                          R"("damping_lines":[{"damping":0.01,"caption":"g = 1.00 %"}]})"));
    const auto people = runBatch({"info", path});
    EXPECT_THAT(people.out,
                HasSubstr("  file 2                 C:\\flutter\\old.evm\n"
                          "  file 3                 not in the list\n"
                          "  edited, file 2         QRX, Flügel \"B\", Mach 0.62\n"
                          "  reference              file 1\n"));
    EXPECT_THAT(people.out,
                HasSubstr("  damping axis           g from 0 to -2, 4 ticks\n"
                          "  reference speed        352.1  Vd  \n"
                          "  reference speed        400\n"
                          "  damping line           0.01  g = 1.00 %\n"
                          " evolution"));
    EXPECT_THAT(people.out,
                HasSubstr("  old\n  series 1               hidden\n"
                          "  line of series 2       style 2, 3 px\n\n"));
}

TEST_F(InfoOfAWorkspace, acceptsNoFurtherFile)
{
    const std::string path = write(record());
    for (const std::vector<std::string>& arguments : {std::vector<std::string> {"info", path, path},
                                                      {"info", wing, path},
                                                      {"info", "--json", path, wing},
                                                      {"info", "--points", path}}) {
        const auto result = runBatch(arguments);
        EXPECT_EQ(result.status, 2) << ::testing::PrintToString(arguments);
        EXPECT_EQ(result.out, "");
        EXPECT_THAT(result.err, HasSubstr("workspace"));
    }
}

TEST_F(InfoOfAWorkspace, namesFileSectionAndKeyOfAnError)
{
    const std::string path = folder().write("bad.tsw", "[PLOTS]\r\nNoOfPlots=many\r\n");
    const auto result = runBatch({"info", "--json", path});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.out, "");
    EXPECT_THAT(
        result.err,
        HasSubstr("tarsil-batch: Type mismatch: " + path + ", [MODAL EVOLUTION FILES], NoOfFiles"));
    const auto missing = runBatch({"info", file("gone.tsw")});
    EXPECT_EQ(missing.status, 1);
    EXPECT_EQ(missing.err, "tarsil-batch: File not found: " + file("gone.tsw") + "\n");
}
