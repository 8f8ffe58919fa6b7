// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "emf/EmfRecord.h"

#include <QRect>
#include <QString>

#include <cstdint>

namespace tarsil {

/// The contents of the first record, which describes the whole metafile.
struct EmfHeader
{
    QString description;
    QRect bounds {}; ///< drawn pixels, last column and row included; null when none
    std::uint32_t bytes = 0;
    std::uint32_t records = 0;
    std::uint32_t handles = 1; ///< highest object index plus one; index 0 is reserved
};

/// The header record. Its size depends only on the description.
EmfRecord headerRecord(const EmfHeader& header);

} // namespace tarsil
