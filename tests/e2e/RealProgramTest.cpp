// SPDX-License-Identifier: Apache-2.0
#include "Hands.h"
#include "Person.h"
#include "Program.h"

#include "analysis/XlsxReader.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>

#include <gtest/gtest.h>

namespace tarsil::test {

namespace {

/// The workbooks in the user's documents.
QStringList workbooks(const Program& program)
{
    const QDir documents(QString::fromStdString(program.home().file("Documents")));
    QStringList paths;
    for (const QString& name : documents.entryList({QStringLiteral("*.xlsx")}))
        paths.append(documents.filePath(name));
    return paths;
}

/// The first sheet of a workbook as text, read by LibreOffice if installed, otherwise by the reader
/// of the tests.
std::string readByAnotherProgram(const QString& workbook)
{
    const TemporaryFolder folder;
    const QString out = QString::fromStdString(folder.path().string());
    const QString office = QStandardPaths::findExecutable(QStringLiteral("soffice"));
    const Sheet sheet = readXlsx(workbook.toStdString());
    constexpr int patience = 120000; // milliseconds; reached only if the program hangs
    QProcess converter;
    if (!office.isEmpty())
        converter.start(
            office,
            {QStringLiteral("-env:UserInstallation=file://") + out + QStringLiteral("/profile"),
             QStringLiteral("--headless"), QStringLiteral("--convert-to"), QStringLiteral("csv"),
             QStringLiteral("--outdir"), out, workbook});
    if (!office.isEmpty() && converter.waitForFinished(patience) && converter.exitCode() == 0) {
        const QString name = QFileInfo(workbook).completeBaseName() + QStringLiteral(".csv");
        if (QFile::exists(out + u'/' + name))
            return fileBytes(folder.file(name.toStdString()));
    }
    std::string text;
    for (std::size_t row = 1; row <= sheet.rowCount(); ++row) {
        for (std::size_t column = 1; column <= sheet.columnCount(); ++column)
            text += (column > 1 ? "," : "") + Sheet::textOf(sheet.cell(row, column));
        text += '\n';
    }
    return text;
}

/// Opens a dialog of the Tools menu, adds a reference by its button, and closes it with Escape.
void addMark(Person& person, const char* command, const char* title)
{
    const QRect plot = person.plot();
    const QImage before = person.look(plot);
    person.inDialog([&] { person.choose("mnuTools", command); }, title,
                    [&] {
                        person.clickOn("Add");
                        person.press("Escape");
                    });
    EXPECT_TRUE(person.seesChange(plot, before)) << title << " left its mark";
}

} // namespace

TEST(RealProgram, showsTheCurvesOfAFileOnTheScreen)
{
    const VirtualDisplay display;
    ASSERT_FALSE(display.name().isEmpty()) << "Xvfb did not start";
    ASSERT_FALSE(showsCurves(display.screen()));
    Program program(display, {QString::fromStdString(sample("goland_clean_m040.ev2"))});
    EXPECT_TRUE(display.waitForScreen(showsCurves));
    EXPECT_TRUE(program.isRunning());
}

TEST(RealProgram, saysThatAFileIsMissingAndDrawsTheOthers)
{
    const VirtualDisplay display;
    ASSERT_FALSE(display.name().isEmpty()) << "Xvfb did not start";
    Program program(display,
                    {QStringLiteral("no-such-file.ev2"),
                     QString::fromStdString(sample("goland_clean_m040.ev2"))});
    Hands hands(display.name());
    ASSERT_TRUE(hands.focusNew(QStringLiteral("^Error$")));
    hands.press({QStringLiteral("Return")});
    EXPECT_TRUE(display.waitForScreen(showsCurves));
    EXPECT_TRUE(program.isRunning());
}

TEST(RealProgram, addsReferencesWritesTheReportAndExports)
{
    const VirtualDisplay display;
    ASSERT_FALSE(display.name().isEmpty()) << "Xvfb did not start";
    Program program(display, {QString::fromStdString(sample("goland_clean_m040.ev2"))});
    ASSERT_TRUE(display.waitForScreen(showsCurves));
    Person person(display, program);
    addMark(person, "mnuAddRef", "Add Reference Speed");
    addMark(person, "mnuAddDamp", "Add Damping Line");

    // The report asks two questions and then shows where it is, because no program opens it here.
    person.choose("mnuTools", "mnuFlutCalc");
    for (const char* answer : {"0", "450"})
        person.answerWith(QString::fromLatin1(answer));
    person.answer("OK");
    ASSERT_EQ(workbooks(program).size(), 1);
    const std::string table = readByAnotherProgram(workbooks(program).first());
    EXPECT_NE(table.find("Modal Evolution,Case,Mass"), std::string::npos) << table;
    EXPECT_NE(table.find("\ngoland_clean_m040.ev2,"), std::string::npos) << table;

    const QString mix = QString::fromStdString(program.home().file("all.mix"));
    person.nameFile([&person] { person.choose("FileMenu", "ExportMenu"); }, "^Save", mix);
    EXPECT_TRUE(waitUntil([&mix] { return QFile::exists(mix); }));
    person.press("ctrl+q");
    person.answer("Discard"); // the workspace was not saved
    EXPECT_EQ(program.exitStatus(), 0);
}

TEST(RealProgram, keepsTheOptionsInTheSettingsOfTheUser)
{
    const VirtualDisplay display;
    ASSERT_FALSE(display.name().isEmpty()) << "Xvfb did not start";
    Program program(display, {});
    Person person(display, program);
    person.inDialog([&person] { person.choose("mnuTools", "mnuOptions"); }, "^Options$",
                    [&] {
                        person.fill("txtVgfThicks", QStringLiteral("4|5|2"));
                        person.clickOn("btnOK");
                    });
    person.press("ctrl+q");
    person.answer("Discard"); // the axes of the plot have changed
    EXPECT_EQ(program.exitStatus(), 0);
    EXPECT_EQ(fileBytes(program.home().file(".config/tarsil/tarsil.ini")),
              "[Options]\nAcInfoDataFile=\nvgfScale=\nvgfThicks=4|5|2\n");
}

TEST(RealProgram, followsTheMouse)
{
    const VirtualDisplay display;
    ASSERT_FALSE(display.name().isEmpty()) << "Xvfb did not start";
    Program program(display, {QString::fromStdString(sample("goland_clean_m040.ev2"))});
    ASSERT_TRUE(display.waitForScreen(showsCurves));
    Person person(display, program);
    const QRect plot = person.plot();
    const QImage before = person.look(plot);
    person.clickAt(plot.center(), 3);
    EXPECT_TRUE(person.seesChange(plot, before)) << "the menu of the plot";
    person.press("Escape");

    const QRect panel = person.area("stBar_EditMode");
    const QImage off = person.look(panel);
    person.clickOn("stBar_EditMode");
    EXPECT_TRUE(person.seesChange(panel, off)) << "Edit Mode";
    EXPECT_TRUE(program.isRunning());
}

} // namespace tarsil::test
