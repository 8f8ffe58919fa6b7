// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "base/user/Progress.h"

#include <span>
#include <string_view>

namespace tarsil {

class Sheet;

/// Writes a sheet to a file, whole or not at all. The extension of `path`, in any case, selects the
/// format:
///
///     .xlsx  numbers as numbers, every text as text (also one that begins with "="); rows in the
///            colours of their styles; the first row in bold and frozen; equal sheets give equal
///            bytes
///     .csv   commas between the cells, CR LF after each row, double quotes around a text with a
///            comma, a quote or a line end; an apostrophe before a text that begins with
///            = + - @, a tab or a carriage return, so that it is shown and not run; a decimal
///            point in every locale; 8-bit text
///
/// Errors: 5 for another extension, or for a sheet or text beyond the limits of spreadsheets; those
/// of writing a file (57, 61, 70, 75, 76).
void writeSheet(const Sheet& sheet, std::string_view path);

/// Writes several sheets: a spreadsheet has all of them as pages, in order; a .csv file, which has
/// room for one table, has the first. Reports progress while it makes a spreadsheet. Returns false
/// after a stop, when nothing is written.
bool writeSheets(std::span<const Sheet* const> sheets, std::string_view path,
                 const Progress& progress = {});

} // namespace tarsil
