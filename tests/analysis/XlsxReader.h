#pragma once

#include "analysis/Sheet.h"

#include <string>

namespace tarsil::test {

/// The bytes of one part of a zip archive, such as "xl/worksheets/sheet1.xml"; a failed test
/// expectation, and empty, when there is none.
std::string zipPart(const std::string& path, const std::string& part);

/// The cells of the first sheet of a spreadsheet, read back without the library that wrote it.
Sheet readXlsx(const std::string& path);

} // namespace tarsil::test
