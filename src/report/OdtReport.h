// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "base/user/Progress.h"

#include <optional>
#include <string>

namespace tarsil {

struct ReportContent;

/// The document as a text of the Open Document Format (ISO/IEC 26300), with the pictures as SVG.
/// Equal contents give equal bytes. Needs a QGuiApplication. Reports progress after each row of a
/// table and each other block, and while it compresses. Empty after a stop. Errors: those of the
/// pictures.
std::optional<std::string> odtReport(const ReportContent& content, const Progress& progress);

} // namespace tarsil
