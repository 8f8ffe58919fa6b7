// SPDX-License-Identifier: Apache-2.0
#include "model/EVM.h"
#include "support/Errors.h"

#include <gtest/gtest.h>

namespace tarsil {

namespace {

void addPoint(AeMode& mode, float speed, bool hasFactors)
{
    Point& point = mode.Points.emplace_back();
    point.speed = speed;
    point.G = speed + 1;
    for (int i = 0; hasFactors && i < 5; ++i)
        point.mpf.append(static_cast<float>(i));
    point.Parent = &mode;
}

void makeTwoModes(EVM& evolution)
{
    evolution.isNewFormat = true;
    evolution.Param.Airplane = "GOLAND";
    evolution.na = 2;
    evolution.numberOfSpeeds = 2;
    AeMode& first = evolution.appendMode();
    first.Id = 1;
    first.Tag = "B1";
    addPoint(first, 5, true);
    addPoint(first, 5, true);
    AeMode& second = evolution.appendMode();
    second.Id = 5;
    addPoint(second, 5, false);
}

void expectSameValues(const AeMode& a, const AeMode& b)
{
    EXPECT_EQ(a.Id, b.Id);
    EXPECT_EQ(a.Tag, b.Tag);
    ASSERT_EQ(a.Points.size(), b.Points.size());
    for (std::size_t i = 0; i < a.Points.size(); ++i) {
        EXPECT_NE(&a.Points[i], &b.Points[i]);
        EXPECT_EQ(a.Points[i].speed, b.Points[i].speed);
        EXPECT_EQ(a.Points[i].G, b.Points[i].G);
        EXPECT_EQ(a.Points[i].mpf.size(), b.Points[i].mpf.size());
    }
}

TEST(Point, copiesItsEightValuesFactorsAndParentOnClone)
{
    AeMode mode;
    Point source;
    source.kfreq = 1;
    source.re = 2;
    source.im = 3;
    source.speed = 4;
    source.G = 5;
    source.f = 6;
    source.mach = 7;
    source.sigma = 8;
    source.mpf.append(0.5F);
    source.mpf.append(0.25F);
    source.Parent = &mode;
    Point copy;
    copy.mpf.append(9);
    copy.Clone(source);
    EXPECT_EQ(copy.kfreq, 1);
    EXPECT_EQ(copy.re, 2);
    EXPECT_EQ(copy.im, 3);
    EXPECT_EQ(copy.speed, 4);
    EXPECT_EQ(copy.G, 5);
    EXPECT_EQ(copy.f, 6);
    EXPECT_EQ(copy.mach, 7);
    EXPECT_EQ(copy.sigma, 8);
    ASSERT_EQ(copy.mpf.size(), 2U);
    EXPECT_EQ(copy.mpf[0], 0.5F);
    EXPECT_EQ(copy.mpf[1], 0.25F);
    EXPECT_EQ(copy.Parent, &mode);
    copy.Clone(copy);
    EXPECT_EQ(copy.mpf.size(), 2U);
}

TEST(Point, holdsFiveFactorsAtMost)
{
    Point point;
    for (int i = 0; i < 5; ++i)
        point.mpf.append(static_cast<float>(i));
    const auto error = test::errorOf([&] { point.mpf.append(5); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->number(), ErrorNumber::SubscriptOutOfRange);
}

TEST(Point, costsSixtyFourBytes)
{
    EXPECT_EQ(sizeof(Point), 64U);
}

TEST(EVM, sharesNoPointAfterChange)
{
    EVM source;
    makeTwoModes(source);
    EVM changed;
    changed.FileName = "kept.evm";
    changed.Param.Airplane = "kept";
    changed.Change(source);
    EXPECT_EQ(changed.FileName, "kept.evm");
    EXPECT_EQ(changed.Param.Airplane, "kept");
    EXPECT_EQ(changed.numberOfSpeeds, 2);
    EXPECT_EQ(changed.na, 2);
    EXPECT_TRUE(changed.isNewFormat);
    ASSERT_EQ(changed.Modes.size(), 2U);
    for (std::size_t i = 0; i < 2; ++i) {
        expectSameValues(*changed.Modes[i], *source.Modes[i]);
        EXPECT_EQ(changed.Modes[i]->Parent, &changed);
        for (const Point& point : changed.Modes[i]->Points)
            EXPECT_EQ(point.Parent, changed.Modes[i].get());
    }
    changed.Modes[0]->Points[0].G = 99;
    EXPECT_EQ(source.Modes[0]->Points[0].G, 6.0F);
}

TEST(EVM, mayChangeToItself)
{
    EVM evolution;
    makeTwoModes(evolution);
    evolution.Change(evolution);
    ASSERT_EQ(evolution.Modes.size(), 2U);
    EXPECT_EQ(evolution.Modes[0]->Points[1].mpf.size(), 5U);
    EXPECT_EQ(evolution.Param.Airplane, "GOLAND");
}

} // namespace

} // namespace tarsil
