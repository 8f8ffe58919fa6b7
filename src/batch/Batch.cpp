// SPDX-License-Identifier: Apache-2.0
#include "batch/Batch.h"

#include "base/user/RunTimeError.h"
#include "batch/BatchRun.h"
#include "batch/Commands.h"
#include "formats/FormatTable.h"

#include <algorithm>
#include <array>
#include <new>
#include <ostream>
#include <span>

namespace tarsil::batch {

namespace {

constexpr std::array<const Command*, 11> commands = {
    &infoCommand,    &checkCommand, &reportCommand,  &pictureCommand,
    &convertCommand, &mixCommand,   &importCommand,  &crossingsCommand,
    &trackCommand,   &trendCommand, &documentCommand};

std::string programHelp()
{
    std::string text = "Usage: tarsil-batch COMMAND [OPTION]... FILE...\n\n"
                       "Does the work of tarsil without a window. Each FILE is a modal\n"
                       "evolution ("
        + formatExtensions("or")
        + ") or a workspace (.tsw).\n\n"
          "Commands:\n";
    constexpr std::size_t width = 11;
    for (const Command* command : commands) {
        const std::string_view name = command->description.name;
        text.append("  ").append(name).append(width - name.size(), ' ');
        text.append(command->description.summary).append("\n");
    }
    return text
        + "\n"
          "  --help     prints this text; after a command, the help of the command\n"
          "  --version  prints the version\n\n"
          "A LIST of modes is a list of positions in the file, counted from 1, such as 1,3-5.\n"
          "Speeds are in knots equivalent airspeed (KEAS), frequencies in Hz, altitudes in ft;\n"
          "damping is the dimensionless g, negative for a stable mode.\n\n"
          "An output is written whole or not at all. Exit status: 0 success, 1 failure,\n"
          "2 wrong usage.\n";
}

/// Whether --help is an option here: not after "--", and not the value of an option.
bool asksForHelp(const Command& command, std::span<const std::string> arguments)
{
    for (std::size_t i = 0; i < arguments.size() && arguments[i] != "--"; ++i) {
        if (arguments[i] == "--help")
            return true;
        if (takesNextArgument(command.description, arguments[i]))
            ++i;
    }
    return false;
}

const Command& commandNamed(const std::string& name)
{
    const auto command = std::find_if(commands.begin(), commands.end(), [&name](const auto* known) {
        return known->description.name == name;
    });
    if (command == commands.end())
        throw UsageError((name.starts_with('-') ? "unknown option " : "unknown command ") + name);
    return **command;
}

int runCommand(const std::vector<std::string>& arguments, BatchRun& run)
{
    if (arguments.empty())
        throw UsageError("no command is given");
    if (arguments[0] == "--help" || arguments[0] == "--version") {
        run.out() << (arguments[0] == "--help" ? programHelp()
                                               : "tarsil-batch " TARSIL_VERSION "\n");
        return done;
    }
    const Command& command = commandNamed(arguments[0]);
    const auto rest = std::span(arguments).subspan(1);
    if (asksForHelp(command, rest)) {
        run.out() << helpText(command.description);
        return done;
    }
    return command.run(CommandLine(command.description, rest), run);
}

std::string hint(const std::vector<std::string>& arguments)
{
    const bool hasCommand = !arguments.empty()
        && std::any_of(commands.begin(), commands.end(), [&arguments](const auto* known) {
               return known->description.name == arguments[0];
           });
    return "\"tarsil-batch " + (hasCommand ? arguments[0] + " " : "")
        + "--help\" shows how to use it.";
}

int runWithMessages(const std::vector<std::string>& arguments, BatchRun& run)
{
    try {
        return runCommand(arguments, run);
    } catch (const UsageError& error) {
        run.complain(error.what());
        run.complain(hint(arguments));
        return wrongUsage;
    } catch (const std::bad_alloc&) {
        throw;
    } catch (const std::exception& error) {
        run.complain(run.readable(error.what()));
    }
    return failed;
}

/// Handles std::bad_alloc last, because memory may run out while another failure is reported.
int runGuarded(const std::vector<std::string>& arguments, BatchRun& run)
{
    try {
        return runWithMessages(arguments, run);
    } catch (const std::bad_alloc&) {
        run.complain("out of memory");
        return failed;
    }
}

} // namespace

int runBatch(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err)
{
    BatchRun run(out, err);
    const int status = runGuarded(arguments, run);
    if (out.flush())
        return status;
    run.complain("standard output cannot be written");
    return status == done ? failed : status;
}

bool drawsPicture(const std::vector<std::string>& arguments)
{
    if (arguments.empty())
        return false;
    const auto draws = [&arguments](const Command& command) {
        return arguments[0] == command.description.name
            && !asksForHelp(command, std::span(arguments).subspan(1));
    };
    return draws(pictureCommand) || draws(trendCommand) || draws(documentCommand);
}

} // namespace tarsil::batch
