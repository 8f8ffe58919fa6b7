// SPDX-License-Identifier: Apache-2.0
#include "plotwindow/WarningColor.h"

#include "support/Contrast.h"

#include <QPalette>

#include <gtest/gtest.h>

using namespace tarsil;

TEST(WarningColor, isReadableOnTheGroundsOfUsualDesktops)
{
    // Base and window of Fusion, Breeze, Adwaita and Yaru, light and dark.
    for (const char* ground : {"#ffffff", "#efefef", "#fcfcfc", "#eff0f1", "#fafafa", "#f6f5f4",
                               "#353535", "#232629", "#31363b", "#1b1e20", "#2d2d2d", "#353535"}) {
        QPalette palette;
        palette.setColor(QPalette::Base, QColor(ground));
        EXPECT_GE(test::contrast(warningColor(palette), QColor(ground)), 4.5) << ground;
    }
}
