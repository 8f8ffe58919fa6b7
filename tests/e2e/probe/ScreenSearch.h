// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QRect>
#include <QStringList>

namespace tarsil::test {

/// Where something is on the screen; empty when it is not visible or not enabled. The request is a
/// list:
///
///     widget NAME            by object name, accessible name, caption, or name of its action
///     action NAME            an entry of a menu bar or an open menu, by object name
///     item VIEW TEXT         an entry of a view of items, by its text
///     cell VIEW ROW COLUMN   a cell of a view of items, counted from 0
///     window TITLE           the active window, if the regular expression matches its title
///
/// The open menu, the dialog in front and the active window are searched first.
QRect findOnScreen(const QStringList& request);

} // namespace tarsil::test
