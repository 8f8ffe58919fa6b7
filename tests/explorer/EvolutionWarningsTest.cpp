// SPDX-License-Identifier: Apache-2.0

// Warnings about the files of evolutions, and their signs in the explorer.

#include "explorer/EvolutionWarnings.h"

#include "explorer/WndEvolExplorerFixture.h"
#include "formats/EvolutionChecker.h"
#include "support/TestFiles.h"

#include <gmock/gmock.h>

using namespace tarsil;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

const std::string emptyFileText = "line 1: the file is empty";

class EvolutionWarningsTest : public test::WndEvolExplorerTest
{
protected:
    /// An evolution whose file contains these bytes.
    EVM& loadFile(const std::string& name, const std::string& bytes)
    {
        folder.write(name, bytes);
        return load(name, {1}, folder.path().string());
    }
    std::string toolTip(const EVM& evolution)
    {
        return evolutionNode(evolution).toolTip(0).toStdString();
    }

    /// Runs the event loop more often than there are files.
    static void settle()
    {
        for (int i = 0; i < 20; ++i)
            QApplication::processEvents();
    }

    test::TemporaryFolder folder;
};

/// A sample with `count` additional rows that repeat a speed.
std::string repeatedRows(int count)
{
    std::string text = test::fileBytes(test::sample("goland_clean_m040.ev2"));
    const std::size_t row = text.find("   1|    1|");
    const std::string copy = text.substr(row, text.find('\n', row) + 1 - row);
    for (int i = 0; i < count; ++i)
        text.insert(row, copy);
    return text;
}

} // namespace

TEST_F(EvolutionWarningsTest, showsAWarningOnlyWhenNobodyWaits)
{
    EVM& evolution = loadFile("a.evm", "");
    EXPECT_EQ(image(evolutionNode(evolution)), "evolution");
    settle();
    EXPECT_EQ(image(evolutionNode(evolution)), "warning");
    EXPECT_EQ(toolTip(evolution), folder.file("a.evm") + "\n" + emptyFileText);
    EXPECT_EQ(text(evolutionNode(evolution)), "a.evm");
}

TEST_F(EvolutionWarningsTest, givesAScreenReaderTheMeaningOfTheSign)
{
    EVM& evolution = loadFile("a.evm", "");
    settle();
    const auto heard = [&] {
        return evolutionNode(evolution).data(0, Qt::AccessibleDescriptionRole).toString();
    };
    EXPECT_EQ(heard().toStdString(), emptyFileText);
    select(evolutionNode(evolution));
    explorer.SetAsRef();
    EXPECT_EQ(heard().toStdString(), "reference evolution\n" + emptyFileText);
    EVM& other = loadFile("b.evm", "");
    select(evolutionNode(other));
    explorer.SetAsRef();
    EXPECT_EQ(heard().toStdString(), emptyFileText) << "no longer the reference";
}

TEST_F(EvolutionWarningsTest, showsNoWarningForACleanFile)
{
    EVM& evolution = loadFile("a.ev2", test::fileBytes(test::sample("goland_clean_m040.ev2")));
    settle();
    EXPECT_EQ(image(evolutionNode(evolution)), "evolution");
    EXPECT_EQ(toolTip(evolution), folder.file("a.ev2"));
}

TEST_F(EvolutionWarningsTest, looksThroughOneFileAtATimeInTheirOrder)
{
    EvolutionWarnings warnings;
    test::Texts found;
    QObject::connect(&warnings, &EvolutionWarnings::found, [&](EVM* one, const QString& text) {
        found.push_back(one->FileName);
        EXPECT_EQ(text.toStdString(), emptyFileText);
    });
    for (const char* const name : {"a.evm", "b.evm", "c.evm"})
        warnings.add(loadFile(name, ""));
    EXPECT_THAT(found, IsEmpty());
    for (int i = 0; i < 20; ++i) {
        const std::size_t before = found.size();
        QApplication::processEvents();
        EXPECT_LE(found.size(), before + 1);
    }
    EXPECT_THAT(found, ElementsAre("a.evm", "b.evm", "c.evm"));
    warnings.add(*document.evolutions().all()[0]);
    settle();
    EXPECT_EQ(found.size(), 4U) << "begins again after a rest";
}

TEST_F(EvolutionWarningsTest, doesNotLookAtAnEvolutionThatHasGone)
{
    EVM& a = loadFile("a.evm", "");
    EVM& b = loadFile("b.evm", "");
    select(evolutionNode(a));
    choose("Remove");
    settle();
    EXPECT_EQ(image(evolutionNode(b)), "warning");
    loadFile("c.evm", "");
    document.startNew();
    settle();
    EXPECT_EQ(node("Evols").childCount(), 0);
}

TEST_F(EvolutionWarningsTest, warnsOfAnEvolutionWhoseFileHasGone)
{
    EVM& evolution = load("gone.evm");
    settle();
    EXPECT_EQ(image(evolutionNode(evolution)), "warning");
    EXPECT_TRUE(toolTip(evolution).find("not found") != std::string::npos) << toolTip(evolution);
}

TEST_F(EvolutionWarningsTest, listsAllOfTwentyWarnings)
{
    int rows = 0;
    std::size_t count = 0;
    while (count < 20)
        count = checkEvolutionText(repeatedRows(++rows), "a.ev2").size();
    ASSERT_EQ(count, 20U);
    const QString text = warningsOf(loadFile("a.ev2", repeatedRows(rows)));
    EXPECT_EQ(text.split(u'\n').size(), 20);
    EXPECT_TRUE(text.split(u'\n').back().startsWith(QStringLiteral("line ")));
}

TEST_F(EvolutionWarningsTest, countsTheWarningsBeyondTwentyLines)
{
    const std::string bytes = repeatedRows(50);
    const std::size_t count = checkEvolutionText(bytes, "a.ev2").size();
    ASSERT_GT(count, 50U);
    const QStringList lines = warningsOf(loadFile("a.ev2", bytes)).split(u'\n');
    ASSERT_EQ(lines.size(), 20);
    EXPECT_TRUE(lines.front().startsWith(QStringLiteral("line ")));
    EXPECT_EQ(lines.back().toStdString(), "and " + std::to_string(count - 19) + " more");
}

TEST(NodeToolTip, showsTextThatLooksLikeHtmlUnchanged)
{
    QTreeWidgetItem node;
    setPlainToolTip(node, QStringLiteral("<b>x</b>"));
    EXPECT_TRUE(node.toolTip(0).contains(QStringLiteral("&lt;b&gt;x")));
    setPlainToolTip(node, QStringLiteral("1 < 2"));
    EXPECT_EQ(node.toolTip(0).toStdString(), "1 < 2");
}
