// SPDX-License-Identifier: Apache-2.0

// The command "Break Curves at Jumps".

#include "app/WndMainFixture.h"

#include "document/Document.h"

#include <gtest/gtest.h>

using namespace tarsil;
using test::WndMainTest;

TEST_F(WndMainTest, breaksTheCurvesOfTheActivePlotAsAStepThatCanBeUndone)
{
    load();
    EXPECT_FALSE(plot().properties().breaksAtJumps());
    choose("breakCurves");
    EXPECT_TRUE(plot().properties().breaksAtJumps());
    auto* const menu = window.findChild<QMenu*>(QStringLiteral("popFormat"));
    Q_EMIT menu->aboutToShow();
    EXPECT_TRUE(action("popBreakCurves").isChecked());
    window.document().history().undo();
    EXPECT_FALSE(plot().properties().breaksAtJumps());
    Q_EMIT menu->aboutToShow();
    EXPECT_FALSE(action("popBreakCurves").isChecked());
}
