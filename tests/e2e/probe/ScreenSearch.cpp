// SPDX-License-Identifier: Apache-2.0
#include "ScreenSearch.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QMenu>
#include <QMenuBar>
#include <QRegularExpression>
#include <QToolButton>

namespace tarsil::test {

namespace {

QString plain(QString text)
{
    return text.remove(u'&');
}

/// The visible windows, in the order in which the user sees them.
QWidgetList windows()
{
    QWidgetList all;
    for (QWidget* const first : {QApplication::activePopupWidget(),
                                 QApplication::activeModalWidget(), QApplication::activeWindow()}) {
        if (first != nullptr)
            all.append(first);
    }
    for (QWidget* const window : QApplication::topLevelWidgets()) {
        if (window->isVisible())
            all.append(window);
    }
    return all;
}

bool isUsable(const QWidget& widget)
{
    return widget.isVisible() && widget.isEnabled() && !widget.visibleRegion().isEmpty();
}

bool isCalled(const QWidget& widget, const QString& name)
{
    const auto* const button = qobject_cast<const QAbstractButton*>(&widget);
    const auto* const tool = qobject_cast<const QToolButton*>(&widget);
    return widget.objectName() == name || plain(widget.accessibleName()) == name
        || (button != nullptr && plain(button->text()) == name)
        || (tool != nullptr && tool->defaultAction() != nullptr
            && tool->defaultAction()->objectName() == name);
}

QWidget* findWidget(const QString& name)
{
    for (QWidget* const window : windows()) {
        if (isCalled(*window, name) && isUsable(*window))
            return window;
        for (QWidget* const widget : window->findChildren<QWidget*>()) {
            if (isCalled(*widget, name) && isUsable(*widget))
                return widget;
        }
    }
    return nullptr;
}

QRect onScreen(const QWidget& widget, const QRect& rectangle)
{
    const QRect shown = rectangle & widget.visibleRegion().boundingRect();
    return shown.isEmpty() ? QRect() : QRect(widget.mapToGlobal(shown.topLeft()), shown.size());
}

QRect actionIn(const QWidget& menu, const QRect& rectangle, const QAction& action)
{
    return action.isEnabled() && action.isVisible() ? onScreen(menu, rectangle) : QRect();
}

bool isCalled(const QAction& action, const QString& name)
{
    return action.objectName() == name
        || (action.menu() != nullptr && action.menu()->objectName() == name);
}

QRect findAction(const QString& name)
{
    for (QWidget* const window : windows()) {
        const auto* const menu = qobject_cast<const QMenu*>(window);
        const auto* const bar = window->findChild<const QMenuBar*>();
        const QWidget* const list = menu != nullptr ? static_cast<const QWidget*>(menu) : bar;
        if (list == nullptr)
            continue;
        for (QAction* const action : list->actions()) {
            if (isCalled(*action, name))
                return actionIn(*list,
                                menu != nullptr ? menu->actionGeometry(action)
                                                : bar->actionGeometry(action),
                                *action);
        }
    }
    return {};
}

QRect indexOnScreen(const QAbstractItemView& view, const QModelIndex& index)
{
    return index.isValid() ? onScreen(*view.viewport(), view.visualRect(index)) : QRect();
}

QRect findActiveWindow(const QString& title)
{
    const QWidget* const window = QApplication::activeWindow();
    const bool isIt =
        window != nullptr && QRegularExpression(title).match(window->windowTitle()).hasMatch();
    return isIt ? window->geometry() : QRect();
}

/// The first entry of a text, at any depth.
QModelIndex findText(const QAbstractItemModel& model, const QString& text)
{
    const QModelIndexList found = model.match(model.index(0, 0), Qt::DisplayRole, text, 1,
                                              Qt::MatchExactly | Qt::MatchRecursive);
    return found.isEmpty() ? QModelIndex() : found.front();
}

} // namespace

QRect findOnScreen(const QStringList& request)
{
    const QString& kind = request.value(0);
    const QString& name = request.value(1);
    if (kind == QStringLiteral("action"))
        return findAction(name);
    if (kind == QStringLiteral("window"))
        return findActiveWindow(name);
    const QWidget* const widget = findWidget(name);
    if (widget == nullptr)
        return {};
    const auto* const view = qobject_cast<const QAbstractItemView*>(widget);
    if (kind == QStringLiteral("item") && view != nullptr)
        return indexOnScreen(*view, findText(*view->model(), request.value(2)));
    if (kind == QStringLiteral("cell") && view != nullptr)
        return indexOnScreen(
            *view, view->model()->index(request.value(2).toInt(), request.value(3).toInt()));
    return kind == QStringLiteral("widget") ? onScreen(*widget, widget->rect()) : QRect();
}

} // namespace tarsil::test
