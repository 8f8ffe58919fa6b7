// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

namespace tarsil {

/// The name of the account that runs this program, in UTF-8; that of the environment where the
/// system does not know the account.
std::string userName();

} // namespace tarsil
