// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

namespace tarsil {

/// A reference-speed mark of the speed axis.
struct RefThick
{
    float Speed = 0; ///< KEAS
    QString Caption; ///< written above the mark

    bool operator==(const RefThick&) const = default;
};

} // namespace tarsil
