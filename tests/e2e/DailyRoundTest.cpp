// A typical session by mouse and keyboard: options, evolutions, modes, header, speeds, subtitle,
// legend, picture. If TARSIL_GUIDE names a folder, the pictures of the user's guide are taken on
// the way.

#include "Person.h"
#include "Program.h"

#include <QDir>
#include <QFile>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarsil::test {

namespace {

using ::testing::HasSubstr;

constexpr QRect wholeScreen(0, 0, 1000, 800);
constexpr QRect optionsDialog(230, 272, 520, 177); // at the centre of the screen
constexpr QRgb green = qRgb(0, 128, 0); // of the third curve
constexpr QRgb cyan = qRgb(0, 191, 191); // of the fifth

void keepForTheGuide(const char* name, const QImage& picture)
{
    const QString folder = qEnvironmentVariable("TARSIL_GUIDE");
    if (!folder.isEmpty()) {
        EXPECT_TRUE(picture.save(QDir(folder).filePath(QString::fromLatin1(name))));
    }
}

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
    DailyRound() : program(display, {}), person(display) { }

    void readTheAircraftFile()
    {
        person.inDialog("alt+t Up Return", "^Options$", [this] {
            person.type(
                QStringLiteral("/home/me/wing/goland.inp")); // a path for the picture in the guide
            person.press("Tab Tab");
            person.type(QStringLiteral("0|450|0|-0.25|0|20"));
            person.press("Tab");
            person.type(QStringLiteral("9|5|4"));
            EXPECT_TRUE(person.standsStill(optionsDialog));
            keepForTheGuide("options.png", person.look(optionsDialog));
            person.press("shift+Tab shift+Tab shift+Tab ctrl+a");
            person.type(QString::fromStdString(sample("goland.inp")));
            person.press("Return");
        });
    }

    /// Draws three modes of the first file, which is the reference, and one of the second.
    void chooseModes()
    {
        person.addEvolution("goland_clean_m040.ev2");
        person.addEvolution("goland_tipstore_m040.ev2");
        person.goToExplorer();
        person.press("Home Down Down Down");
        person.press("Menu Down Return"); // the reference
        person.press("Down space");
        person.pushButton(selectButton, plotArea);
        person.goToExplorer();
        person.press("Home Down Down Down");
        person.selectModes();
        EXPECT_TRUE(person.waitForColor(green));
    }

    /// From the grid on, Tab visits the buttons and inputs in their order.
    void headAndMark()
    {
        person.goToDataControl();
        person.press("Tab", 11);
        person.type(QStringLiteral("As built"));
        person.press("shift+Tab space"); // Auto Header
        person.press("shift+Tab space"); // Auto Ref. Speed
        person.press("Tab Tab Tab Down"); // the first mechanism
    }

    void writeTheLegend()
    {
        person.goToDataControl();
        person.press("shift+Tab", 4);
        person.type(QStringLiteral("0"));
        person.press("Tab space"); // Auto Fill Legend
        person.press("Tab Tab space"); // Plot Legend
    }

    const VirtualDisplay display;
    Program program;
    Person person;
    const TemporaryFolder folder;
};

} // namespace

TEST_F(DailyRound, goesFromTheFilesToThePicture)
{
    ASSERT_FALSE(display.name().isEmpty()) << "Xvfb did not start";
    readTheAircraftFile();
    chooseModes();
    headAndMark();
    writeTheLegend();

    // Modes of the rows are raised and lowered by the keys plus and minus in the column "Mode".
    person.goToDataControl();
    const QImage before = person.look(plotArea);
    person.press("ctrl+Home Right Right Right plus");
    EXPECT_TRUE(person.seesChange(plotArea, before));
    person.press("minus");
    person.press("shift+Tab space"); // Plot Legend again
    person.goToExplorer();
    person.plotWith(green);
    keepForTheGuide("window.png", person.look(wholeScreen));
    keepForTheGuide("data.png", person.look(dataArea));
    keepForTheGuide("plot.png", person.look(plotArea));

    const QString picture = QString::fromStdString(folder.file("wing.emf"));
    person.goToDataControl();
    person.press("Tab", 7);
    person.nameFile("Tab space", "^Save", picture);
    ASSERT_TRUE(waitUntil([&picture] { return QFile::exists(picture); }));
    const std::string bytes = fileBytes(picture.toStdString());
    for (const char* text :
         {"GOLAND WING - Configuration CLEAN", "PK Method - Mach No. 0.40", "As built",
          "Bending and torsion of the wing", "Ceiling", "Vd    ", "       VL", "[1] clean wing"})
        EXPECT_NE(bytes.find(inMetafile(text)), std::string::npos) << text;

    person.press("ctrl+q");
    EXPECT_TRUE(waitUntil([this] { return person.isAsked(); })) << "the workspace was not saved";
    Hands(display.name()).focusNew(QStringLiteral("^Tarsil$"));
    person.press("alt+d");
    EXPECT_EQ(program.exitStatus(), 0);
    EXPECT_THAT(fileBytes(program.home().path() / ".config" / "tarsil" / "tarsil.ini"),
                HasSubstr("goland.inp"));
}

} // namespace tarsil::test
