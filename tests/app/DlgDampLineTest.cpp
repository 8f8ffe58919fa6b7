// SPDX-License-Identifier: Apache-2.0
#include "app/DlgDampLine.h"

#include "app/LineDialogMessages.h"
#include "document/Document.h"
#include "support/FormParts.h"
#include "support/ScriptedUserInterface.h"
#include "vgfplot/EvmPlot.h"

#include <QGroupBox>
#include <QLabel>

#include <gtest/gtest.h>

#include <map>

using namespace tarsil;
using test::Message;
using test::noPlot;
using test::notNumeric;
using test::partOf;

namespace {

class DlgDampLine : public ::testing::Test
{
protected:
    DlgDampLine() : plot(document.plots().first()), dialog(document, user)
    {
        document.plots().activate(&plot);
        dialog.show();
        dialog.activateWindow();
        QApplication::processEvents();
    }

    void add() { test::click(dialog, "sdampBtn"); }
    const std::vector<RefLine>& lines() const { return plot.parts().vgPlot.lines(); }
    QLineEdit& value() const { return partOf<QLineEdit>(dialog, "sdampInp"); }
    /// Moves the focus from the value to another widget.
    void leaveFor(const char* control, Qt::FocusReason reason) const
    {
        value().setFocus();
        ASSERT_TRUE(value().hasFocus());
        partOf<QWidget>(dialog, control).setFocus(reason);
    }
    std::string caption() const { return test::textIn(dialog, "captionInp"); }

    Document document;
    EvmPlot& plot;
    test::ScriptedUserInterface user;
    dlgDampLine dialog;
};

} // namespace

TEST_F(DlgDampLine, hasItsControlsUnderTheirNamesWithTheirCaptions)
{
    EXPECT_EQ(dialog.windowTitle().toStdString(), "Add Damping Line");
    EXPECT_EQ(dialog.objectName().toStdString(), "dlgDampLine");
    EXPECT_FALSE(dialog.isModal());
    const auto& frame = partOf<QGroupBox>(dialog, "frmDampLine");
    EXPECT_EQ(frame.title().toStdString(), "Structural Damping Line");
    EXPECT_EQ(test::textIn(frame, "sdampInp"), "0.01");
    EXPECT_EQ(test::textIn(frame, "captionInp"), "g = 1.00 %");
    EXPECT_EQ(partOf<QPushButton>(dialog, "sdampBtn").text().toStdString(), "Add");
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(DlgDampLine, hasALabelBeforeEachInput)
{
    const auto& value = partOf<QLabel>(dialog, "sdampLabel");
    EXPECT_EQ(value.text().toStdString(), "Value:");
    EXPECT_EQ(value.buddy(), &partOf<QWidget>(dialog, "sdampInp"));
    EXPECT_EQ(test::accessibleName(partOf<QWidget>(dialog, "sdampInp")), "Value:");
    const auto& label = partOf<QLabel>(dialog, "captionLabel");
    EXPECT_EQ(label.text().toStdString(), "Label:");
    EXPECT_EQ(label.buddy(), &partOf<QWidget>(dialog, "captionInp"));
    EXPECT_EQ(test::accessibleName(partOf<QWidget>(dialog, "captionInp")), "Label:");
}

TEST_F(DlgDampLine, addsALineAcrossTheSpeedRangeAndStaysOpenForMore)
{
    add();
    test::type(dialog, "sdampInp", "0.025");
    test::type(dialog, "captionInp", "limit");
    add();
    ASSERT_EQ(lines().size(), 2U);
    EXPECT_EQ(lines()[0].Y1, 0.01F);
    EXPECT_EQ(lines()[0].Y2, 0.01F);
    EXPECT_EQ(lines()[0].X1, 0.0F);
    EXPECT_EQ(lines()[0].X2, 700.0F); // the speeds of a new plot
    EXPECT_EQ(lines()[0].Caption, QStringLiteral("g = 1.00 %"));
    EXPECT_EQ(lines()[1].Y1, 0.025F);
    EXPECT_EQ(lines()[1].Caption, QStringLiteral("limit"));
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(DlgDampLine, writesTheValueInPerCentIntoTheCaption)
{
    // Two decimals with a point in every locale. Ties round away from zero, judged by the typed
    // digits: as a double, 0.00225 * 100 is a little less than 0.225.
    const std::map<std::string, std::string> captions = {{"0.025", "g = 2.50 %"},
                                                         {"0.01", "g = 1.00 %"},
                                                         {"-0.03", "g = -3.00 %"},
                                                         {"0", "g = 0.00 %"},
                                                         {"1", "g = 100.00 %"},
                                                         {".5", "g = 50.00 %"},
                                                         {"2E-2", "g = 2.00 %"},
                                                         {"0.00225", "g = 0.23 %"},
                                                         {"0.00224", "g = 0.22 %"},
                                                         {"-0.00001", "g = 0.00 %"},
                                                         {"1234.56789", "g = 123456.79 %"}};
    for (const auto& [value, text] : captions) {
        test::type(dialog, "sdampInp", "7");
        test::type(dialog, "sdampInp", value);
        EXPECT_EQ(caption(), text) << value;
    }
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(DlgDampLine, changesTheCaptionWithEveryKey)
{
    auto& input = partOf<QLineEdit>(dialog, "sdampInp");
    input.setFocus();
    input.end(false);
    QKeyEvent five(QEvent::KeyPress, Qt::Key_5, Qt::NoModifier, QStringLiteral("5"));
    QApplication::sendEvent(&input, &five);
    EXPECT_EQ(caption(), "g = 1.50 %"); // 0.015
    test::press(input, Qt::Key_Backspace);
    EXPECT_EQ(caption(), "g = 1.00 %"); // 0.01
}

TEST_F(DlgDampLine, asksForANumberAtEveryChangeToSomethingElse)
{
    for (const char* const text : {"a", "ab", "", "0,5", "1e400"}) {
        user.messages.clear();
        test::type(dialog, "captionInp", "kept?");
        test::type(dialog, "sdampInp", text);
        EXPECT_EQ(user.messages, std::vector<Message>({notNumeric})) << text;
        EXPECT_EQ(caption(), "") << text;
    }
    test::type(dialog, "sdampInp", "0.02");
    EXPECT_EQ(caption(), "g = 2.00 %");
}

TEST_F(DlgDampLine, letsTheBeginningOfANumberBeTyped)
{
    for (const char* const text : {"-", "+", ".", "-.", " -", "1e", "1E-", "-.5d+"}) {
        test::type(dialog, "captionInp", "of another number");
        test::type(dialog, "sdampInp", text);
        EXPECT_TRUE(user.messages.empty()) << text;
        EXPECT_EQ(caption(), "") << text;
    }
    test::type(dialog, "sdampInp", "-0.03");
    EXPECT_EQ(caption(), "g = -3.00 %");
    add();
    ASSERT_EQ(lines().size(), 1U);
    EXPECT_EQ(lines()[0].Y1, -0.03F);
    for (const char* const text : {"--", "-a", "e", " ", "1e400", "- "}) {
        user.messages.clear();
        test::type(dialog, "sdampInp", text);
        EXPECT_EQ(user.messages, std::vector<Message>({notNumeric})) << text;
    }
}

TEST_F(DlgDampLine, asksForTheRestOfANumberWhenItsInputIsLeft)
{
    test::type(dialog, "sdampInp", "-");
    leaveFor("captionInp", Qt::TabFocusReason);
    QApplication::processEvents();
    EXPECT_EQ(user.messages, std::vector<Message>({notNumeric}));
    EXPECT_TRUE(value().hasFocus()) << "where the number is";
    test::type(dialog, "sdampInp", "-0.03");
    leaveFor("captionInp", Qt::TabFocusReason);
    QApplication::processEvents();
    EXPECT_EQ(user.messages.size(), 1U);
    EXPECT_FALSE(value().hasFocus());
}

TEST_F(DlgDampLine, doesNotTakeAnotherWindowForTheEndOfTyping)
{
    test::type(dialog, "sdampInp", "-");
    for (const Qt::FocusReason reason : {Qt::ActiveWindowFocusReason, Qt::PopupFocusReason}) {
        QFocusEvent out(QEvent::FocusOut, reason);
        QApplication::sendEvent(&value(), &out);
        QApplication::processEvents();
    }
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(DlgDampLine, asksOnceForTheRestOfANumberWhenAddIsPressed)
{
    auto& button = partOf<QPushButton>(dialog, "sdampBtn");
    test::type(dialog, "sdampInp", "-");
    leaveFor("sdampBtn", Qt::MouseFocusReason);
    button.setDown(true);
    QApplication::processEvents();
    EXPECT_TRUE(user.messages.empty()) << "a box would take the button's release";
    button.click();
    QApplication::processEvents();
    EXPECT_EQ(user.messages, std::vector<Message>({notNumeric}));
    EXPECT_TRUE(lines().empty());
    EXPECT_TRUE(value().hasFocus());
    test::press(value(), Qt::Key_Return);
    QApplication::processEvents();
    EXPECT_EQ(user.messages.size(), 2U);
}

TEST_F(DlgDampLine, saysNothingOfABegunNumberWhenItIsClosed)
{
    test::type(dialog, "sdampInp", "-");
    value().setFocus();
    dialog.close();
    QApplication::processEvents();
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(DlgDampLine, asksForANumberAndAddsNothingWithoutOne)
{
    test::type(dialog, "sdampInp", "high");
    user.messages.clear();
    add();
    EXPECT_EQ(user.messages, std::vector<Message>({notNumeric}));
    EXPECT_TRUE(lines().empty());
    EXPECT_TRUE(dialog.isVisible());
}

TEST_F(DlgDampLine, asksForAPlotWhenNoneIsActive)
{
    document.plots().activate(nullptr);
    add();
    EXPECT_EQ(user.messages, std::vector<Message>({noPlot}));
    EXPECT_TRUE(dialog.isVisible());
}

TEST_F(DlgDampLine, reportsADampingBeyondTheRangeOfNumbers)
{
    test::type(dialog, "sdampInp", "1e39"); // beyond the largest single, 3.4e38
    EXPECT_TRUE(user.messages.empty());
    add();
    EXPECT_EQ(
        user.messages,
        std::vector<Message>({{"Error # 6 was generated by dlgDampLine in Module dlgDampLine\r"
                               "Overflow: Value: \"1e39\"",
                               "Error", MessageIcon::Critical}}));
    EXPECT_TRUE(lines().empty());
}

TEST_F(DlgDampLine, reportsAPercentageBeyondTheRangeOfNumbers)
{
    test::type(dialog, "sdampInp", "1e307"); // beyond the largest double, 1.8e308
    ASSERT_EQ(user.messages.size(), 1U);
    EXPECT_TRUE(user.messages[0].text.starts_with("Error # 6 ")) << user.messages[0].text;
    EXPECT_EQ(caption(), "");
}

TEST_F(DlgDampLine, reportsAFailureOfDrawing)
{
    plot.properties().setGthicks(0);
    add();
    ASSERT_EQ(user.messages.size(), 1U);
    EXPECT_TRUE(user.messages[0].text.starts_with("Error # 11 was generated by yAxis in Module "
                                                  "dlgDampLine\rDivision by zero"))
        << user.messages[0].text;
    EXPECT_TRUE(dialog.isVisible());
}

TEST_F(DlgDampLine, addsOneLineForEnter)
{
    std::size_t count = 0;
    for (const char* const name : {"sdampInp", "captionInp", "sdampBtn"}) {
        auto& control = partOf<QWidget>(dialog, name);
        control.setFocus();
        test::press(control, Qt::Key_Return);
        EXPECT_EQ(lines().size(), ++count) << name;
    }
    EXPECT_TRUE(dialog.isVisible());
}

TEST_F(DlgDampLine, keepsNothingOnceItIsClosed)
{
    test::type(dialog, "sdampInp", "0.07");
    test::type(dialog, "captionInp", "limit");
    dialog.close();
    EXPECT_EQ(test::textIn(dialog, "sdampInp"), "0.01");
    EXPECT_EQ(caption(), "g = 1.00 %");
    EXPECT_TRUE(user.messages.empty());
    EXPECT_TRUE(lines().empty());
}
