// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "emf/EmfReader.h"
#include "emf/EmfSink.h"
#include "emf/MetafileContext.h"

#include <string>
#include <vector>

namespace tarsil::test {

/// The records of a metafile without header and end, one on a line:
///
///     save                               restore -1
///     pen 1 solid 1 #000000              brush 2 #0000ff
///     font 1 -11 400 charset 1 Arial     select 1 | select stock 8
///     delete 1                           background transparent
///     clip region 1,2 5,6                clip intersect 1,2 5,6
///     polyline16 0,1 2,3                 move 0,1 | line 2,3
///     fill 1,2 30x40                     align 24 | color #ff0000
///     text 10,20 6 6 two
///
/// A clip is given by its upper left corner and the first pixel outside its lower right one; a text
/// with the advances of its units.
std::vector<std::string> listingOf(const EmfContents& contents);

/// The polylines of a metafile.
std::vector<EmfItem> polylinesOf(const EmfContents& contents);

/// The metafile made by `draw`, read by the tests' reader.
template <typename Draw>
EmfContents metafileOf(Draw draw, MetafileDashes dashes = MetafileDashes::Pens)
{
    EmfMemory memory;
    MetafileContext context(memory, QStringLiteral("a test"), dashes);
    draw(context);
    context.close();
    return readMetafile(memory.bytes());
}

/// Its listing without the common start and end: saving and restoring the state, and deleting
/// objects.
template <typename Draw>
std::vector<std::string> drawnRecords(Draw draw, MetafileDashes dashes = MetafileDashes::Pens)
{
    std::vector<std::string> lines = listingOf(metafileOf(draw, dashes));
    lines.erase(lines.begin());
    while (lines.back().starts_with("delete"))
        lines.pop_back();
    lines.pop_back();
    return lines;
}

} // namespace tarsil::test
