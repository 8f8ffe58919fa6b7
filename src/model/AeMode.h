// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "model/Point.h"

#include <cstdint>
#include <string>
#include <vector>

namespace tarsil {

class EVM;

/// An aeroelastic mode: its points in file order, which is increasing speed. It must not be moved,
/// because its points refer to it.
class AeMode
{
public:
    AeMode() = default;
    AeMode(const AeMode&) = delete;
    AeMode& operator=(const AeMode&) = delete;

    std::int16_t Id = 0; ///< the mode number of the file
    std::vector<Point> Points; ///< one for each speed
    std::vector<Point> flutterPoints; ///< the result of the last flutter search, interpolated
    EVM* Parent = nullptr; ///< the evolution that owns this mode
    std::string Tag; ///< short label, of which up to 4 characters are written

    /// Makes this mode an independent copy of `source` by `Point::Clone`. `Parent` of the points is
    /// this mode; `Parent` of this mode is unchanged.
    void copyFrom(const AeMode& source);
};

} // namespace tarsil
