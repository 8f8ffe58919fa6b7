#pragma once

class QString;

namespace tarsil {

/// Opens a spreadsheet in the program that the system has for it; false when there is none.
bool openSpreadsheet(const QString& path);

} // namespace tarsil
