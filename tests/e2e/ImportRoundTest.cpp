// SPDX-License-Identifier: Apache-2.0

// From a solver output to the plot and the report, by mouse and keyboard. If TARSIL_GUIDE names a
// folder, the pictures of the user's guide are taken on the way.

#include "CurveColors.h"
#include "GuidePictures.h"
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
    ImportRound() : program(display, {}), person(display, program) { }

    /// Copies the solver output to its own folder.
    void runTheSolver()
    {
        ASSERT_TRUE(QFile::copy(QString::fromStdString(sample("goland_clean.f06")), print()));
    }
    QString print() const { return QString::fromStdString(folder.file("goland_clean.f06")); }

    void importInFeet()
    {
        person.nameFile([this] { person.choose("FileMenu", "ImportMenu"); }, "^Open$", print());
        person.inDialog([] {}, importDialog,
                        [this] {
                            const QRect dialog = person.area("dlgImport");
                            EXPECT_TRUE(person.standsStill(dialog));
                            keepForTheGuide("import-units.png", person.look(dialog));
                            person.chooseIn("cboPreset", QStringLiteral("ft, slug"));
                            person.fill("txtAirplane", QStringLiteral("GOLAND WING"));
                            person.fill("txtMass", QStringLiteral("CLEAN"));
                            EXPECT_TRUE(person.standsStill(dialog));
                            keepForTheGuide("import.png", person.look(dialog));
                            person.clickOn("btnImport");
                        });
    }

    void calculateFlutterSpeeds()
    {
        person.choose("mnuTools", "mnuFlutCalc");
        for (const char* answer : {"0", "450"})
            person.answerWith(QString::fromLatin1(answer));
        person.answer("OK"); // says where the report is
    }

    const VirtualDisplay display;
    Program program;
    Person person;
    const TemporaryFolder folder;
};

} // namespace

TEST_F(ImportRound, goesFromTheSolversPrintToTheReport)
{
    runTheSolver();
    importInFeet();
    const QString first = QStringLiteral("goland_clean_s1_M0.40.ev2");
    person.tick(first);
    for (const char* name :
         {"goland_clean_s1_M0.40.ev2", "goland_clean_s2_M0.50.ev2", "goland_clean_s3_M0.60.ev2"})
        EXPECT_THAT(fileBytes(folder.file(name)), HasSubstr("Speed_unit=ft/s\n")) << name;
    EXPECT_THAT(fileBytes(program.home().path() / ".config" / "tarsil" / "tarsil.ini"),
                HasSubstr("Units1=ft/s|1|ratio|"));

    person.drawTicked();
    person.selectModes(first);
    EXPECT_TRUE(person.waitForColor(blue));

    calculateFlutterSpeeds();
    EXPECT_TRUE(waitUntil([this] {
        return workbooksIn(QString::fromStdString(program.home().path().string())).size() == 1;
    }));
    EXPECT_TRUE(program.isRunning());
}

} // namespace tarsil::test
