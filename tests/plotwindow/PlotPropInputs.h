// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <map>
#include <string>
#include <vector>

namespace tarsil::test {

/// Texts by the names of inputs or labels.
using TextsByName = std::map<std::string, std::string>;

/// The inputs of the dialog of the plot properties, in the order of the axes.
inline const std::vector<std::string> inputNames = {
    "inpVmin",     "inpVmax",   "inpVnthicks", "inpVlabel", "inpGmin",     "inpGmax",
    "inpGnthicks", "inpGlabel", "inpFmin",     "inpFmax",   "inpFnthicks", "inpFlabel"};

} // namespace tarsil::test
