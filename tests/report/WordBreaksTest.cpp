// SPDX-License-Identifier: Apache-2.0
#include "report/ReportFont.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

using namespace tarsil;
using ::testing::ElementsAre;

namespace {

constexpr ReportFont letters {8, true};

/// The lines of a text in a column that is as wide as `widest`.
std::vector<std::string> lines(const char* text, const char* widest)
{
    const double width = widthOf(QString::fromUtf8(widest), letters) + 0.1;
    std::vector<std::string> result;
    for (const QString& line : wrapped(QString::fromUtf8(text), letters, width))
        result.push_back(line.toStdString());
    return result;
}

} // namespace

TEST(WordBreaks, areAfterThePartsOfAName)
{
    const char* const width = "goland_tipstore_m040.e";
    EXPECT_THAT(lines("goland_tipstore_m040.ev2", width),
                ElementsAre("goland_tipstore_", "m040.ev2"));
    EXPECT_THAT(lines("goland-tipstore-m040.ev2", width),
                ElementsAre("goland-tipstore-", "m040.ev2"));
    EXPECT_THAT(lines("goland.tipstore.m040.ev2", width),
                ElementsAre("goland.tipstore.", "m040.ev2"));
}

TEST(WordBreaks, keepAnEndingWhole)
{
    EXPECT_THAT(lines("golandtipstorem040.ev2", "golandtipstorem040.e"),
                ElementsAre("golandtipstore", "m040.ev2"));
    EXPECT_THAT(lines("a_golandtipstorem040.ev2", "golandtipst"),
                ElementsAre("a_", "golandtipst", "ore", "m040.ev2"));
}

TEST(WordBreaks, areNotInNamesThatFit)
{
    EXPECT_THAT(lines("the mass TIP_STORE", "the mass TIP_"), ElementsAre("the mass", "TIP_STORE"));
    EXPECT_THAT(lines("goland_m040.ev2", "goland_m040.ev2"), ElementsAre("goland_m040.ev2"));
}

TEST(WordBreaks, areBetweenTheFoldersOfAPath)
{
    EXPECT_THAT(lines("/usr/share/samples/goland_tipstore_m040.ev2", "goland_tipstore_m040.ev2"),
                ElementsAre("/usr/share/samples/", "goland_tipstore_m040.ev2"));
    EXPECT_THAT(lines("C:\\flutter\\goland_m040.ev2", "goland_m040.ev2"),
                ElementsAre("C:\\flutter\\", "goland_m040.ev2"));
}
