// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QDateTime>
#include <QString>

namespace tarsil {

/// The date for the properties of a file. It is that of the workspace, given as the workspace has
/// it ("07-Mar-2026 09:05:03"), or 1980-01-01 for a text that is empty or no date. It is never that
/// of the clock, so that equal contents give equal bytes.
QDateTime propertyDate(const QString& workspaceDate);

} // namespace tarsil
