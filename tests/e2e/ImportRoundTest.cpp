// From a solver output to the plot and the report, by mouse and keyboard. If TARSIL_GUIDE names a
// folder, the pictures of the user's guide are taken on the way.

#include "Person.h"
#include "Program.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarsil::test {

namespace {

using ::testing::HasSubstr;

constexpr const char* importDialog = "^Import Solver Results$";
constexpr QRect dialogArea(10, 30, 960, 660); // position on the screen
constexpr QRgb blue = qRgb(0, 0, 255); // of the second curve

void keepForTheGuide(const char* name, const QImage& picture)
{
    const QString folder = qEnvironmentVariable("TARSIL_GUIDE");
    if (!folder.isEmpty()) {
        EXPECT_TRUE(picture.save(QDir(folder).filePath(QString::fromLatin1(name))));
    }
}

QStringList workbooksIn(const QString& folder)
{
    QStringList found;
    QDirIterator files(folder, {QStringLiteral("*.xlsx")}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext())
        found.append(files.next());
    return found;
}

class ImportRound : public ::testing::Test
{
protected:
    ImportRound() : program(display, {}), person(display), hands(display.name()) { }

    /// Copies the solver output to its own folder.
    void runTheSolver()
    {
        ASSERT_TRUE(QFile::copy(QString::fromStdString(sample("goland_clean.f06")), print()));
    }
    QString print() const { return QString::fromStdString(folder.file("goland_clean.f06")); }

    /// "ft, slug" is the third preset.
    void importInFeet()
    {
        person.nameFile("alt+v Left i", "^Open$", print());
        ASSERT_TRUE(hands.focusNew(QString::fromLatin1(importDialog)));
        EXPECT_TRUE(person.standsStill(dialogArea));
        keepForTheGuide("import-units.png", person.look(dialogArea));
        person.press("alt+p Down Down Down");
        person.press("alt+a");
        person.type(QStringLiteral("GOLAND WING"));
        person.press("alt+m");
        person.type(QStringLiteral("CLEAN"));
        EXPECT_TRUE(person.standsStill(dialogArea));
        keepForTheGuide("import.png", person.look(dialogArea));
        person.press("alt+i");
        ASSERT_TRUE(
            waitUntil([this] { return !hands.isShown(QString::fromLatin1(importDialog)); }));
        ASSERT_TRUE(hands.focus(QStringLiteral("^Tarsil 4\\.0$")));
    }

    void calculateFlutterSpeeds()
    {
        person.press("alt+t Down Down Down Down Return");
        for (const char* answer : {"0", "450"}) {
            ASSERT_TRUE(hands.focusNew(QStringLiteral("^Tarsil$"))) << answer;
            hands.type(QString::fromLatin1(answer));
            person.press("Return");
        }
        ASSERT_TRUE(hands.focusNew(QStringLiteral("^Tarsil$"))) << "where the report is";
        person.press("Return");
    }

    const VirtualDisplay display;
    Program program;
    Person person;
    Hands hands;
    const TemporaryFolder folder;
};

} // namespace

TEST_F(ImportRound, goesFromTheSolversPrintToTheReport)
{
    ASSERT_FALSE(display.name().isEmpty()) << "Xvfb did not start";
    runTheSolver();
    const QImage before = person.look(treeArea);
    importInFeet();
    EXPECT_TRUE(person.seesChange(treeArea, before));
    for (const char* name :
         {"goland_clean_s1_M0.40.ev2", "goland_clean_s2_M0.50.ev2", "goland_clean_s3_M0.60.ev2"})
        EXPECT_THAT(fileBytes(folder.file(name)), HasSubstr("Speed_unit=ft/s\n")) << name;
    EXPECT_THAT(fileBytes(program.home().path() / ".config" / "tarsil" / "tarsil.ini"),
                HasSubstr("Units1=ft/s|1|ratio|"));

    person.goToExplorer();
    person.press("Home Down Down Down space");
    person.pushButton(selectButton, plotArea);
    person.goToExplorer();
    person.press("Home Down Down Down");
    person.selectModes();
    EXPECT_TRUE(person.waitForColor(blue));

    calculateFlutterSpeeds();
    EXPECT_TRUE(waitUntil([this] {
        return workbooksIn(QString::fromStdString(program.home().path().string())).size() == 1;
    }));
    EXPECT_TRUE(program.isRunning());
}

} // namespace tarsil::test
