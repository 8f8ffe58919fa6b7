// A session by mouse and keyboard, saved and restored after a restart.

#include "Person.h"
#include "Program.h"

#include <QFile>

#include <gtest/gtest.h>

#include <tuple>

namespace tarsil::test {

namespace {

constexpr QRgb blue = qRgb(0, 0, 255); // of the second curve
constexpr QRgb cyan = qRgb(0, 191, 191); // of the fifth

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
    Person person(display);
    person.addEvolution("goland_clean_m040.ev2");
    person.addEvolution("goland_tipstore_m050.ev2");
    person.goToExplorer();
    person.press("Home Down Down Down space Down space");
    person.pushButton(selectButton, plotArea);
    EXPECT_TRUE(person.waitForColor(blue));
    person.selectModes();
    EXPECT_TRUE(person.waitForColor(cyan));
    person.typeHeader({QStringLiteral("Goland wing; two stores"), QStringLiteral("as built")});
    person.setLargestSpeed(QStringLiteral("450"));

    person.pushButton(addPlotButton, treeArea);
    person.goToExplorer();
    person.press("End F2 ctrl+a");
    person.type(QStringLiteral("Second"));
    person.press("Return");
    person.plotWith(blue, false);
    person.pushButton(selectButton, plotArea);
    EXPECT_TRUE(person.waitForColor(blue));
    person.goToExplorer();
    person.press("End Up Return");
    pictures.first = person.plotWith(cyan);
    person.press("Down Return");
    pictures.second = person.plotWith(cyan, false);
    person.nameFile("ctrl+s", "^Save", file);
    EXPECT_TRUE(waitUntil([&file] { return QFile::exists(file); }));
    quit(person, program);
    return pictures;
}

} // namespace

TEST(RealSession, isThereAgainAfterARestart)
{
    const VirtualDisplay display;
    ASSERT_FALSE(display.name().isEmpty()) << "Xvfb did not start";
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
        Person person(display);
        if (!isOnCommandLine)
            person.nameFile("alt+v Left o", "^Open$", file);
        EXPECT_TRUE(person.seesPlot(first));
        person.goToExplorer();
        person.press("End Return");
        EXPECT_TRUE(person.seesPlot(second));
        quit(person, program);
    }
}

TEST(RealSession, savesTheRowsInTheOrderInWhichTheyWereDragged)
{
    const VirtualDisplay display;
    ASSERT_FALSE(display.name().isEmpty()) << "Xvfb did not start";
    const TemporaryFolder folder;
    const QString file = QString::fromStdString(folder.file("dragged.tsw"));
    Program program(display, {QString::fromStdString(sample("goland_clean_m040.ev2"))});
    Person person(display);
    EXPECT_TRUE(person.waitForColor(cyan));
    constexpr QPoint firstRow(30, 265); // in the column "Idx", the handle for dragging
    constexpr QPoint belowTheThirdRow(30, 311);
    person.drag(firstRow, belowTheThirdRow, dataArea);
    EXPECT_TRUE(person.standsStill(dataArea));
    person.nameFile("ctrl+s", "^Save", file);
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
    ASSERT_FALSE(display.name().isEmpty()) << "Xvfb did not start";
    const TemporaryFolder folder;
    const QString file = QString::fromStdString(folder.file("marks.tsw"));
    Program program(display, {QString::fromStdString(sample("goland_clean_m040.ev2"))});
    Person person(display);
    EXPECT_TRUE(person.waitForColor(cyan));
    for (const auto& [keys, title, wrong, lastKey, repair] :
         {std::tuple("alt+t Return", "Add Reference Speed", "x300", "Return", "Home Delete"),
          std::tuple("alt+t Down Down Return", "Add Damping Line", ".1", "x",
                     "BackSpace Home minus")}) {
        person.goToDataControl();
        person.press("ctrl+Home");
        EXPECT_TRUE(person.standsStill(plotArea));
        const QImage before = person.look(plotArea);
        person.inDialog(
            keys, title, [&, owner = title, text = wrong, last = lastKey, mended = repair] {
                person.press("ctrl+a");
                person.type(QString::fromLatin1(text));
                person.press(last);
                EXPECT_TRUE(person.closesBoxOf(owner)) << owner;
                person.press(mended);
                person.press("Return");
                EXPECT_TRUE(person.seesChange(plotArea, before)) << "the mark of " << owner;
                EXPECT_FALSE(person.isAsked()) << owner;
                person.press("Escape");
            });
    }
    person.nameFile("ctrl+s", "^Save", file);
    EXPECT_TRUE(waitUntil([&file] { return QFile::exists(file); }));
    EXPECT_NE(fileBytes(file.toStdString()).find("NoOfSeries=7\r\n"), std::string::npos)
        << "no curve was removed";
    quit(person, program);
}

} // namespace tarsil::test
