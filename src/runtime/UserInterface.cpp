#include "runtime/UserInterface.h"

namespace tarsil {

UserInterface::~UserInterface() = default;

} // namespace tarsil
