#include "model/MdlMix.h"

#include "runtime/Numbers.h"

#include <algorithm>

namespace tarsil::mdlMix {

std::unique_ptr<EVM> gather(const std::vector<const AeMode*>& modes)
{
    auto mixed = std::make_unique<EVM>();
    std::size_t points = 0;
    for (const AeMode* mode : modes) {
        mixed->appendMode().copyFrom(*mode);
        points = std::max(points, mode->Points.size());
    }
    mixed->na = roundToInteger16(static_cast<double>(modes.size()), "mdlMix", "number of modes");
    mixed->numberOfSpeeds =
        roundToInteger16(static_cast<double>(points), "mdlMix", "number of speeds");
    return mixed;
}

} // namespace tarsil::mdlMix
