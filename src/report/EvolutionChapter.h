// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "base/user/Progress.h"
#include "report/ReportBuilder.h"

namespace tarsil {

/// The chapter about the evolutions: for each its file with size, date and digest, its header, its
/// origin, its modifications, and the warnings about its contents. Each of them is a step; after a
/// stop the chapter is incomplete.
ReportSection evolutionChapter(const ReportInput& input, StepCounter& steps);

} // namespace tarsil
