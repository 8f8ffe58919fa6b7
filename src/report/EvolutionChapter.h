// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "report/ReportBuilder.h"

namespace tarsil {

/// The chapter about the evolutions: for each its file with size, date and digest, its header, its
/// origin, its modifications, and the warnings about its contents.
ReportSection evolutionChapter(const ReportInput& input);

} // namespace tarsil
