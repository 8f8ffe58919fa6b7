// SPDX-License-Identifier: Apache-2.0
#include "formats/MdlMix.h"

#include "base/files/PathNames.h"
#include "base/numbers/Numbers.h"
#include "base/user/BusyStatus.h"
#include "base/user/ErrorGuard.h"
#include "base/user/RunTimeError.h"
#include "formats/EvolutionFile.h"

#include <algorithm>
#include <optional>
#include <string>

namespace tarsil::mdlMix {

std::unique_ptr<EVM> gather(const std::vector<const AeMode*>& modes)
{
    auto mixed = std::make_unique<EVM>();
    std::size_t points = 0;
    for (const AeMode* mode : modes) {
        if (mode == nullptr)
            throw RunTimeError(ErrorNumber::ObjectVariableNotSet, "mdlMix",
                               "mode " + std::to_string(mixed->Modes.size() + 1) + " of the mix");
        mixed->appendMode().copyFrom(*mode);
        points = std::max(points, mode->Points.size());
    }
    mixed->na = roundToInteger16(static_cast<double>(modes.size()), "mdlMix", "number of modes");
    mixed->numberOfSpeeds =
        roundToInteger16(static_cast<double>(points), "mdlMix", "number of speeds");
    return mixed;
}

void exportMixed(const std::vector<const AeMode*>& modes, UserInterface& userInterface)
{
    guarded(userInterface, "mdlMix", [&] {
        const std::unique_ptr<EVM> mixed = gather(modes);
        FileQuestion question;
        question.filter = mixedFilter;
        const std::optional<std::string> path = userInterface.askSaveFile(question);
        if (!path)
            return;
        const BusyStatus status(userInterface, exportingStatus);
        PrintEVM(*mixed, *path);
        userInterface.showNote("The mixed modal evolution is in " + wholePath(*path));
    });
}

} // namespace tarsil::mdlMix
