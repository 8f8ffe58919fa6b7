// SPDX-License-Identifier: Apache-2.0

// The reference speeds and the damping lines of a V-g-f plot.

#include "support/Errors.h"
#include "vgfplot/EvmPlot.h"

#include <gtest/gtest.h>

using namespace tarsil;
using test::errorNumberOf;

TEST(PlotReferences, keepReferenceSpeedsOnTheSpeedAxis)
{
    EvmPlot plot;
    plot.references().AddRef(350, QStringLiteral("Vd"));
    plot.references().AddRef(400, QStringLiteral("1.15 Vd"));
    ASSERT_EQ(plot.parts().velAxis.marks().size(), 2U);
    EXPECT_EQ(plot.parts().velAxis.marks()[1].Speed, 400.0F);
    EXPECT_EQ(plot.parts().velAxis.marks()[1].Caption, QStringLiteral("1.15 Vd"));
    plot.references().RemoveRef();
    EXPECT_TRUE(plot.parts().velAxis.marks().empty());
}

TEST(PlotReferences, addDampingLinesAcrossTheWholeSpeedRange)
{
    EvmPlot plot;
    plot.SetScale(50, 650, 0, 50, 0, -0.25F);
    plot.references().AddDampLine(0.02F, QStringLiteral("g = 2 %"));
    ASSERT_EQ(plot.parts().vgPlot.lines().size(), 1U);
    const RefLine& line = plot.parts().vgPlot.lines()[0];
    EXPECT_EQ(line.X1, 50.0F);
    EXPECT_EQ(line.X2, 650.0F);
    EXPECT_EQ(line.Y1, 0.02F);
    EXPECT_EQ(line.Y2, 0.02F);
    EXPECT_EQ(line.Caption, QStringLiteral("g = 2 %"));
    EXPECT_EQ(line.LineWidth, 0);
    EXPECT_TRUE(plot.parts().vfPlot.lines().empty());
}

TEST(PlotReferences, removeAllDampingLines)
{
    EvmPlot plot;
    plot.references().AddDampLine(0.02F, {});
    plot.references().AddDampLine(0.03F, {});
    plot.references().RemoveDampLine();
    EXPECT_TRUE(plot.parts().vgPlot.lines().empty());
    plot.references().RemoveDampLine();
}

TEST(PlotReferences, reportReferenceSpeedsThatAreNotAtTheirSpeeds)
{
    EvmPlot plot;
    plot.SetScale(100, 500, 0, 20, 0, -0.5F);
    EXPECT_EQ(plot.references().shiftNote(), QString()) << "there is none";
    plot.references().AddRef(350, QStringLiteral("VD"));
    // On an axis from 100 to 500 the mark of 350 is drawn at 350 / 400 of the width, where 450 is.
    EXPECT_EQ(
        plot.references().shiftNote(),
        QStringLiteral("Reference speeds are drawn 100 knots too far right: the speed axis begins "
                       "at 100"));
    plot.SetScale(-52.5F, 500, 0, 20, 0, -0.5F);
    EXPECT_EQ(
        plot.references().shiftNote(),
        QStringLiteral("Reference speeds are drawn 52.5 knots too far left: the speed axis begins "
                       "at -52.5"));
    plot.SetScale(0, 500, 0, 20, 0, -0.5F);
    EXPECT_EQ(plot.references().shiftNote(), QString());
}

TEST(PlotReferences, areReplacedTogether)
{
    EvmPlot plot;
    plot.SetScale(50, 650, 0, 50, 0, -0.25F);
    plot.references().AddRef(100, QStringLiteral("old"));
    plot.references().AddDampLine(0.02F, QStringLiteral("old"));
    const std::vector<RefThick> speeds = {{350, QStringLiteral("Vd")}, {400, {}}};
    plot.references().setReferenceSpeeds(speeds);
    plot.references().setDampingLines({{0.01F, QStringLiteral("g")}, {0.03F, {}}});
    EXPECT_EQ(plot.references().referenceSpeeds(), speeds);
    ASSERT_EQ(plot.references().dampingLines().size(), 2U);
    EXPECT_EQ(plot.references().dampingLines()[0].Caption, QStringLiteral("g"));
    EXPECT_EQ(plot.references().dampingLines()[1].Y1, 0.03F);
    EXPECT_EQ(plot.references().dampingLines()[1].X2, 650.0F);
}

TEST(PlotReferences, giveDampingLinesBackWithTheirOwnEnds)
{
    EvmPlot plot;
    plot.references().AddDampLine(0.02F, QStringLiteral("g"));
    const std::vector<RefLine> lines = plot.references().dampingLines();
    plot.SetScale(50, 650, 0, 50, 0, -0.25F);
    plot.references().setDampingLines({});
    plot.references().restoreDampingLines(lines);
    EXPECT_EQ(plot.references().dampingLines(), lines);
    EXPECT_EQ(plot.references().dampingLines()[0].X2, 700.0F);
}

TEST(PlotReferences, raiseTheErrorOfAnAxisThatCannotBeDrawnOnce)
{
    EvmPlot plot;
    plot.properties().setVthicks(0);
    EXPECT_TRUE(errorNumberOf([&plot] { plot.Image(); }));
    EXPECT_EQ(errorNumberOf([&plot] { plot.references().AddRef(350, {}); }),
              ErrorNumber::DivisionByZero);
    EXPECT_EQ(plot.references().referenceSpeeds().size(), 1U);
    EXPECT_EQ(errorNumberOf([&plot] { plot.Image(); }), std::nullopt);
}
