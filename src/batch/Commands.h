// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "batch/CommandLine.h"

namespace tarsil::batch {

class BatchRun;

/// A command of the program: its description and its function. The function returns the exit status
/// and raises Failure, UsageError or RunTimeError.
struct Command
{
    CommandDescription description;
    int (*run)(const CommandLine& line, BatchRun& run);
};

extern const Command infoCommand;
extern const Command checkCommand;
extern const Command reportCommand;
extern const Command pictureCommand;
extern const Command convertCommand;
extern const Command mixCommand;
extern const Command importCommand;
extern const Command crossingsCommand;
extern const Command trackCommand;
extern const Command trendCommand;
extern const Command documentCommand;

/// For commands without a maximum number of files.
constexpr std::size_t anyNumber = static_cast<std::size_t>(-1);

// Exit statuses.
constexpr int done = 0;
constexpr int failed = 1;
constexpr int wrongUsage = 2;

} // namespace tarsil::batch
