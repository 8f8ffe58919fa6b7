// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace tarsil::batch {

/// The program tarsil-batch. Runs the command in `arguments` (without the program's name), writes
/// results to `out` and messages to `err`, and returns the exit status: 0 success, 1 failure (the
/// message names the file and, if there is one, the line), 2 wrong usage. The command "picture"
/// needs a QGuiApplication.
int runBatch(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err);

/// Whether the arguments draw a picture, which needs a QGuiApplication.
bool drawsPicture(const std::vector<std::string>& arguments);

} // namespace tarsil::batch
