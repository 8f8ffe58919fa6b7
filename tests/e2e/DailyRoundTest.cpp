// SPDX-License-Identifier: Apache-2.0

// A typical session by mouse and keyboard: options, evolutions, modes, header, speeds, subtitle,
// legend, picture. If TARSIL_GUIDE names a folder, the pictures of the user's guide are taken on
// the way.

#include "CurveColors.h"
#include "GuidePictures.h"
#include "Person.h"
#include "Program.h"

#include <QFile>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarsil::test {

namespace {

using ::testing::HasSubstr;

constexpr QRect wholeScreen(0, 0, 1000, 800);

/// The bytes of a text in a metafile.
std::string inMetafile(const char* text)
{
    std::string bytes;
    for (; *text != '\0'; ++text)
        bytes += {*text, '\0'};
    return bytes;
}

class DailyRound : public ::testing::Test
{
protected:
    DailyRound() : program(display, {}), person(display, program) { }

    void readTheAircraftFile()
    {
        const auto open = [this] { person.choose("mnuTools", "mnuOptions"); };
        person.inDialog(open, "^Options$", [this] {
            person.fill("txtAcInfo",
                        QStringLiteral("/home/me/wing/goland.inp")); // for the guide's picture
            person.fill("txtVgfScale", QStringLiteral("0|450|0|-0.25|0|20"));
            person.fill("txtVgfThicks", QStringLiteral("9|5|4"));
            const QRect dialog = person.area("dlgOptions");
            EXPECT_TRUE(person.standsStill(dialog));
            keepForTheGuide("options.png", person.look(dialog));
            person.fill("txtAcInfo", QString::fromStdString(sample("goland.inp")));
            person.clickOn("btnOK");
        });
    }

    /// Draws three modes of the first file, which is the reference, and one of the second.
    void chooseModes()
    {
        const QString clean = QStringLiteral("goland_clean_m040.ev2");
        const QString stores = QStringLiteral("goland_tipstore_m040.ev2");
        person.addEvolution("goland_clean_m040.ev2");
        person.addEvolution("goland_tipstore_m040.ev2");
        person.chooseFor(clean, "popSetRefEvol");
        person.tick(stores);
        person.drawTicked();
        person.selectModes(clean);
        EXPECT_TRUE(person.waitForColor(green));
    }

    void headAndMark()
    {
        person.fill("txtTitle", QStringLiteral("As built"));
        person.clickOn("btnMakHead");
        person.clickOn("btnAutoRef");
        person.chooseIn("cmbFlutMech", QStringLiteral("BEND-TORS"));
    }

    void writeTheLegend()
    {
        person.fill("txtLegIdx", QStringLiteral("0"));
        person.clickOn("btnFilltLeg");
        person.clickOn("btnPlotLeg");
    }

    const VirtualDisplay display;
    Program program;
    Person person;
    const TemporaryFolder folder;
};

} // namespace

TEST_F(DailyRound, goesFromTheFilesToThePicture)
{
    readTheAircraftFile();
    chooseModes();
    headAndMark();
    writeTheLegend();

    // Modes of the rows are raised and lowered by the keys plus and minus in the column "Mode".
    constexpr int modeColumn = 3;
    const QImage before = person.look(person.plot());
    person.clickAt(person.cell(0, modeColumn).center());
    person.press("plus");
    EXPECT_TRUE(person.seesChange(person.plot(), before));
    person.press("minus");
    person.clickOn("btnPlotLeg");
    person.goToExplorer();
    person.plotWith(green);
    keepForTheGuide("window.png", person.look(wholeScreen));
    keepForTheGuide("data.png", person.look(person.area("wndData")));
    keepForTheGuide("plot.png", person.look(person.plot()));

    const QString picture = QString::fromStdString(folder.file("wing.emf"));
    person.nameFile([this] { person.clickOn("SavePic"); }, "^Save", picture);
    ASSERT_TRUE(waitUntil([&picture] { return QFile::exists(picture); }));
    const std::string bytes = fileBytes(picture.toStdString());
    for (const char* text :
         {"GOLAND WING - Configuration CLEAN", "PK Method - Mach No. 0.40", "As built",
          "Bending and torsion of the wing", "Ceiling", "Vd    ", "       VL", "[1] clean wing"})
        EXPECT_NE(bytes.find(inMetafile(text)), std::string::npos) << text;

    person.press("ctrl+q");
    person.answer("Discard"); // the workspace was not saved
    EXPECT_EQ(program.exitStatus(), 0);
    EXPECT_THAT(fileBytes(program.home().path() / ".config" / "tarsil" / "tarsil.ini"),
                HasSubstr("goland.inp"));
}

} // namespace tarsil::test
