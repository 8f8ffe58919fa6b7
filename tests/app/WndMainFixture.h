// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "app/StatusPanels.h"
#include "app/WndMain.h"
#include "plotwindow/EvmPlotView.h"
#include "plotwindow/WndEvolPlot.h"
#include "support/ScriptedUserInterface.h"
#include "support/TestFiles.h"

#include <QAction>
#include <QApplication>
#include <QMdiArea>
#include <QMenu>

#include <gtest/gtest.h>

namespace tarsil::test {

/// The visible main window with a scripted user.
class WndMainTest : public ::testing::Test
{
protected:
    WndMainTest()
        : window(
            user,
            [this](const QString& file) {
                opened.append(file);
                return canOpen;
            },
            OptionsStore(folder.file("tarsil.ini")))
    {
        window.setReportFolder(QString::fromStdString(folder.file("documents")));
        window.resize(1000, 700);
        window.show();
        QApplication::processEvents();
    }

    void load(const std::vector<std::string>& arguments = {})
    {
        window.MDIForm_Load(arguments);
        QApplication::processEvents();
    }

    QAction& action(const char* name)
    {
        auto* const found = window.findChild<QAction*>(QString::fromLatin1(name));
        EXPECT_NE(found, nullptr) << name;
        return *found;
    }

    /// Chooses a command from its menu.
    void choose(const char* name)
    {
        action(name).trigger();
        QApplication::processEvents();
    }

    ChildFrame& frame(const char* content)
    {
        return *window.findChild<ChildFrame*>(QString::fromLatin1(content)
                                              + QStringLiteral("Frame"));
    }

    EvmPlot& plot() { return *window.evolPlot().ActivePlot(); }
    QSize inner() { return window.findChild<QMdiArea*>()->viewport()->size(); }

    TemporaryFolder folder;
    ScriptedUserInterface user;
    QStringList opened; ///< files opened in other programs
    bool canOpen = true;
    wndMain window;
};

} // namespace tarsil::test
