// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

namespace tarsil {

class PlotList;
class UserInterface;

/// Asks for a format and a folder, which is `folder` at first, and writes the picture of every plot
/// there, named by its caption. Asks once before files are replaced. Does nothing when the user
/// cancels. Nothing is written if a plot cannot be drawn or a file cannot be written. After a stop
/// the pictures drawn so far are written.
void saveAllPictures(const PlotList& list, const std::string& folder, UserInterface& user);

} // namespace tarsil
