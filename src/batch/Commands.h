#pragma once

#include "batch/CommandLine.h"

namespace tarsil::batch {

class BatchRun;

/// A command of the program: what it takes, and what does it. The result is the exit status; what
/// cannot be done is raised as Failure, UsageError or RunTimeError.
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

/// For commands that take as many files as there are.
constexpr std::size_t anyNumber = static_cast<std::size_t>(-1);

// Exit statuses.
constexpr int done = 0;
constexpr int failed = 1;
constexpr int wrongUsage = 2;

} // namespace tarsil::batch
