// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "base/user/Progress.h"

#include <array>
#include <string>
#include <string_view>

namespace tarsil {

struct ReportContent;

/// The extensions of report documents.
inline constexpr std::array<std::string_view, 3> reportExtensions = {".pdf", ".odt", ".html"};

/// Writes a report document to a file, whole or not at all. The extension of `path`, in any case,
/// selects the format. Equal contents give equal bytes. Needs a QGuiApplication. Reports progress
/// after each row of a table, each other block, and each page. Returns false after a stop, when
/// nothing is written. Errors: 5 for another extension; those of the pictures and of writing a
/// file.
bool writeReport(const ReportContent& content, const std::string& path,
                 const Progress& progress = {});

} // namespace tarsil
