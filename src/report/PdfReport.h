// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "base/user/Progress.h"

#include <optional>
#include <string>

namespace tarsil {

struct ReportContent;

/// The document as PDF, with the pictures as vectors. Equal contents give equal bytes. Needs a
/// QGuiApplication. Reports progress after each row that is laid out and each page.
/// Empty after a stop. Errors: 5 when it cannot be drawn; those of the pictures.
std::optional<std::string> pdfReport(const ReportContent& content, const Progress& progress);

} // namespace tarsil
