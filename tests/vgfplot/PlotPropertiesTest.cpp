// SPDX-License-Identifier: Apache-2.0

// The persistent properties of a V-g-f plot.

#include "vgfplot/AllProperties.h"
#include "vgfplot/EvmPlot.h"

#include <gtest/gtest.h>

using namespace tarsil;

namespace {

const QStringList propertyKeys = {QStringLiteral("Caption"), QStringLiteral("ModeColor"),
                                  QStringLiteral("vThicks"), QStringLiteral("gThicks"),
                                  QStringLiteral("fThicks"), QStringLiteral("vLabel"),
                                  QStringLiteral("gLabel"),  QStringLiteral("fLabel")};

PropertyBag defaultProperties()
{
    return {{QStringLiteral("Caption"), QStringLiteral("Plot1")},
            {QStringLiteral("ModeColor"), 0},
            {QStringLiteral("vThicks"), 7},
            {QStringLiteral("gThicks"), 5},
            {QStringLiteral("fThicks"), 5},
            {QStringLiteral("vLabel"), QStringLiteral("V(keas)")},
            {QStringLiteral("gLabel"), QStringLiteral("g")},
            {QStringLiteral("fLabel"), QStringLiteral("f(Hz)")}};
}

} // namespace

TEST(PlotProperties, haveTheirDefaultsUnderTheirKeys)
{
    const EvmPlot plot;
    EXPECT_EQ(plot.properties().WriteProperties(), defaultProperties());
    EXPECT_TRUE(plot.properties().changedProperties().isEmpty());
}

TEST(PlotProperties, showTheirDefaultsOnTheParts)
{
    const EvmPlot plot;
    EXPECT_EQ(plot.parts().velAxis.nThick(), 7);
    EXPECT_EQ(plot.parts().gAxis.nThick(), 5);
    EXPECT_EQ(plot.parts().freqAxis.nThick(), 5);
    EXPECT_EQ(plot.parts().velAxisLabel.Caption(), QStringLiteral("V(keas)"));
    EXPECT_EQ(plot.parts().gAxisLabel.Caption(), QStringLiteral("g"));
    EXPECT_EQ(plot.parts().freqAxislabel.Caption(), QStringLiteral("f(Hz)"));
    EXPECT_EQ(plot.parts().gAxis.ThickFormat(), QStringLiteral("0.00#"));
    EXPECT_EQ(plot.parts().freqAxis.ThickFormat(), QStringLiteral("0.0#"));
    EXPECT_TRUE(plot.parts().gAxis.Direction());
    EXPECT_FALSE(plot.parts().freqAxis.Direction());
    EXPECT_EQ(plot.parts().vgPlot.PlotType(), plottype::dampingOverSpeed);
    EXPECT_EQ(plot.parts().vfPlot.PlotType(), plottype::frequencyOverSpeed);
}

TEST(PlotProperties, areForwardedToThePartsThatShowThem)
{
    EvmPlot plot;
    test::setAllProperties(plot);
    EXPECT_EQ(plot.parts().velAxis.nThick(), 8);
    EXPECT_EQ(plot.parts().gAxis.nThick(), 9);
    EXPECT_EQ(plot.parts().freqAxis.nThick(), 10);
    EXPECT_EQ(plot.parts().velAxisLabel.Caption(), QStringLiteral("speed"));
    EXPECT_EQ(plot.parts().gAxisLabel.Caption(), QStringLiteral("damping"));
    EXPECT_EQ(plot.parts().freqAxislabel.Caption(), QStringLiteral("frequency"));
    EXPECT_EQ(plot.parts().vgPlot.ModeColor(), QVariant(3));
    EXPECT_EQ(plot.parts().vfPlot.ModeColor(), QVariant(3));
}

TEST(PlotProperties, areMarkedAsChangedWhenTheyAreSet)
{
    EvmPlot plot;
    plot.properties().setGthicks(5);
    EXPECT_TRUE(plot.properties().changedProperties().contains(QStringLiteral("gThicks")));
    EXPECT_FALSE(plot.properties().changedProperties().contains(QStringLiteral("vThicks")));
    test::setAllProperties(plot);
    for (const QString& key : propertyKeys)
        EXPECT_TRUE(plot.properties().changedProperties().contains(key)) << key.toStdString();
}

TEST(PlotProperties, areReadBackFromTheBagThatTheyWrote)
{
    EvmPlot plot;
    test::setAllProperties(plot);
    EvmPlot copy;
    copy.properties().ReadProperties(plot.properties().WriteProperties());
    EXPECT_EQ(copy.properties().WriteProperties(), plot.properties().WriteProperties());
    EXPECT_EQ(copy.properties().vLabel(), QStringLiteral("speed"));
    EXPECT_EQ(copy.properties().fthicks(), 10);
}

TEST(PlotProperties, haveAKeyForBrokenCurvesOnlyWhereTheyAreWanted)
{
    EvmPlot plot;
    plot.properties().setBreaksAtJumps(true);
    EXPECT_TRUE(plot.parts().vfPlot.breaksAtJumps());
    EXPECT_TRUE(plot.parts().vgPlot.breaksAtJumps());
    EvmPlot copy;
    copy.properties().ReadProperties(plot.properties().WriteProperties());
    EXPECT_TRUE(copy.properties().breaksAtJumps());
    copy.properties().ReadProperties(defaultProperties());
    EXPECT_FALSE(copy.properties().breaksAtJumps());
    EXPECT_EQ(copy.properties().WriteProperties(), defaultProperties());
}

TEST(PlotProperties, haveTheDefaultForEveryKeyThatABagDoesNotHave)
{
    EvmPlot plot;
    test::setAllProperties(plot);
    plot.properties().ReadProperties({{QStringLiteral("gLabel"), QStringLiteral("G")}});
    PropertyBag expected = defaultProperties();
    expected[QStringLiteral("gLabel")] = QStringLiteral("G");
    EXPECT_EQ(plot.properties().WriteProperties(), expected);
}

TEST(PlotProperties, setTicksAndTitlesOfAllAxesTogether)
{
    EvmPlot plot;
    const PlotAxes axes {{"V", 0, 1, 3}, {"F", 0, 1, 4}, {"G", 0, 1, 6}};
    plot.properties().setAxes(axes);
    EXPECT_EQ(plot.axes().ticks(), axes.ticks());
    EXPECT_EQ(plot.properties().vLabel(), QStringLiteral("V"));
    EXPECT_EQ(plot.properties().fLabel(), QStringLiteral("F"));
    EXPECT_EQ(plot.properties().gLabel(), QStringLiteral("G"));
    EXPECT_EQ(plot.axes().bounds(), PlotAxes().bounds()) << "they are no properties";
}
