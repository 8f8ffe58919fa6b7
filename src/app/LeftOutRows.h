// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

namespace tarsil {

class EvmPlot;
class UserInterface;

/// Shows one message with the rows of these plots whose modes do not exist, because a command
/// leaves them out; nothing when all modes exist. `from` is what they are left out of: "the flutter
/// report". With several plots the captions are included.
void showLeftOutRows(const std::vector<const EvmPlot*>& plots, const std::string& from,
                     UserInterface& user);

} // namespace tarsil
