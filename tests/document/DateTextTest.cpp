// SPDX-License-Identifier: Apache-2.0
#include "document/DateText.h"

#include <QDateTime>

#include <gtest/gtest.h>

using namespace tarsil;

TEST(DateText, hasTwoDigitsAnEnglishMonthAndTheTimeOfDay)
{
    EXPECT_EQ(dateText({QDate(2026, 3, 7), QTime(9, 5, 3)}).toStdString(), "07-Mar-2026 09:05:03");
    EXPECT_EQ(dateText({QDate(1999, 12, 31), QTime(23, 59, 59)}).toStdString(),
              "31-Dec-1999 23:59:59");
    EXPECT_EQ(dateText({QDate(2026, 5, 1), QTime(0, 0)}).toStdString(), "01-May-2026 00:00:00");
}
