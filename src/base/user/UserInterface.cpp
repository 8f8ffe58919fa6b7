// SPDX-License-Identifier: Apache-2.0
#include "base/user/UserInterface.h"

namespace tarsil {

UserInterface::~UserInterface() = default;

} // namespace tarsil
