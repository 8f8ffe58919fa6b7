// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "analysis/Sheet.h"

#include <string>

namespace tarsil::test {

/// The bytes of a part of a zip archive, such as "xl/worksheets/sheet1.xml". Fails the test and
/// returns nothing if there is no such part.
std::string zipPart(const std::string& path, const std::string& part);

/// A sheet of a spreadsheet with its title, by its number from 1; read without the library that
/// wrote it.
Sheet readXlsx(const std::string& path, int number = 1);

} // namespace tarsil::test
