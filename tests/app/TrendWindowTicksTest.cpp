// SPDX-License-Identifier: Apache-2.0

// The window "Flutter Trend" in the program.

#include "app/WndMainFixture.h"

#include <QDialog>
#include <QTableView>
#include <QTreeWidget>

#include <gtest/gtest.h>

using namespace tarsil;
using test::sample;
using test::WndMainTest;

TEST_F(WndMainTest, comparesTheTickedEvolutionsInTheTrendWindow)
{
    load({sample("goland_clean_m040.ev2"), sample("goland_clean_m050.ev2")});
    auto& tree = *window.findChild<QTreeWidget*>(QStringLiteral("tvwEvolExplorer"));
    const auto tick = [&tree](const char* file, Qt::CheckState state) {
        tree.findItems(QString::fromLatin1(file), Qt::MatchExactly | Qt::MatchRecursive)
            .at(0)
            ->setCheckState(0, state);
    };
    tick("goland_clean_m050.ev2", Qt::Checked);
    choose("flutterTrend");
    auto* const dialog = window.findChild<QDialog*>(QStringLiteral("trendWindow"));
    ASSERT_NE(dialog, nullptr);
    const auto& table = *dialog->findChild<QTableView*>(QStringLiteral("trendGrid"))->model();
    const auto file = [&table](int row) { return table.index(row, 0).data().toString(); };
    EXPECT_EQ(file(0), QStringLiteral("goland_clean_m050.ev2"));
    tick("goland_clean_m040.ev2", Qt::Checked);
    EXPECT_EQ(file(0), QStringLiteral("goland_clean_m040.ev2"));
    tick("goland_clean_m050.ev2", Qt::Unchecked);
    EXPECT_EQ(file(1), QStringLiteral("goland_clean_m040.ev2")) << "its second level";
}
