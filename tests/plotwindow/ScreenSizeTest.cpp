// SPDX-License-Identifier: Apache-2.0
#include "plotwindow/ScreenSize.h"

#include <QScreen>
#include <QWidget>

#include <gtest/gtest.h>

using namespace tarsil;

TEST(ScreenSize, leavesRoomForTheBarsOfADesktop)
{
    const QWidget window;
    const QSize screen = window.screen()->availableSize();
    EXPECT_EQ(sizeOnScreen(window, {300, 200}), QSize(300, 200));
    EXPECT_EQ(sizeOnScreen(window, {300, 10 * screen.height()}),
              QSize(300, screen.height() * 9 / 10));
    EXPECT_EQ(sizeOnScreen(window, 2 * screen), screen * 9 / 10);
}
