#pragma once

#include "model/Point.h"

#include <cstdint>
#include <string>
#include <vector>

namespace tarsil {

class EVM;

/// One aeroelastic mode: its points in file order, which is increasing speed. It stays where it was
/// made, since its points refer to it.
class AeMode
{
public:
    AeMode() = default;
    AeMode(const AeMode&) = delete;
    AeMode& operator=(const AeMode&) = delete;

    std::int16_t Id = 0; ///< the mode number as written in the file
    std::vector<Point> Points; ///< one per speed
    std::vector<Point> flutterPoints; ///< what the last flutter search found, interpolated
    EVM* Parent = nullptr; ///< the evolution that holds this mode; not owned
    std::string Tag; ///< short label, at most 4 characters of it are written

    /// Makes this mode an independent copy of `source` by `Point::Clone`: the points become this
    /// mode's own (their `Parent` is this mode), `Parent` of the mode itself stays as it is.
    void copyFrom(const AeMode& source);
};

} // namespace tarsil
