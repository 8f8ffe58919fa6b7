// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "base/user/Progress.h"

#include <optional>
#include <string>

namespace tarsil {

struct ReportContent;

/// The document as a page of HTML in UTF-8 that needs no other file; its pictures are SVG. Equal
/// contents give equal bytes. Needs a QGuiApplication. Reports progress after each row of a
/// table and each other block. Empty after a stop. Errors: those of the pictures.
std::optional<std::string> htmlReport(const ReportContent& content, const Progress& progress);

} // namespace tarsil
