// SPDX-License-Identifier: Apache-2.0
#include "plot/Marker.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

using namespace tarsil;

TEST(Marker, hasTheNumbersThatWorkspacesKnow)
{
    EXPECT_EQ(markerNumber(MarkerKind::None), 0);
    EXPECT_EQ(markerNumber(MarkerKind::ModeNumber), 1);
    EXPECT_EQ(markerNumber(MarkerKind::Tag), 2);
    EXPECT_EQ(markerNumber(MarkerKind::ParticipationFactor), 3);
}

TEST(Marker, isFoundByItsNumber)
{
    std::set<std::string> names;
    for (const MarkerTraits& traits : markerTraits) {
        EXPECT_EQ(markerOfNumber(traits.number), traits.kind);
        names.emplace(traits.name);
    }
    EXPECT_EQ(names.size(), markerTraits.size()) << "no two have the same name";
    EXPECT_EQ(markerOfNumber(-1), std::nullopt);
    EXPECT_EQ(markerOfNumber(4), std::nullopt);
}

TEST(Marker, drawsNothingForANumberThatNoKindHas)
{
    AeMode mode;
    mode.Id = 7;
    Series series;
    series.Mode = &mode;
    series.MarkerTag = QStringLiteral("tag");
    series.MarkerStyle = 4;
    EXPECT_EQ(markerText(series, {}), QString());
    series.MarkerStyle = markerNumber(MarkerKind::None);
    EXPECT_EQ(markerText(series, {}), QString());
    series.MarkerStyle = markerNumber(MarkerKind::ModeNumber);
    EXPECT_EQ(markerText(series, {}), QStringLiteral("7"));
}
