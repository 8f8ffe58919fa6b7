// SPDX-License-Identifier: Apache-2.0
#include "plot/CurvePalette.h"

#include "plot/Series.h"
#include "surface/DeviceContext.h"

#include <gmock/gmock.h>

#include <set>

using namespace tarsil;
using ::testing::ElementsAre;

namespace {

/// The looks of the first rows.
std::vector<Series> looks(CurvePalette palette, std::size_t count)
{
    std::vector<Series> all(count);
    for (std::size_t row = 0; row < count; ++row)
        applyPalette(all[row], palette, row);
    return all;
}

std::vector<ColorValue> colorsOf(const std::vector<Series>& all)
{
    std::vector<ColorValue> colors;
    for (const Series& one : all)
        colors.push_back(one.ColorIndex);
    return colors;
}

std::vector<int> stylesOf(const std::vector<Series>& all)
{
    std::vector<int> styles;
    for (const Series& one : all)
        styles.push_back(one.LineStyle);
    return styles;
}

} // namespace

TEST(CurvePalette, usesTheBaseColoursInTurn)
{
    const std::vector<Series> all = looks(CurvePalette::Standard, 9);
    for (std::size_t row = 0; row < all.size(); ++row)
        EXPECT_EQ(all[row].ColorIndex, BaseColors[row % 7]) << row;
}

TEST(CurvePalette, usesThePublishedColoursWithoutYellow)
{
    // Wong, Nature Methods 8, 441 (2011), figure 2: black, blue, vermillion, bluish green, orange,
    // reddish purple, sky blue.
    EXPECT_THAT(colorsOf(looks(CurvePalette::ColorBlind, 8)),
                ElementsAre(rgb(0, 0, 0), rgb(0, 114, 178), rgb(213, 94, 0), rgb(0, 158, 115),
                            rgb(230, 159, 0), rgb(204, 121, 167), rgb(86, 180, 233), rgb(0, 0, 0)));
}

TEST(CurvePalette, usesBlackLinesOfFiveStyles)
{
    const std::vector<Series> all = looks(CurvePalette::LineStyles, 6);
    for (const ColorValue color : colorsOf(all))
        EXPECT_EQ(color, 0);
    const std::vector<int> styles = stylesOf(all);
    EXPECT_EQ(std::set<int>(styles.begin(), styles.end()).size(), 5U);
    EXPECT_EQ(styles[0], penstyle::solid);
    EXPECT_EQ(styles[5], styles[0]);
}

TEST(CurvePalette, changesTheStyleOnlyWhereStylesTellCurvesApart)
{
    for (const CurvePalette palette : {CurvePalette::Standard, CurvePalette::ColorBlind}) {
        Series dashed;
        dashed.LineStyle = penstyle::dashDot;
        applyPalette(dashed, palette, 3);
        EXPECT_EQ(dashed.LineStyle, penstyle::dashDot);
    }
}

TEST(CurvePalette, hasNames)
{
    for (const CurvePalette palette :
         {CurvePalette::Standard, CurvePalette::ColorBlind, CurvePalette::LineStyles})
        EXPECT_EQ(paletteNamed(nameOf(palette)), palette);
    EXPECT_EQ(paletteNamed("colour-blind"), CurvePalette::ColorBlind);
    EXPECT_EQ(paletteNamed("Standard"), std::nullopt);
    EXPECT_EQ(paletteNamed(""), std::nullopt);
}
