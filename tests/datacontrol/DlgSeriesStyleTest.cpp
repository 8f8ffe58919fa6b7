// SPDX-License-Identifier: Apache-2.0

// The small dialog for the line of a series.

#include "datacontrol/DlgSeriesStyle.h"

#include "support/FormParts.h"
#include "surface/DeviceContext.h"

#include <QComboBox>
#include <QSpinBox>

#include <gtest/gtest.h>

using namespace tarsil;
using test::partOf;

TEST(DlgSeriesStyle, showsTheLineThatItIsGiven)
{
    const LineLook look {rgb(1, 2, 3), penstyle::dashDot, 4};
    const dlgSeriesStyle dialog(look);
    EXPECT_EQ(dialog.look(), look);
    EXPECT_EQ(partOf<QPushButton>(dialog, "btnColor").text().toStdString(), "#010203");
    EXPECT_EQ(partOf<QComboBox>(dialog, "cmbStyle").currentText().toStdString(), "Dash and dot");
    EXPECT_EQ(partOf<QSpinBox>(dialog, "inpWidth").value(), 4);
}

TEST(DlgSeriesStyle, returnsWhatTheUserChose)
{
    dlgSeriesStyle dialog({0, penstyle::solid, 1});
    dialog.setColor(rgb(9, 8, 7));
    partOf<QComboBox>(dialog, "cmbStyle").setCurrentIndex(5);
    partOf<QSpinBox>(dialog, "inpWidth").setValue(3);
    EXPECT_EQ(dialog.look(), (LineLook {rgb(9, 8, 7), penstyle::none, 3}));
}

TEST(DlgSeriesStyle, showsStrangeValuesOfAFileAsTheyAreDrawn)
{
    // An unknown style is drawn solid and a width of 0 as one pixel.
    const dlgSeriesStyle dialog({0, 77, 0});
    EXPECT_EQ(dialog.look(), (LineLook {0, penstyle::solid, 1}));
    EXPECT_EQ(dlgSeriesStyle({0, 0, 500}).look().width, 500);
}

TEST(DlgSeriesStyle, namesItsControls)
{
    dlgSeriesStyle dialog({});
    dialog.show();
    EXPECT_EQ(test::accessibleName(partOf<QPushButton>(dialog, "btnColor")), "Colour");
    EXPECT_EQ(partOf<QComboBox>(dialog, "cmbStyle").accessibleName().toStdString(), "Style");
    EXPECT_EQ(test::accessibleName(partOf<QSpinBox>(dialog, "inpWidth")), "Width");
}
