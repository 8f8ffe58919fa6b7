// SPDX-License-Identifier: Apache-2.0

// The scale of a canvas: conversion of data to pixels.

#include "plot/Canvas.h"

#include <QPoint>

#include <limits>

using namespace tarsil;
using test::errorNumberOf;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

using CanvasScale = test::Canvas;

TEST_F(CanvasScale, putsTheFirstCornerAtTheTopLeftAndTheSecondAtTheBottomRight)
{
    canvas.SetScale(200, 0.5, 700, -0.25);
    EXPECT_EQ(canvas.pixelOf(200, 0.5), QPoint(0, 0));
    EXPECT_EQ(canvas.pixelOf(700, -0.25), QPoint(100, 100));
    // 450 is half-way from 200 to 700, 0.125 half-way from 0.5 to -0.25.
    EXPECT_EQ(canvas.pixelOf(450, 0.125), QPoint(50, 50));
}

TEST_F(CanvasScale, canGrowDownwardsAndToTheLeft)
{
    canvas.SetScale(100, 0, 0, 50);
    EXPECT_EQ(canvas.pixelOf(75, 10), QPoint(25, 20));
}

TEST_F(CanvasScale, roundsTiesToEven)
{
    canvas.setGeometry({0, 0, 10, 10});
    canvas.SetScale(0, 0, 4, 4); // 2.5 pixels for each unit
    EXPECT_EQ(canvas.pixelOf(1, 1), QPoint(2, 2)); // 2.5
    EXPECT_EQ(canvas.pixelOf(3, 3), QPoint(8, 8)); // 7.5
    EXPECT_EQ(canvas.pixelOf(-1, -1), QPoint(-2, -2));
    EXPECT_EQ(canvas.pixelOf(-3, 2), QPoint(-8, 5));
}

TEST_F(CanvasScale, givesPixelsOutsideOfTheCanvasForPointsOutsideOfTheScale)
{
    EXPECT_EQ(canvas.pixelOf(-50, 130), QPoint(-50, -30));
    EXPECT_EQ(canvas.pixelOf(150, -10), QPoint(150, 110));
}

TEST_F(CanvasScale, givesFarAwayPixelsForPointsThatAreFarther)
{
    EXPECT_EQ(canvas.pixelOf(1e30, -1e30), QPoint(1 << 26, 1 << 26));
}

TEST_F(CanvasScale, staysWhenBothOrdinatesAreEqual)
{
    canvas.SetScale(3, 5, 9, 5);
    EXPECT_EQ(canvas.pixelOf(25, 75), QPoint(25, 25));
}

TEST_F(CanvasScale, isFollowedByANewSizeOfTheCanvas)
{
    canvas.setGeometry({0, 0, 200, 50});
    EXPECT_EQ(canvas.pixelOf(50, 50), QPoint(100, 25));
}

TEST_F(CanvasScale, withoutWidthIsAnErrorWhenACurveIsDrawn)
{
    canvas.SetScale(5, 1, 5, 0);
    EXPECT_THAT(drawing(), IsEmpty());
    addCurve({{1, 0, 1}, {2, 0, 1}});
    EXPECT_EQ(errorNumberOf([this] { drawing(); }), ErrorNumber::DivisionByZero);
}

TEST_F(CanvasScale, withoutWidthIsAnErrorWhenAReferenceLineIsDrawn)
{
    canvas.SetScale(5, 1, 5, 0);
    canvas.AddLine(0, 0, 1, 1, {}, 0, 0);
    EXPECT_EQ(errorNumberOf([this] { drawing(); }), ErrorNumber::DivisionByZero);
}

TEST_F(CanvasScale, drawsCurvesThatLeaveIt)
{
    addCurve({{-50, 0, 50}, {150, 0, 130}});
    EXPECT_THAT(drawing(), ElementsAre("line -50,50 150,-30 solid 0 #000000"));
}
