// SPDX-License-Identifier: Apache-2.0
#pragma once

class QString;

namespace tarsil {

/// Converts foreign text (a path, a legend, a finding) for a tool tip, which always interprets
/// mark-up. Labels and message boxes can be set to `Qt::PlainText` instead.
QString toolTipText(const QString& text);

} // namespace tarsil
