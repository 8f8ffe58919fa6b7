// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "report/ReportBuilder.h"

#include <cstddef>

namespace tarsil {

/// A section about a plot of the record: its picture, axes, references and curves. Errors: those of
/// changing a plot.
ReportSection plotSection(const ReportInput& input, std::size_t index);

} // namespace tarsil
