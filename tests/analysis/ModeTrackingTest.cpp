// SPDX-License-Identifier: Apache-2.0
#include "analysis/ModeTracking.h"

#include "analysis/TrackedFile.h"
#include "model/EVM.h"

#include <gtest/gtest.h>

using namespace tarsil;

namespace {

struct Root
{
    float re;
    float im;
};

/// An evolution with points at 100, 110, 120 ... KEAS.
class BuiltEvolution
{
public:
    void add(const std::vector<Root>& roots)
    {
        AeMode& mode = evolution.appendMode();
        mode.Id = static_cast<std::int16_t>(evolution.Modes.size());
        for (const Root& root : roots) {
            Point point;
            point.speed = 100 + 10 * static_cast<float>(mode.Points.size());
            point.re = root.re;
            point.im = root.im;
            mode.Points.push_back(point);
        }
    }

    EVM evolution;
};

std::vector<std::size_t> modesOf(const ModeTracking& tracking, std::size_t track)
{
    std::vector<std::size_t> modes;
    for (std::size_t point = 0; point < tracking.points(); ++point)
        modes.push_back(tracking.modeAt(point, track));
    return modes;
}

} // namespace

TEST(ModeTracking, followsARootThroughACrossingOfFrequencies)
{
    // One root rises from 100 rad/s by 2 a step, the other falls from 109; printed by frequency.
    BuiltEvolution built;
    built.add({{-1, 100}, {-1, 102}, {-1, 104}, {-2, 103}, {-2, 101}});
    built.add({{-2, 109}, {-2, 107}, {-2, 105}, {-1, 106}, {-1, 108}});
    const ModeTracking tracking(built.evolution);
    EXPECT_EQ(modesOf(tracking, 0), (std::vector<std::size_t> {0, 0, 0, 1, 1}));
    EXPECT_EQ(modesOf(tracking, 1), (std::vector<std::size_t> {1, 1, 1, 0, 0}));
    EXPECT_TRUE(tracking.marks().empty());
}

TEST(ModeTracking, keepsTheLabelsOfRootsThatStayApart)
{
    BuiltEvolution built;
    built.add({{-1, 10}, {-1, 10.5F}, {-1, 11}});
    built.add({{-1, 30}, {-1, 29}, {-1, 28}});
    const ModeTracking tracking(built.evolution);
    EXPECT_EQ(modesOf(tracking, 0), (std::vector<std::size_t> {0, 0, 0}));
    EXPECT_TRUE(tracking.marks().empty());
    EXPECT_FALSE(tracking.isMarked(0, 0));
}

TEST(ModeTracking, reportsAnAmbiguousStep)
{
    // At the third point both roots are equally close to one of the predictions.
    BuiltEvolution built;
    built.add({{0, 10}, {0, 10}, {-0.5F, 10.5F}});
    built.add({{0, 11}, {0, 11}, {0.5F, 10.5F}});
    const ModeTracking tracking(built.evolution);
    ASSERT_FALSE(tracking.marks().empty());
    EXPECT_TRUE(tracking.marks().front().isAmbiguous);
    EXPECT_EQ(tracking.marks().front().step, 2U);
    EXPECT_TRUE(tracking.isMarked(1, 0));
}

TEST(ModeTracking, reportsAJumpAndPredictsNothingFromIt)
{
    BuiltEvolution built;
    built.add({{0, 10}, {0, 10.1F}, {0, 10.2F}, {0, 20}, {0, 20.1F}});
    built.add({{0, 50}, {0, 50}, {0, 50}, {0, 50}, {0, 50}});
    const ModeTracking tracking(built.evolution);
    ASSERT_EQ(tracking.marks().size(), 1U) << "none after the jump";
    EXPECT_TRUE(tracking.marks()[0].isJump);
    EXPECT_EQ(tracking.marks()[0].step, 3U);
    EXPECT_EQ(tracking.marks()[0].track, 0U);
}

TEST(ModeTracking, exchangesTwoTracksByHand)
{
    BuiltEvolution built;
    built.add({{0, 10}, {0, 10}, {0, 10}});
    built.add({{0, 50}, {0, 50}, {0, 50}});
    ModeTracking tracking(built.evolution);
    tracking.exchange(0, 1, 1);
    EXPECT_EQ(modesOf(tracking, 0), (std::vector<std::size_t> {0, 1, 1}));
    EXPECT_EQ(modesOf(tracking, 1), (std::vector<std::size_t> {1, 0, 0}));
}

TEST(ModeTracking, leavesOneModeAlone)
{
    BuiltEvolution built;
    built.add({{0, 10}, {0, 90}});
    EXPECT_TRUE(ModeTracking(built.evolution).marks().empty());
}

TEST(ModeTracking, reportsWhatPreventsIt)
{
    BuiltEvolution unequal;
    unequal.add({{0, 10}, {0, 90}});
    unequal.add({{0, 10}});
    EXPECT_EQ(ModeTracking::obstacle(unequal.evolution),
              "its modes have unequal numbers of points");
    BuiltEvolution empty;
    empty.add({{0, 0}, {0, 0}});
    EXPECT_FALSE(ModeTracking::obstacle(empty.evolution)) << "one mode is never exchanged";
    empty.add({{0, 0}, {0, 0}});
    EXPECT_EQ(ModeTracking::obstacle(empty.evolution), "its points have no eigenvalues");
    BuiltEvolution good;
    good.add({{0, 10}});
    EXPECT_FALSE(ModeTracking::obstacle(good.evolution));
}

TEST(TrackingDoubts, nameTheModeAndTheNearestOneAfterTheStep)
{
    // The first root jumps from 104 to 300 rad/s, nearest to the third one.
    BuiltEvolution built;
    built.add({{-1, 100}, {-1, 102}, {-1, 104}, {-1, 300}});
    built.add({{-2, 5}, {-2, 5}, {-2, 5}, {-2, 5}});
    built.add({{-2, 400}, {-2, 400}, {-2, 400}, {-2, 400}});
    const std::vector<TrackingDoubt> doubts = doubtsOf(built.evolution);
    ASSERT_EQ(doubts.size(), 1U);
    EXPECT_EQ(doubts[0].mode, 1);
    EXPECT_EQ(doubts[0].nearestMode, 3);
    EXPECT_EQ(doubts[0].fromSpeed, 120);
    EXPECT_EQ(doubts[0].toSpeed, 130);
    EXPECT_TRUE(doubts[0].isJump);
    EXPECT_FALSE(doubts[0].isAmbiguous);
}

TEST(TrackingDoubts, areNoneWithoutEigenvaluesOrASecondMode)
{
    BuiltEvolution built;
    built.add({{-1, 100}, {-1, 500}, {-1, 104}});
    EXPECT_TRUE(doubtsOf(built.evolution).empty());
    EXPECT_TRUE(doubtsOf(EVM()).empty());
    BuiltEvolution flat;
    flat.add({{0, 0}, {0, 0}});
    flat.add({{0, 0}, {0, 0}});
    EXPECT_TRUE(doubtsOf(flat.evolution).empty());
}
