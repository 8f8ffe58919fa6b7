// SPDX-License-Identifier: Apache-2.0

// Every control of every window and dialog has a name that a screen reader can say.

#include "app/EveryWindow.h"

#include <QAccessible>
#include <QDialog>
#include <QLineEdit>
#include <QMenuBar>

#include <gmock/gmock.h>

#include <set>

using namespace tarsil;
using ::testing::ElementsAre;

namespace {

/// The roles that a user acts on or reads.
bool needsName(QAccessible::Role role)
{
    static const std::set<QAccessible::Role> roles {
        QAccessible::PushButton,   QAccessible::CheckBox,      QAccessible::RadioButton,
        QAccessible::EditableText, QAccessible::ComboBox,      QAccessible::SpinBox,
        QAccessible::Table,        QAccessible::Tree,          QAccessible::List,
        QAccessible::MenuItem,     QAccessible::PageTab,       QAccessible::PopupMenu,
        QAccessible::Dialog,       QAccessible::Window,        QAccessible::Graphic,
        QAccessible::Chart,        QAccessible::ButtonMenu,    QAccessible::ColumnHeader,
        QAccessible::Slider,       QAccessible::ButtonDropDown};
    return roles.contains(role);
}

/// Parts of a control of the toolkit, which has the name: its buttons, its field and its list.
bool isPartOfControl(const QObject* object)
{
    static const std::set<QString> parts {
        QStringLiteral("qt_spinbox_lineedit"), QStringLiteral("qt_toolbar_ext_button"),
        QStringLiteral("ScrollLeftButton"), QStringLiteral("ScrollRightButton")};
    if (object == nullptr)
        return false;
    const QObject* const parent = object->parent();
    return parts.contains(object->objectName()) || object->inherits("QComboBoxPrivateContainer")
        || object->inherits("QComboBoxListView") || object->inherits("QTableCornerButton")
        || object->inherits("QLineEditIconButton")
        || (parent != nullptr && parent->inherits("QComboBox"));
}

std::string describe(const QAccessibleInterface& control, const std::string& path)
{
    const QObject* const object = control.object();
    const std::string kind = object == nullptr ? "part" : object->metaObject()->className();
    const std::string name = object == nullptr ? "" : object->objectName().toStdString();
    return path + "/" + kind + " " + name + " role " + std::to_string(control.role());
}

/// Adds the controls without a name at and below a control.
void collectNameless(QAccessibleInterface* control, const std::string& path, int depth,
                     std::vector<std::string>& nameless)
{
    constexpr int deepest = 30;
    if (control == nullptr || !control->isValid() || depth > deepest || control->state().invisible
        || isPartOfControl(control->object()))
        return;
    if (needsName(control->role()) && control->text(QAccessible::Name).trimmed().isEmpty())
        nameless.push_back(describe(*control, path));
    const bool isTable = control->role() == QAccessible::Table; // of hundreds of cells
    for (int i = 0; i < control->childCount() && !isTable; ++i)
        collectNameless(control->child(i), path, depth + 1, nameless);
}

std::vector<std::string> namelessIn(QWidget& window)
{
    std::vector<std::string> nameless;
    collectNameless(QAccessible::queryAccessibleInterface(&window),
                    window.objectName().toStdString(), 0, nameless);
    return nameless;
}

using AccessibleNames = test::EveryWindow;

} // namespace

TEST_F(AccessibleNames, areInEveryWindow)
{
    visit([](QWidget& shown) {
        EXPECT_THAT(namelessIn(shown), ElementsAre()) << shown.metaObject()->className();
    });
}

TEST_F(AccessibleNames, areInTheMenus)
{
    for (const QAction* entry : window.menuBar()->actions()) {
        ASSERT_NE(entry->menu(), nullptr);
        Q_EMIT entry->menu()->aboutToShow();
        for (const QAction* action : entry->menu()->actions())
            EXPECT_FALSE(action->isSeparator() ? false : action->text().isEmpty());
    }
}

TEST(AccessibleNamesCheck, findsAControlWithoutName)
{
    QDialog dialog;
    dialog.setObjectName(QStringLiteral("planted"));
    dialog.setWindowTitle(QStringLiteral("Planted"));
    QLineEdit nameless(&dialog);
    nameless.setObjectName(QStringLiteral("field"));
    dialog.show();
    const std::vector<std::string> found = namelessIn(dialog);
    ASSERT_EQ(found.size(), 1U);
    EXPECT_THAT(found.front(), ::testing::HasSubstr("planted/QLineEdit field"));
}
