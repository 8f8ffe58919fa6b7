// SPDX-License-Identifier: Apache-2.0

// A session by mouse and keyboard, saved and restored after a restart.

#include "CurveColors.h"
#include "Person.h"
#include "Program.h"

#include <QFile>

#include <gtest/gtest.h>

#include <tuple>

namespace tarsil::test {

namespace {

/// Expects the program to quit without a question.
void quit(Person& person, Program& program)
{
    person.press("ctrl+q");
    EXPECT_EQ(program.exitStatus(), 0) << (person.isAsked() ? "it asked" : "");
}

struct Pictures
{
    QImage first;
    QImage second;
};

/// Creates and saves two files and two plots with different texts and scales; returns the pictures
/// of both.
Pictures makeSession(const VirtualDisplay& display, const QString& file)
{
    Pictures pictures;
    Program program(display, {});
    Person person(display, program);
    const QString clean = QStringLiteral("goland_clean_m040.ev2");
    const QString stores = QStringLiteral("goland_tipstore_m050.ev2");
    person.addEvolution("goland_clean_m040.ev2");
    person.addEvolution("goland_tipstore_m050.ev2");
    person.tick(clean);
    person.tick(stores);
    person.drawTicked();
    EXPECT_TRUE(person.waitForColor(blue));
    person.selectModes(stores);
    EXPECT_TRUE(person.waitForColor(cyan));
    person.typeHeader({QStringLiteral("Goland wing; two stores"), QStringLiteral("as built")});
    person.setLargestSpeed(QStringLiteral("450"));

    person.addPlot(QStringLiteral("Second"));
    person.plotWith(blue, false);
    person.drawTicked();
    EXPECT_TRUE(person.waitForColor(blue));
    person.activatePlot(QStringLiteral("Plot1"));
    pictures.first = person.plotWith(cyan);
    person.activatePlot(QStringLiteral("Second"));
    pictures.second = person.plotWith(cyan, false);
    person.nameFile([&person] { person.choose("FileMenu", "mnuSaveWorkspace"); }, "^Save", file);
    EXPECT_TRUE(waitUntil([&file] { return QFile::exists(file); }));
    quit(person, program);
    return pictures;
}

} // namespace

TEST(RealSession, isThereAgainAfterARestart)
{
    const VirtualDisplay display;
    const TemporaryFolder folder;
    const QString file = QString::fromStdString(folder.file("two stores.tsw"));
    const auto [first, second] = makeSession(display, file);
    EXPECT_NE(first, second);
    const std::string saved = fileBytes(file.toStdString());
    EXPECT_NE(saved.find("NoOfSeries=5\r\n"), std::string::npos) << saved;
    EXPECT_NE(saved.find("Caption=Second\r\n"), std::string::npos) << saved;
    EXPECT_NE(saved.find("Goland wing; two stores\\par"), std::string::npos) << saved;

    for (const bool isOnCommandLine : {true, false}) {
        SCOPED_TRACE(isOnCommandLine ? "from the command line" : "from the File menu");
        Program program(display, isOnCommandLine ? QStringList {file} : QStringList());
        Person person(display, program);
        if (!isOnCommandLine)
            person.nameFile([&person] { person.choose("FileMenu", "OpenMenu"); }, "^Open$", file);
        EXPECT_TRUE(person.seesPlot(first));
        person.activatePlot(QStringLiteral("Second"));
        EXPECT_TRUE(person.seesPlot(second));
        quit(person, program);
    }
}

TEST(RealSession, savesTheRowsInTheOrderInWhichTheyWereDragged)
{
    const VirtualDisplay display;
    const TemporaryFolder folder;
    const QString file = QString::fromStdString(folder.file("dragged.tsw"));
    Program program(display, {QString::fromStdString(sample("goland_clean_m040.ev2"))});
    Person person(display, program);
    EXPECT_TRUE(person.waitForColor(cyan));
    person.dragRow(0, 2);
    EXPECT_TRUE(person.standsStill(person.area("wndData")));
    person.nameFile([&person] { person.press("ctrl+s"); }, "^Save", file);
    EXPECT_TRUE(waitUntil([&file] { return QFile::exists(file); }));
    const std::string saved = fileBytes(file.toStdString());
    int row = 0;
    for (const char mode : {'2', '3', '1', '4', '5', '6', '7'}) {
        const std::string serie =
            "\r\nSerie(" + std::to_string(++row) + ")=1" + std::string(1, '\0') + mode;
        EXPECT_NE(saved.find(serie), std::string::npos) << row;
    }
    quit(person, program);
}

/// A wrong number in a dialog can be corrected with the keyboard after the message box.
TEST(RealSession, keepsTheKeyboardInTheDialogAfterABox)
{
    const VirtualDisplay display;
    const TemporaryFolder folder;
    const QString file = QString::fromStdString(folder.file("marks.tsw"));
    Program program(display, {QString::fromStdString(sample("goland_clean_m040.ev2"))});
    Person person(display, program);
    EXPECT_TRUE(person.waitForColor(cyan));
    for (const auto& [command, title, field, wrong, lastKey, repair] :
         {std::tuple("mnuAddRef", "Add Reference Speed", "posInp", "x300", "Return", "Home Delete"),
          std::tuple("mnuAddDamp", "Add Damping Line", "sdampInp", ".1", "x",
                     "BackSpace Home minus")}) {
        person.clickAt(person.cell(0, 0).center());
        EXPECT_TRUE(person.standsStill(person.plot()));
        const QImage before = person.look(person.plot());
        person.inDialog(
            [&person, name = command] { person.choose("mnuTools", name); }, title,
            [&, owner = title, input = field, text = wrong, last = lastKey, mended = repair] {
                person.fill(input, QString::fromLatin1(text));
                person.press(last);
                EXPECT_TRUE(person.closesBoxOf(owner)) << owner;
                person.press(mended);
                person.press("Return");
                EXPECT_TRUE(person.seesChange(person.plot(), before)) << "the mark of " << owner;
                EXPECT_FALSE(person.isAsked()) << owner;
                person.press("Escape");
            });
    }
    person.nameFile([&person] { person.press("ctrl+s"); }, "^Save", file);
    EXPECT_TRUE(waitUntil([&file] { return QFile::exists(file); }));
    EXPECT_NE(fileBytes(file.toStdString()).find("NoOfSeries=7\r\n"), std::string::npos)
        << "no curve was removed";
    quit(person, program);
}

} // namespace tarsil::test
