// SPDX-License-Identifier: Apache-2.0

// The axes and canvases of a V-g-f plot agree: a point with the value of a tick falls on the pixel
// of that tick, in every size, for all bounds and tick counts.

#include "support/RecordingContext.h"
#include "vgfplot/EvmPlot.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

using namespace tarsil;
using test::RecordingContext;

namespace {

/// A plot and its recorded drawing. Tick k is a stroke after the axis line, the end stroke and
/// earlier ticks.
class Ticks
{
public:
    Ticks(QSize size, const PlotAxes& axes) : m_axes(axes)
    {
        plot.resize(size);
        plot.setAxes(axes);
        plot.Draw(m_record);
    }

    /// Compares all ticks of the three axes with points of their values.
    void expectAgreement() const
    {
        for (int k = 1; k < m_axes.speed.ticks; ++k) {
            const float speed =
                tickValue(m_axes.speed.min, m_axes.speed.max, m_axes.speed.ticks, k);
            for (const ucPlot* canvas : {&plot.parts().vgPlot, &plot.parts().vfPlot})
                ASSERT_EQ(canvas->Left() + canvas->pixelOf(speed, 0).x(),
                          tick(plot.parts().velAxis, k).x())
                    << "speed " << speed;
        }
        for (int k = 1; k < m_axes.frequency.ticks; ++k) { // Max is at the top
            const float frequency =
                tickValue(m_axes.frequency.max, m_axes.frequency.min, m_axes.frequency.ticks, k);
            ASSERT_EQ(plot.parts().vfPlot.Top() + plot.parts().vfPlot.pixelOf(0, frequency).y(),
                      tick(plot.parts().freqAxis, k).y())
                << "frequency " << frequency;
        }
        for (int k = 1; k < m_axes.damping.ticks; ++k) { // Min is at the top
            const float damping =
                tickValue(m_axes.damping.min, m_axes.damping.max, m_axes.damping.ticks, k);
            ASSERT_EQ(plot.parts().vgPlot.Top() + plot.parts().vgPlot.pixelOf(0, damping).y(),
                      tick(plot.parts().gAxis, k).y())
                << "damping " << damping;
        }
    }

    /// The row of the speed axis and of damping gmin.
    int speedAxisRow() const
    {
        return m_record.strokesFrom(plot.parts().velAxis.geometry().topLeft())[0].from.y();
    }
    int rowOfDamping(double g) const
    {
        return plot.parts().vgPlot.Top() + plot.parts().vgPlot.pixelOf(0, g).y();
    }

    EvmPlot plot;

private:
    static float tickValue(double first, double last, int count, int k)
    {
        return static_cast<float>(first + k * ((last - first) / count));
    }

    /// The end of tick k that is nearest to the axis' left or upper end.
    QPoint tick(const PlotControl& axis, int k) const
    {
        return m_record.strokesFrom(axis.geometry().topLeft())
            .at(static_cast<std::size_t>(k) + 1)
            .from;
    }

    PlotAxes m_axes;
    RecordingContext m_record;
};

/// Bounds and counts as people type them, and others.
class RandomPlots
{
public:
    int whole(int low, int high) { return std::uniform_int_distribution<int>(low, high)(m_random); }
    float number(double low, double high)
    {
        return static_cast<float>(std::uniform_real_distribution<double>(low, high)(m_random));
    }
    std::int16_t count() { return static_cast<std::int16_t>(whole(1, 20)); }
    PlotTicks counts() { return {count(), count(), count()}; }
    QSize size() { return {whole(200, 2500), whole(150, 1600)}; }

    PlotBounds roundBounds()
    {
        const auto vmin = static_cast<float>(whole(0, 10) * 25);
        const auto fmin = static_cast<float>(whole(0, 20));
        return {vmin,
                vmin + static_cast<float>(whole(1, 40) * 25),
                fmin,
                fmin + static_cast<float>(whole(1, 100)),
                static_cast<float>(whole(-4, 4)) * 0.05F,
                -static_cast<float>(whole(5, 20)) * 0.05F};
    }

    PlotBounds anyBounds()
    {
        const float vmin = number(0, 300);
        const float fmin = number(0, 40);
        return {vmin,
                vmin + number(10, 1000),
                fmin,
                fmin + number(1, 100),
                number(-0.2, 0.2),
                number(-1.5, -0.3)};
    }

private:
    std::mt19937 m_random {20240229};
};

std::string plotText(QSize size, const PlotAxes& axes)
{
    std::string text = std::to_string(size.width()) + " x " + std::to_string(size.height()) + ", ";
    for (const float bound : axes.bounds())
        text += std::to_string(bound) + " ";
    for (const int count : axes.ticks())
        text += std::to_string(count) + " ";
    return text;
}

PlotAxes axesWith(const PlotBounds& bounds, const PlotTicks& ticks)
{
    PlotAxes axes;
    axes.setBounds(bounds);
    axes.setTicks(ticks);
    return axes;
}

void expectAgreement(QSize size, const PlotAxes& axes)
{
    SCOPED_TRACE(plotText(size, axes));
    Ticks(size, axes).expectAgreement();
}

} // namespace

TEST(EvmPlotTicks, agreeWithTheCurvesInEverySize)
{
    for (int height = 150; height < 450 && !::testing::Test::HasFailure(); ++height)
        expectAgreement({height + 100, height}, {});
}

TEST(EvmPlotTicks, agreeWithTheCurvesForRoundBounds)
{
    RandomPlots random;
    for (int i = 0; i < 400 && !::testing::Test::HasFailure(); ++i)
        expectAgreement(random.size(), axesWith(random.roundBounds(), random.counts()));
}

TEST(EvmPlotTicks, agreeWithTheCurvesForAnyBounds)
{
    RandomPlots random;
    for (int i = 0; i < 400 && !::testing::Test::HasFailure(); ++i)
        expectAgreement(random.size(), axesWith(random.anyBounds(), random.counts()));
}

TEST(EvmPlotTicks, haveTheLowestDampingOnTheSpeedAxisInEverySize)
{
    RandomPlots random;
    for (int i = 0; i < 100; ++i) {
        const Ticks ticks(random.size(), axesWith({0, 700, 0, 50, 0.05F, -0.25F}, {7, 5, 5}));
        ASSERT_EQ(ticks.rowOfDamping(0.05F), ticks.speedAxisRow());
    }
}

TEST(EvmPlotTicks, showADampingBeyondTheLowestAboveTheSpeedAxis)
{
    const Ticks ticks({800, 600}, {});
    // The axis is row 330, and 0.25 is 252 pixels: 0.125 is 126.
    EXPECT_EQ(ticks.speedAxisRow(), 330);
    EXPECT_EQ(ticks.rowOfDamping(0.125), 204);
    EXPECT_EQ(ticks.rowOfDamping(-0.125), 456);
}
