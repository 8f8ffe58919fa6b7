// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QKeySequence>
#include <QList>

class QString;

namespace tarsil {

/// Converts foreign text (a path, a legend, a finding) for a tool tip, which always interprets
/// mark-up. Labels and message boxes can be set to `Qt::PlainText` instead.
QString toolTipText(const QString& text);

/// A tool tip that shows the keys of a command: "Bold (Ctrl+B)". Empty keys are left out; the text
/// alone without a key.
QString toolTipWithKeys(const QString& text, const QList<QKeySequence>& keys);

} // namespace tarsil
