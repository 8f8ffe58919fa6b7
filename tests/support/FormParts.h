// SPDX-License-Identifier: Apache-2.0
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

/// A widget of a form by its object name; fails the test if there is none.
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

/// The open editor of a cell or label in a view; null when there is none.
inline QLineEdit* openEditor(const QAbstractItemView& view)
{
    for (auto* const editor :
         view.viewport()->findChildren<QLineEdit*>(Qt::FindDirectChildrenOnly)) {
        if (!editor->isHidden()) // a hidden one is about to be deleted
            return editor;
    }
    return nullptr;
}

/// Presses and releases a key; `isHeld` for an auto-repeated one.
inline void press(QWidget& receiver, Qt::Key key, bool isHeld = false)
{
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, Qt::NoModifier, QString(), isHeld);
        QApplication::sendEvent(&receiver, &event);
    }
}

/// The accessible name of a widget.
inline std::string accessibleName(QWidget& control)
{
    return QAccessible::queryAccessibleInterface(&control)->text(QAccessible::Name).toStdString();
}

} // namespace tarsil::test
