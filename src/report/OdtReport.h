// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

namespace tarsil {

struct ReportContent;

/// The document as a text of the Open Document Format (ISO/IEC 26300), with the pictures as SVG.
/// Equal contents give equal bytes. Needs a QGuiApplication. Errors: those of the pictures.
std::string odtReport(const ReportContent& content);

} // namespace tarsil
