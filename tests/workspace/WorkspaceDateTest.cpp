#include "workspace/WorkspaceDate.h"

#include <gtest/gtest.h>

#include <array>

using namespace tarsil;

namespace {

std::tm timeOf(int year, int month, int day, int hour, int minute, int second)
{
    std::tm time {};
    time.tm_year = year - 1900;
    time.tm_mon = month - 1;
    time.tm_mday = day;
    time.tm_hour = hour;
    time.tm_min = minute;
    time.tm_sec = second;
    return time;
}

} // namespace

TEST(WorkspaceDate, hasTwoDigitsAndAMonthOfThreeLetters)
{
    EXPECT_EQ(workspaceDate(timeOf(2024, 3, 7, 14, 5, 31)), "07-Mar-2024 14:05:31");
    EXPECT_EQ(workspaceDate(timeOf(1999, 12, 31, 0, 0, 0)), "31-Dec-1999 00:00:00");
}

TEST(WorkspaceDate, namesEveryMonthWhateverTheLocale)
{
    constexpr std::array months = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                   "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
    for (int month = 1; month <= 12; ++month)
        EXPECT_EQ(workspaceDate(timeOf(2025, month, 10, 1, 2, 3)).substr(3, 3),
                  months.at(static_cast<std::size_t>(month - 1)));
}
