#pragma once

#include <QString>

namespace tarsil {

/// One reference-speed mark of the speed axis.
struct RefThick
{
    float Speed = 0; ///< knots, in the axis' units
    QString Caption; ///< written above the mark

    bool operator==(const RefThick&) const = default;
};

} // namespace tarsil
