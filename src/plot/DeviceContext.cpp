#include "plot/DeviceContext.h"

namespace tarsil {

DeviceContext::~DeviceContext() = default;

} // namespace tarsil
