#pragma once

#include <span>
#include <string_view>

namespace tarsil {

class Sheet;

/// Writes the sheets as a spreadsheet (.xlsx), whole or not at all, whatever the extension of
/// `path`; what it looks like and which errors it raises is said at `writeSheet`.
void writeXlsx(std::span<const Sheet* const> sheets, std::string_view path);

} // namespace tarsil
