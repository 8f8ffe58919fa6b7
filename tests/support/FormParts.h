#pragma once

#include <QAbstractItemView>
#include <QAccessible>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>

#include <stdexcept>
#include <string>

namespace tarsil::test {

/// A control of a form by its object name; a form without it fails the test.
template <typename Control>
Control& partOf(const QWidget& form, const std::string& name)
{
    auto* const part = form.findChild<Control*>(QString::fromStdString(name));
    if (part == nullptr)
        throw std::runtime_error("no control " + name);
    return *part;
}

inline std::string textIn(const QWidget& form, const std::string& input)
{
    return partOf<QLineEdit>(form, input).text().toStdString();
}

inline void type(const QWidget& form, const std::string& input, const std::string& text)
{
    partOf<QLineEdit>(form, input).setText(QString::fromStdString(text));
}

inline void click(const QWidget& form, const std::string& button)
{
    partOf<QPushButton>(form, button).click();
}

/// The input that is open in a cell or label of a view; null when none is.
inline QLineEdit* openEditor(const QAbstractItemView& view)
{
    for (auto* const editor :
         view.viewport()->findChildren<QLineEdit*>(Qt::FindDirectChildrenOnly)) {
        if (!editor->isHidden()) // otherwise it is one that goes soon
            return editor;
    }
    return nullptr;
}

/// Presses and releases a key; `isHeld` for one that has been down for a while.
inline void press(QWidget& receiver, Qt::Key key, bool isHeld = false)
{
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, Qt::NoModifier, QString(), isHeld);
        QApplication::sendEvent(&receiver, &event);
    }
}

/// What a screen reader calls a control.
inline std::string accessibleName(QWidget& control)
{
    return QAccessible::queryAccessibleInterface(&control)->text(QAccessible::Name).toStdString();
}

} // namespace tarsil::test
