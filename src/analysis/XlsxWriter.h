#pragma once

#include <string_view>

namespace tarsil {

class Sheet;

/// Writes the sheet as a spreadsheet (.xlsx), whole or not at all, whatever the extension of
/// `path`; what it looks like and which errors it raises is said at `writeSheet`.
void writeXlsx(const Sheet& sheet, std::string_view path);

} // namespace tarsil
