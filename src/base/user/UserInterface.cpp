#include "base/user/UserInterface.h"

namespace tarsil {

UserInterface::~UserInterface() = default;

} // namespace tarsil
