// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QDateTime>

namespace tarsil {

struct ReportContent;

/// The date for the properties of a file: that of the workspace, or 1980-01-01 when it has none
/// that can be read. It is never that of the clock, so that equal contents give equal bytes.
QDateTime documentDate(const ReportContent& content);

} // namespace tarsil
