// SPDX-License-Identifier: Apache-2.0

// The number in an input field.

#include "plotwindow/NumberInput.h"

#include "base/user/RunTimeError.h"
#include "support/Errors.h"

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QVBoxLayout>

#include <functional>
#include <optional>
#include <string>

using namespace tarsil;
using test::errorNumberOf;

namespace {

class NumberInputTest : public ::testing::Test
{
protected:
    NumberInputTest() { field.setAccessibleName(QStringLiteral("Spacing:")); }

    /// The number of the error that asking for a count raises.
    std::optional<ErrorNumber> errorOfCount(const char* text, std::int32_t most)
    {
        field.setText(QString::fromUtf8(text));
        return errorNumberOf([&] { input().count(most); });
    }

    std::string messageOf(const std::function<void()>& action)
    {
        try {
            action();
        } catch (const RunTimeError& error) {
            return error.description();
        }
        return {};
    }

    NumberInput input() { return {field, "module"}; }

    QLineEdit field;
};

} // namespace

TEST_F(NumberInputTest, isTheNumberOfTheText)
{
    field.setText(QStringLiteral(" 4.5 "));
    EXPECT_EQ(input().number(), 4.5);
    EXPECT_EQ(input().single(), 4.5F);
    EXPECT_EQ(input().integer16(), 4) << "ties to even";
    EXPECT_EQ(input().count(), 4);
}

TEST_F(NumberInputTest, namesTheFieldAndItsTextInErrors)
{
    field.setText(QStringLiteral("four"));
    const NumberInput named(field, "module", "Font Size");
    const std::string message = messageOf([&] { named.number(); });
    EXPECT_NE(message.find("Font Size"), std::string::npos) << message;
    EXPECT_NE(message.find("\"four\""), std::string::npos) << message;
    EXPECT_EQ(errorNumberOf([&] { named.single(); }), ErrorNumber::TypeMismatch);
}

TEST_F(NumberInputTest, removesTheColonOfALabelFromTheName)
{
    field.setText(QStringLiteral("0"));
    const std::string message = messageOf([this] { input().count(); });
    EXPECT_NE(message.find("Spacing: 0 is less than 1"), std::string::npos) << message;
}

TEST_F(NumberInputTest, countsFromOneToTheMost)
{
    EXPECT_EQ(errorOfCount("0.5", 5), ErrorNumber::InvalidProcedureCall) << "is rounded to 0";
    EXPECT_EQ(errorOfCount("0.6", 5), std::nullopt);
    EXPECT_EQ(errorOfCount("5", 5), std::nullopt);
    EXPECT_EQ(errorOfCount("6", 5), ErrorNumber::InvalidProcedureCall);
    EXPECT_EQ(errorOfCount("3e9", 5), ErrorNumber::Overflow);
    EXPECT_EQ(errorOfCount("1e999", 5), ErrorNumber::Overflow);
    EXPECT_EQ(errorOfCount("", 5), ErrorNumber::TypeMismatch);
}

TEST_F(NumberInputTest, hasSixteenBitsForAnInteger)
{
    field.setText(QStringLiteral("32768"));
    EXPECT_EQ(errorNumberOf([this] { input().integer16(); }), ErrorNumber::Overflow);
    field.setText(QStringLiteral("32767.4"));
    EXPECT_EQ(input().integer16(), 32767);
}

TEST_F(NumberInputTest, isEmptyWithoutANumber)
{
    for (const char* text : {"", "four", "1e999", "-"}) {
        field.setText(QString::fromLatin1(text));
        EXPECT_EQ(input().numberIfAny(), std::nullopt) << text;
    }
    field.setText(QStringLiteral(" -2d1 "));
    EXPECT_EQ(input().numberIfAny(), -20.0);
}

TEST_F(NumberInputTest, isBegunWhenAnotherDigitMakesItANumber)
{
    for (const char* text : {"-", ".", "1e-", " +"}) {
        field.setText(QString::fromLatin1(text));
        EXPECT_TRUE(input().isBegun()) << text;
    }
    for (const char* text : {"", " ", "1", "x", "1e999"}) {
        field.setText(QString::fromLatin1(text));
        EXPECT_FALSE(input().isBegun()) << text;
    }
}

TEST_F(NumberInputTest, mayHaveAnExplanationAfterTheNumber)
{
    field.setText(QStringLiteral("-1:=file name"));
    EXPECT_EQ(input().integer16Before(QStringLiteral(":=")), -1);
    field.setText(QStringLiteral("2"));
    EXPECT_EQ(input().integer16Before(QStringLiteral(":=")), 2);
    field.setText(QStringLiteral("x:=1"));
    EXPECT_EQ(errorNumberOf([this] { input().integer16Before(QStringLiteral(":=")); }),
              ErrorNumber::TypeMismatch);
}

TEST_F(NumberInputTest, getsTheFocusUnlessAnotherFieldHasIt)
{
    QWidget window;
    auto* const layout = new QVBoxLayout(&window);
    auto* const first = new QLineEdit;
    auto* const second = new QLineEdit;
    layout->addWidget(first);
    layout->addWidget(second);
    window.show();
    window.setFocus();
    NumberInput(*second, "module").goTo();
    EXPECT_EQ(window.focusWidget(), second);
    NumberInput(*first, "module").goTo();
    EXPECT_EQ(window.focusWidget(), second);
}
