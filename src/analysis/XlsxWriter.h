// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "base/user/Progress.h"

#include <span>
#include <string_view>

namespace tarsil {

class Sheet;

/// Writes sheets as a spreadsheet (.xlsx), whole or not at all, whatever the extension of `path`.
/// Appearance and errors: see `writeSheet`. Returns false after a stop, when nothing is written.
bool writeXlsx(std::span<const Sheet* const> sheets, std::string_view path,
               const Progress& progress);

} // namespace tarsil
