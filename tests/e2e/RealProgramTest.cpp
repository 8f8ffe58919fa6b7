#include "Hands.h"
#include "Program.h"

#include "analysis/XlsxReader.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>

#include <gtest/gtest.h>

namespace tarsil::test {

namespace {

const QString mainWindow = QStringLiteral("^Tarsil 4\\.0$");

QStringList keys(const char* names)
{
    return QString::fromLatin1(names).split(u' ');
}

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
    if (!office.isEmpty()
        && QProcess::execute(
               office,
               {QStringLiteral("-env:UserInstallation=file://") + out + QStringLiteral("/profile"),
                QStringLiteral("--headless"), QStringLiteral("--convert-to"), QStringLiteral("csv"),
                QStringLiteral("--outdir"), out, workbook})
            == 0) {
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

/// Whether two pictures differ within a rectangle.
bool differs(const QImage& a, const QImage& b, const QRect& rectangle)
{
    return a.copy(rectangle) != b.copy(rectangle);
}

/// Opens a dialog by keys of the Tools menu, adds a reference with Return, and closes it with
/// Escape.
void addMark(const VirtualDisplay& display, Hands& hands, const char* menuKeys, const char* title)
{
    const QImage before = display.screen();
    hands.press(keys(menuKeys));
    ASSERT_TRUE(hands.focusNew(QString::fromLatin1(title))) << title;
    hands.press(keys("Return Escape"));
    EXPECT_TRUE(waitUntil([&] { return !hands.isShown(QString::fromLatin1(title)); }));
    EXPECT_TRUE(display.waitForScreen([&before](const QImage& now) { return now != before; }))
        << title << " left its mark";
    ASSERT_TRUE(hands.focus(mainWindow));
}

void exportMixed(Hands& hands, const QString& path)
{
    ASSERT_TRUE(hands.focus(mainWindow));
    hands.press(keys("alt+f e"));
    ASSERT_TRUE(hands.focusNew(QStringLiteral("Save")));
    hands.press(keys("ctrl+a"));
    hands.type(path);
    hands.press(keys("Return"));
    EXPECT_TRUE(waitUntil([&path] { return QFile::exists(path); }));
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
    hands.press(keys("Return"));
    EXPECT_TRUE(display.waitForScreen(showsCurves));
    EXPECT_TRUE(program.isRunning());
}

TEST(RealProgram, addsReferencesWritesTheReportAndExportsByTheKeyboard)
{
    const VirtualDisplay display;
    ASSERT_FALSE(display.name().isEmpty()) << "Xvfb did not start";
    Program program(display, {QString::fromStdString(sample("goland_clean_m040.ev2"))});
    ASSERT_TRUE(display.waitForScreen(showsCurves));
    Hands hands(display.name());
    ASSERT_TRUE(hands.focusNew(mainWindow));

    addMark(display, hands, "alt+t Return", "Add Reference Speed");
    addMark(display, hands, "alt+t Down Down Return", "Add Damping Line");

    // The report asks two questions and then shows where it is, because no program opens it here.
    hands.press(keys("alt+t Down Down Down Down Return"));
    for (const char* answer : {"0", "450"}) {
        ASSERT_TRUE(hands.focusNew(QStringLiteral("^Tarsil$"))) << answer;
        hands.type(QString::fromLatin1(answer));
        hands.press(keys("Return"));
    }
    ASSERT_TRUE(hands.focusNew(QStringLiteral("^Tarsil$")));
    hands.press(keys("Return"));
    ASSERT_EQ(workbooks(program).size(), 1);
    const std::string table = readByAnotherProgram(workbooks(program).first());
    EXPECT_NE(table.find("Modal Evolution,Case,Mass"), std::string::npos) << table;
    EXPECT_NE(table.find("\ngoland_clean_m040.ev2,"), std::string::npos) << table;

    exportMixed(hands, QString::fromStdString(program.home().file("all.mix")));
    ASSERT_TRUE(waitUntil([&hands] { return !hands.isShown(QStringLiteral("Save")); }));
    ASSERT_TRUE(hands.focus(mainWindow));
    hands.press(keys("ctrl+q"));
    ASSERT_TRUE(hands.focusNew(QStringLiteral("^Tarsil$"))) << "the workspace was not saved";
    hands.press(keys("alt+d"));
    EXPECT_EQ(program.exitStatus(), 0);
}

TEST(RealProgram, keepsTheOptionsInTheSettingsOfTheUser)
{
    const VirtualDisplay display;
    ASSERT_FALSE(display.name().isEmpty()) << "Xvfb did not start";
    Program program(display, {});
    Hands hands(display.name());
    ASSERT_TRUE(hands.focusNew(mainWindow));
    hands.press(keys("alt+t Up Return")); // the last item
    ASSERT_TRUE(hands.focusNew(QStringLiteral("^Options$")));
    hands.press(keys("alt+t"));
    hands.type(QStringLiteral("4|5|2"));
    hands.press(keys("Return"));
    ASSERT_TRUE(waitUntil([&hands] { return !hands.isShown(QStringLiteral("^Options$")); }));
    ASSERT_TRUE(hands.focus(mainWindow));
    hands.press(keys("ctrl+q"));
    ASSERT_TRUE(hands.focusNew(QStringLiteral("^Tarsil$"))) << "the axes of the plot have changed";
    hands.press(keys("alt+d"));
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
    Hands hands(display.name());
    ASSERT_TRUE(hands.focusNew(mainWindow));

    // The plot window fills the right half; this position is on the plot, outside all text boxes.
    const QPoint onPlot(700, 480);
    const QRect aroundPlot(510, 60, 480, 700);
    const QImage before = display.screen();
    hands.click(onPlot, 3);
    EXPECT_TRUE(display.waitForScreen([&](const QImage& now) {
        return differs(now, before, aroundPlot);
    })) << "the menu of the plot";
    hands.press(keys("Escape"));

    // The last panel of the status bar is at its right end.
    const QRect panel(900, 775, 100, 25);
    const QImage off = display.screen();
    hands.click({930, 786});
    EXPECT_TRUE(display.waitForScreen([&](const QImage& now) { return differs(now, off, panel); }))
        << "Edit Mode";
    EXPECT_TRUE(program.isRunning());
}

} // namespace tarsil::test
