#pragma once

#include "emf/EmfRecord.h"

#include <QRect>
#include <QString>

#include <cstdint>

namespace tarsil {

/// What the first record of a metafile says of the whole.
struct EmfHeader
{
    QString description;
    QRect bounds {}; ///< pixels that are drawn, last column and row included; null when none is
    std::uint32_t bytes = 0;
    std::uint32_t records = 0;
    std::uint32_t handles = 1; ///< highest object index and one, as index 0 is reserved
};

/// The record; its size depends on nothing but the description.
EmfRecord headerRecord(const EmfHeader& header);

} // namespace tarsil
