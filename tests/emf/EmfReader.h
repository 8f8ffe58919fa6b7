#pragma once

#include "emf/EmfItem.h"

#include <QRect>
#include <QSize>
#include <QString>

#include <cstdint>
#include <string_view>
#include <vector>

namespace tarsil::test {

/// A metafile that holds together: the header and all records, the header itself among them.
struct EmfContents
{
    QRect bounds;
    QRect frame;
    std::uint32_t handles = 0;
    QSize device;
    QSize millimetres;
    QSize micrometres;
    QString description; ///< with the zeros at its end
    std::vector<EmfItem> records;
};

/// Reads a metafile. Raises std::runtime_error at anything that is not as it must be: sizes, counts
/// and offsets, the use of objects and of saved states, the end, the frame of the bounds, and
/// records that no picture here should have.
EmfContents readMetafile(std::string_view bytes);

} // namespace tarsil::test
