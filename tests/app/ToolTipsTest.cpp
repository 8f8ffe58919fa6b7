// SPDX-License-Identifier: Apache-2.0

// Every button without words has a tool tip, and a tool tip shows the key of its command.

#include "app/EveryWindow.h"

#include <QAbstractButton>
#include <QToolButton>

#include <gmock/gmock.h>

#include <set>

using namespace tarsil;
using test::describe;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsSupersetOf;

namespace {

bool showsOnlyAnImage(const QAbstractButton& button)
{
    const auto* const tool = qobject_cast<const QToolButton*>(&button);
    const bool isIconOnly = tool != nullptr && tool->toolButtonStyle() == Qt::ToolButtonIconOnly
        && !tool->icon().isNull();
    return isIconOnly || button.text().isEmpty();
}

/// The keys of a button and of the command that it runs.
QList<QKeySequence> keysOf(const QAbstractButton& button)
{
    QList<QKeySequence> keys {button.shortcut()};
    const auto* const tool = qobject_cast<const QToolButton*>(&button);
    if (tool != nullptr && tool->defaultAction() != nullptr)
        keys += tool->defaultAction()->shortcuts();
    keys.removeAll(QKeySequence());
    return keys;
}

bool isPushed(const QAbstractButton& button)
{
    return button.inherits("QPushButton") || button.inherits("QToolButton");
}

/// What is wrong with the tool tips in a window.
std::vector<std::string> faultsIn(const QWidget& window)
{
    std::vector<std::string> faults;
    for (const auto* const button : window.findChildren<QAbstractButton*>()) {
        if (!isPushed(*button) || test::isPartOfToolkit(*button) || !button->isVisible())
            continue;
        if (showsOnlyAnImage(*button) && button->toolTip().isEmpty())
            faults.push_back(describe(window, *button) + " has no tool tip");
        for (const QKeySequence& key : keysOf(*button)) {
            const QString name = key.toString(QKeySequence::NativeText);
            if (!button->toolTip().contains(u'(' + name + u')'))
                faults.push_back(describe(window, *button) + " does not show "
                                 + name.toStdString());
        }
    }
    return faults;
}

class ToolTips : public test::EveryWindow
{
protected:
    std::string tipOf(const char* button)
    {
        auto* const found = window.findChild<QAbstractButton*>(QString::fromLatin1(button));
        return found == nullptr ? "no button" : found->toolTip().toStdString();
    }
};

} // namespace

TEST_F(ToolTips, areAtEveryButtonWithoutWordsAndShowTheKeys)
{
    visit([](QWidget& shown) { EXPECT_THAT(faultsIn(shown), ElementsAre()); });
}

TEST_F(ToolTips, showTheKeysOfTheGridAtItsButtons)
{
    EXPECT_EQ(tipOf("cmdIncMode"), "Raise the mode numbers of the selected rows (+)");
    EXPECT_EQ(tipOf("cmdDecMode"), "Lower the mode numbers of the selected rows (-)");
    EXPECT_EQ(tipOf("cmdRemove"), "Remove the selected rows (Del)");
    EXPECT_EQ(tipOf("btnSerieMove"), "Move the selected rows (Alt+Up, Alt+Down)");
}

TEST_F(ToolTips, showTheKeyOfSaveInTheExplorerButLeaveTheGivenTexts)
{
    EXPECT_EQ(action("Save").toolTip().toStdString(), "Save Workspace (Ctrl+S)");
    EXPECT_EQ(action("New").toolTip().toStdString(), "New Workspace");
}

TEST_F(ToolTips, keepTheTextBeforeTheKey)
{
    const auto tipIn = [](const QWidget& shown, const char* name) {
        const auto* const button = shown.findChild<QAbstractButton*>(QString::fromLatin1(name));
        return button == nullptr ? std::string() : button->toolTip().toStdString();
    };
    std::set<std::string> tips;
    visit([&](const QWidget& shown) {
        tips.insert(tipIn(shown, "tableBtn"));
        tips.insert(tipIn(shown, "btnApply"));
    });
    EXPECT_THAT(tips, IsSupersetOf({"Writes the table as .xlsx or .csv (Alt+T)", "Apply (Alt+A)"}));
}

TEST(ToolTipsCheck, findsPlantedFaults)
{
    QWidget window;
    QToolButton nameless(&window);
    QToolButton keyless(&window);
    QAction command(QStringLiteral("Undo"), &window);
    command.setShortcut(Qt::CTRL | Qt::Key_Z);
    keyless.setDefaultAction(&command);
    window.show();
    EXPECT_THAT(faultsIn(window),
                ElementsAre(HasSubstr("no tool tip"), HasSubstr("does not show Ctrl+Z")));
}
