#pragma once

#include <string>
#include <vector>

namespace tarsil {

class EvmPlot;
class UserInterface;

/// Tells the user in one message which rows of these plots have no curve, and why, so that a
/// command leaves them out; says nothing when all rows have one. `from` is what they are left out
/// of: "the flutter report". Of several plots the captions are told as well.
void tellOfLeftOutRows(const std::vector<const EvmPlot*>& plots, const std::string& from,
                       UserInterface& user);

} // namespace tarsil
