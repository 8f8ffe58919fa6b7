#pragma once

#include "analysis/Sheet.h"

#include <string>

namespace tarsil::test {

/// The bytes of one part of a zip archive, such as "xl/worksheets/sheet1.xml"; a failed test
/// expectation, and empty, when there is none.
std::string zipPart(const std::string& path, const std::string& part);

/// The cells of a sheet of a spreadsheet, by its number from 1, with its title; read back without
/// the library that wrote it.
Sheet readXlsx(const std::string& path, int number = 1);

} // namespace tarsil::test
