// SPDX-License-Identifier: Apache-2.0
#include "options/ListInput.h"

#include "base/user/RunTimeError.h"
#include "support/Errors.h"

#include <QAction>
#include <QLineEdit>

#include <gmock/gmock.h>

using namespace tarsil;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

class ListInputTest : public ::testing::Test
{
protected:
    ListInputTest()
    {
        edit.setAccessibleName(QStringLiteral("Counts"));
        edit.setAccessibleDescription(QStringLiteral("three counts"));
        edit.setToolTip(QStringLiteral("for example 7|5|5"));
        list.emplace(edit, 3, QStringLiteral("three"));
    }

    void type(const char* text) { edit.setText(QString::fromLatin1(text)); }
    std::vector<float> numbers() const { return list->numbers("aModule"); }

    /// Whether sign, tool tip and description, which must agree, report the text as ignored.
    bool isShownAsIgnored() const
    {
        const QAction* const warning = edit.actions().front();
        const bool isShown = warning->isVisible();
        const QString text = QStringLiteral("Ignored: three numbers separated by | are required");
        EXPECT_EQ(warning->toolTip(), isShown ? text : QString());
        EXPECT_EQ(edit.toolTip(), isShown ? text : QStringLiteral("for example 7|5|5"));
        EXPECT_EQ(edit.accessibleDescription(), isShown ? text : QStringLiteral("three counts"));
        return isShown;
    }

    /// The description of the error of `numbers`.
    std::string errorText() const
    {
        const auto error = test::errorOf([this] { numbers(); });
        EXPECT_TRUE(error && error->source() == "aModule");
        return error ? error->description() : "no error";
    }

    QLineEdit edit;
    std::optional<ListInput> list;
};

} // namespace

TEST_F(ListInputTest, acceptsItsNumbersWithBlanksAndExponents)
{
    type(" 7 |5.5|-1E2");
    EXPECT_TRUE(list->fits());
    EXPECT_THAT(numbers(), ElementsAre(7.0F, 5.5F, -100.0F));
    EXPECT_FALSE(isShownAsIgnored());
}

TEST_F(ListInputTest, ignoresAnotherCountOfPartsAndShowsItWhileTheUserTypes)
{
    for (const char* text : {"7", "7|5", "7|5|5|", "7|5|5|5", " ", "abc"}) {
        type(text);
        EXPECT_FALSE(list->fits()) << text;
        EXPECT_THAT(numbers(), IsEmpty()) << text;
        EXPECT_TRUE(isShownAsIgnored()) << text;
        type("7|5|5");
        EXPECT_FALSE(isShownAsIgnored());
    }
}

TEST_F(ListInputTest, hasNothingToShowForAnEmptyText)
{
    type("7");
    type("");
    EXPECT_TRUE(list->isEmpty());
    EXPECT_FALSE(list->fits());
    EXPECT_THAT(numbers(), IsEmpty());
    EXPECT_FALSE(isShownAsIgnored());
}

TEST_F(ListInputTest, namesThePartThatIsNoNumber)
{
    type("7|x|5");
    EXPECT_EQ(errorText(), "Type mismatch: Counts, number 2: \"x\"");
    type("7|5|");
    EXPECT_EQ(errorText(), "Type mismatch: Counts, number 3: \"\"");
    type("7,5|5|5");
    EXPECT_EQ(errorText(), "Type mismatch: Counts, number 1: \"7,5\"");
    type("7|5|1e39"); // beyond the largest single, 3.4e38
    EXPECT_EQ(errorText(), "Overflow: Counts, number 3: \"1e39\"");
}
