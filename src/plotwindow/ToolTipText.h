#pragma once

class QString;

namespace tarsil {

/// Foreign text (a path, a legend, a finding) as the tool tip of a widget or an item that shows it
/// as it stands: a tool tip takes for mark-up what looks like it, and has no setting against it.
/// Labels and message boxes have one, `Qt::PlainText`.
QString toolTipText(const QString& text);

} // namespace tarsil
