// SPDX-License-Identifier: Apache-2.0
#pragma once

class QString;

namespace tarsil {

/// Opens a spreadsheet in the system's program for it. False when there is none.
bool openSpreadsheet(const QString& path);

} // namespace tarsil
