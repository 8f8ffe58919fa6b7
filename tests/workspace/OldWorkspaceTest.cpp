// SPDX-License-Identifier: Apache-2.0
#include "WorkspaceTexts.h"
#include "workspace/WorkspaceWriter.h"

#include <gtest/gtest.h>

#include <string>

// Workspaces as older installations saved them: Windows-1252, drive letters, blank lines between
// the sections, and rich texts of the platform's own control.

using namespace tarsil;
using namespace tarsil::test;

namespace {

constexpr std::string_view oldWorkspace =
    "[GENERAL INFORMATION]\n"
    "Username=J. M\xFCller\n"
    "tsw_Version=1.0.7\n"
    "Analysis_Description= Fl\xFCgel mit Au\xDF"
    "enlast \x96 50 % \n"
    "Date_Created=03-Okt-2001 9:05:00\n"
    "Date_Modified=\"12-Nov-2001 16:44:10\"\n"
    "\n"
    "[MODAL EVOLUTION FILES]\n"
    "NoOfFiles=2\n"
    "File(1)=D:\\Projekte\\Fl\xFCgel 7\\m040.evm\n"
    "File(2)=\\\\server\\flutter\\m060.EV2\n"
    "\n"
    "[PLOTS]\n"
    "NoOfPlots=1\n"
    "\n"
    "[PLOT1]\n"
    "Caption=Au\xDF"
    "enlast\n"
    "Header={\\rtf1\\ansi\\ansicpg1252\\deff0\\deftab720{\\fonttbl{\\f0\\fswiss MS Sans Serif;}"
    "{\\f1\\froman\\fcharset2 Symbol;}{\\f2\\fswiss\\fprq2 Arial;}}|"
    "{\\colortbl\\red0\\green0\\blue0;}|"
    "\\deflang1031\\pard\\qc\\plain\\f2\\fs20\\b Fl\\'fcgel = \"A\"|"
    "\\par \\plain\\f2\\fs16 Ma 0.4|"
    "\\par }|\n"
    "HeadPos=1275|60\n"
    "Mechanism={\\rtf1\\ansi\\deff0{\\fonttbl{\\f0 Arial;}}|\\pard roh: \xFC\\par }|\n"
    "MechPos=4980|3015\n"
    "Legend=\n"
    "LegPos=8100.0|-15\n"
    "velAxis=V(keas)|0|650|14\n"
    "freqAxis=f(Hz)|0|50|6\n"
    "gAxis=g|5.000001E-02|-.25|4\n"
    "NoOfSeries=1\n"
    "Serie(1)=2|5||8|0|0|Biegung \xB1"
    "1|12566272|0\n"
    "[END OF FILE]\n";

} // namespace

TEST(OldWorkspace, hasItsTextsInUtf8)
{
    const WorkspaceRecord record = readDrawn(oldWorkspace);
    EXPECT_EQ(record.description, "Flügel mit Außenlast – 50 %");
    EXPECT_EQ(record.dateCreated, "03-Okt-2001 9:05:00");
    EXPECT_EQ(record.dateModified, "12-Nov-2001 16:44:10");
    ASSERT_EQ(record.files.size(), 2U);
    EXPECT_EQ(record.files[0], "D:\\Projekte\\Flügel 7\\m040.evm");
    EXPECT_EQ(record.files[1], "\\\\server\\flutter\\m060.EV2");
    ASSERT_EQ(record.plots.size(), 1U);
    EXPECT_EQ(record.plots[0].caption, "Außenlast");
    ASSERT_EQ(record.plots[0].series.size(), 1U);
    EXPECT_EQ(record.plots[0].series[0],
              (SeriesRecord {2, 5, "", 8, 0, 0, "Biegung ±1", 12566272, 0}));
}

TEST(OldWorkspace, hasItsRichTextsAsTheControlGaveThem)
{
    const PlotRecord plot = readDrawn(oldWorkspace).plots.at(0);
    EXPECT_EQ(plot.header.rtf,
              "{\\rtf1\\ansi\\ansicpg1252\\deff0\\deftab720{\\fonttbl{\\f0\\fswiss MS Sans Serif;}"
              "{\\f1\\froman\\fcharset2 Symbol;}{\\f2\\fswiss\\fprq2 Arial;}}\r\n"
              "{\\colortbl\\red0\\green0\\blue0;}\r\n"
              "\\deflang1031\\pard\\qc\\plain\\f2\\fs20\\b Fl\\'fcgel = \"A\"\r\n"
              "\\par \\plain\\f2\\fs16 Ma 0.4\r\n"
              "\\par }\r\n");
    // The bytes of a rich text are decoded by its own reader.
    EXPECT_EQ(plot.mechanism.rtf,
              "{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0 Arial;}}\r\n\\pard roh: \xFC\\par }\r\n");
    EXPECT_EQ(plot.legend.rtf, "");
    EXPECT_EQ(plot.header.position, (BoxPosition {1275, 60}));
    EXPECT_EQ(plot.legend.position, (BoxPosition {8100, -15}));
}

TEST(OldWorkspace, hasNumbersWithoutLeadingZeroAndWithExponent)
{
    const PlotRecord plot = readDrawn(oldWorkspace).plots.at(0);
    EXPECT_EQ(plot.axes.speed, (AxisValues {"V(keas)", 0, 650, 14}));
    EXPECT_EQ(plot.axes.damping, (AxisValues {"g", 0.05000001F, -0.25F, 4}));
}

TEST(OldWorkspace, staysWhatItIsWhenItIsSavedAgain)
{
    const WorkspaceRecord record = readDrawn(oldWorkspace);
    const std::string bytes = writeWorkspace(record, "J. Müller").bytes;
    EXPECT_EQ(readBytes(bytes), record);
    // Lines that both programs write in the same way are reproduced byte for byte.
    for (const std::string_view key : {"Username=", "File(1)=", "File(2)=", "Caption=", "Header=",
                                       "Mechanism=", "Legend=", "HeadPos=", "Serie(1)="}) {
        const std::string old = drawn(oldWorkspace);
        const std::size_t start = old.find("\n" + std::string(key));
        const std::string line = old.substr(start, old.find("\r\n", start) + 2 - start);
        EXPECT_NE(bytes.find(line), std::string::npos) << key;
    }
}

TEST(OldWorkspace, mayHaveLostItsCarriageReturnsOnTheWay)
{
    std::string bytes;
    for (const char c : drawn(oldWorkspace)) {
        if (c != '\r')
            bytes += c;
    }
    EXPECT_EQ(readBytes(bytes), readDrawn(oldWorkspace));
}

TEST(OldWorkspace, losesTheEndOfALongRichText)
{
    const std::string text(2000, 'x');
    const std::string drawing = with(std::string(oldWorkspace), "Ma 0.4", text);
    const PlotRecord plot = readDrawn(drawing).plots.at(0);
    // Three line breaks precede the long line: each is one byte in the value and two here.
    EXPECT_EQ(plot.header.rtf->size(), 1023U + 3U);
    EXPECT_TRUE(plot.header.rtf->ends_with("xxxx"));
    EXPECT_EQ(plot.header.position, (BoxPosition {1275, 60}));
}
