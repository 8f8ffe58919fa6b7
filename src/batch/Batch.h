#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace tarsil::batch {

/// The program tarsil-batch: runs the command that the arguments (without the program's name) name,
/// writes results to `out` and messages to `err`, and returns the exit status: 0 done, 1 failed
/// (the message names the file and, where there is one, the line), 2 wrong usage. The command
/// "picture" needs a QGuiApplication.
int runBatch(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err);

/// Whether these arguments draw a picture, and so need a QGuiApplication.
bool drawsPicture(const std::vector<std::string>& arguments);

} // namespace tarsil::batch
