// SPDX-License-Identifier: Apache-2.0
#include "base/user/TypedNumber.h"

#include "base/numbers/Numbers.h"
#include "base/user/UserInterface.h"

namespace tarsil {

void askForNumber(UserInterface& user)
{
    user.showMessage("Please enter a numeric value.", "Tarsil", MessageIcon::None);
}

std::optional<float> typedSingle(std::string_view text, std::string_view source,
                                 std::string_view where, UserInterface& user)
{
    float value = 0;
    const NumberStatus status = parseSingle(text, value);
    if (status == NumberStatus::Ok)
        return value;
    if (status == NumberStatus::Overflow)
        throwNumberError(status, text, source, where);
    askForNumber(user);
    return std::nullopt;
}

} // namespace tarsil
