// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "emf/EmfItem.h"

#include <QRect>
#include <QSize>
#include <QString>

#include <cstdint>
#include <string_view>
#include <vector>

namespace tarsil::test {

/// A valid metafile: the header and all records including the header.
struct EmfContents
{
    QRect bounds;
    QRect frame;
    std::uint32_t handles = 0;
    QSize device;
    QSize millimetres;
    QSize micrometres;
    QString description; ///< with the final zeros
    std::vector<EmfItem> records;
};

/// Reads a metafile. Throws std::runtime_error at any fault: sizes, counts and offsets, the use of
/// objects and saved states, the end, the frame, and record types that these pictures must not
/// have.
EmfContents readMetafile(std::string_view bytes);

} // namespace tarsil::test
