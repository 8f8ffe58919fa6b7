// SPDX-License-Identifier: Apache-2.0

// The plot by the mouse, and by the keyboard alone.

#include "CurveColors.h"
#include "Person.h"
#include "Program.h"

#include "support/TestFiles.h"

#include <QDir>
#include <QFile>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarsil::test {

namespace {

using ::testing::HasSubstr;

constexpr int left = 1;
constexpr int middle = 2;

class PlotRound : public ::testing::Test
{
protected:
    PlotRound()
        : program(display, {QString::fromStdString(sample("goland_clean_m040.ev2"))}),
          person(display, program)
    {
        start = person.plotWith(cyan);
    }

    void undo()
    {
        person.choose("EditMenu", "mnuUndo");
        person.clickOn("stBar_Status"); // the pointer leaves the plot
    }

    /// Keeps a picture of the plot for the eye, if TARSIL_LOOK names a folder.
    void keep(const char* name)
    {
        const QString pictures = qEnvironmentVariable("TARSIL_LOOK");
        if (!pictures.isEmpty()) {
            EXPECT_TRUE(person.look({0, 0, 1000, 800})
                            .save(QDir(pictures).filePath(QString::fromLatin1(name))));
        }
    }

    std::string savedWorkspace()
    {
        const QString file = QString::fromStdString(folder.file("plot.tsw"));
        person.nameFile([this] { person.press("ctrl+s"); }, "^Save", file);
        EXPECT_TRUE(waitUntil([&file] { return QFile::exists(file); }));
        return fileBytes(file.toStdString());
    }

    void quit()
    {
        person.press("ctrl+q");
        EXPECT_EQ(program.exitStatus(), 0) << (person.isAsked() ? "it asked" : "");
    }

    const VirtualDisplay display;
    const TemporaryFolder folder;
    Program program;
    Person person;
    QImage start; ///< the plot at the begin
};

} // namespace

TEST_F(PlotRound, zoomsPansAndFitsByTheMouse)
{
    person.dragInPlot({0.3, 0.2}, {0.6, 0.4}, left);
    keep("zoomed.png");
    undo();
    EXPECT_TRUE(person.seesPlot(start));
    person.turnWheel({0.5, 0.3});
    person.turnWheel({0.5, 0.3});
    keep("wheel.png");
    person.dragInPlot({0.6, 0.3}, {0.4, 0.3}, middle);
    keep("panned.png");
    person.doubleClickInPlot({0.7, 0.9});
    person.clickOn("stBar_Status"); // the pointer leaves the plot
    EXPECT_TRUE(person.seesPlot(start)) << "fitted";
    person.doubleClickInPlot({0.07, 0.3});
    person.fill("axisMax", QStringLiteral("40"));
    keep("axis.png");
    person.press("Return");
    EXPECT_TRUE(person.standsStill(person.plot()));
    const std::string saved = savedWorkspace();
    const std::string frequencies = std::string("freqAxis=f(Hz)") + '\0' + "0" + '\0' + "40" + '\0';
    EXPECT_NE(saved.find(frequencies), std::string::npos) << saved;
    quit();
}

TEST_F(PlotRound, choosesCurvesByTheMouse)
{
    const QPoint curve = person.pixelOf(blue);
    person.clickAt(curve);
    EXPECT_TRUE(person.seesChange(person.plot(), start));
    keep("selected.png");
    person.chooseAt(curve, "curveHide");
    person.plotWith(blue, false);
    undo();
    EXPECT_TRUE(person.waitForColor(blue));
    person.clickAt(curve);
    person.press("Delete");
    person.plotWith(blue, false);
    const std::string saved = savedWorkspace();
    EXPECT_NE(saved.find("NoOfSeries=6\r\n"), std::string::npos) << saved;
    quit();
}

TEST_F(PlotRound, isWorkedByTheKeyboardAlone)
{
    person.press("alt+v Up Return"); // the last entry is the plot
    person.press("Right Right Down");
    EXPECT_TRUE(person.seesChange(person.plot(), start));
    EXPECT_TRUE(person.standsStill(person.plot()));
    keep("cursor.png");
    person.press("Escape Tab F2 ctrl+a");
    person.type(QStringLiteral("By keys"));
    person.press("ctrl+Return Tab F2");
    person.type(QStringLiteral("a legend"));
    keep("editor.png");
    person.press("ctrl+Return Escape Down Down Delete");
    EXPECT_TRUE(person.standsStill(person.plot()));
    keep("keys.png");
    const std::string saved = savedWorkspace();
    EXPECT_THAT(saved, HasSubstr("By keys"));
    EXPECT_THAT(saved, HasSubstr("a legend"));
    EXPECT_NE(saved.find("NoOfSeries=6\r\n"), std::string::npos) << saved;
    quit();
}

} // namespace tarsil::test
