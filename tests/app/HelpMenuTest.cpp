// SPDX-License-Identifier: Apache-2.0

// The menu Help: the guide, the samples, and what the program is made of.

#include "app/WndGuide.h"
#include "app/WndMainFixture.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTextBrowser>

#include <gmock/gmock.h>

using namespace tarsil;
using test::sample;
using ::testing::EndsWith;
using ::testing::HasSubstr;

namespace {

class HelpMenu : public test::WndMainTest
{ };

class Guide : public ::testing::Test
{
protected:
    Guide()
    {
        folder.write("guide.md", "# Flutter\n\nA hump is small.\n\nAnother hump is not.\n");
        guide.emplace(QString::fromStdString(folder.file("guide.md")));
        guide->show();
    }

    void findNext(const char* text)
    {
        guide->findChild<QLineEdit*>(QStringLiteral("find"))->setText(QString::fromLatin1(text));
        guide->findChild<QPushButton*>(QStringLiteral("next"))->click();
    }

    QTextCursor cursor() { return guide->findChild<QTextBrowser*>()->textCursor(); }

    test::TemporaryFolder folder;
    std::optional<wndGuide> guide;
};

} // namespace

TEST_F(HelpMenu, opensTheSamples)
{
    load();
    choose("openSamples");
    EXPECT_THAT(window.document().path(), EndsWith("samples/goland.tsw"));
    EXPECT_FALSE(window.document().evolutions().all().empty());
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(HelpMenu, showsTheGuideOfTheProject)
{
    choose("showGuide");
    const auto* const guide = window.findChild<wndGuide*>();
    ASSERT_NE(guide, nullptr);
    EXPECT_TRUE(guide->isVisible());
    EXPECT_THAT(guide->findChild<QTextBrowser*>()->toPlainText().toStdString(),
                HasSubstr("Data Control"));
}

TEST_F(HelpMenu, namesTheLibrariesAndTheLicence)
{
    choose("about");
    ASSERT_EQ(user.messages.size(), 1U);
    EXPECT_EQ(user.messages.front().title, "About Tarsil");
    EXPECT_THAT(user.messages.front().text, HasSubstr("Apache License"));
    EXPECT_THAT(user.messages.front().text, HasSubstr(qVersion()));
}

TEST_F(Guide, findsTextAndGoesOnFromTheStart)
{
    const auto* const message = guide->findChild<QLabel*>(QStringLiteral("message"));
    findNext("hump");
    EXPECT_EQ(cursor().selectedText(), QStringLiteral("hump"));
    const int first = cursor().position();
    findNext("hump");
    EXPECT_GT(cursor().position(), first);
    findNext("hump");
    EXPECT_EQ(cursor().position(), first);
    EXPECT_EQ(message->text(), QStringLiteral("From the start again"));
    findNext("divergence");
    EXPECT_EQ(message->text(), QStringLiteral("Not found"));
    EXPECT_EQ(cursor().position(), first);
}
