#include "vgfplot/BoxReach.h"

#include <algorithm>

namespace tarsil {

namespace {

/// The same in one direction.
int shownPosition(int position, int extent, int plot)
{
    const int room = plot - extent; // negative for a box that does not fit
    return std::clamp(position, std::min(room, 0), std::max(room, 0));
}

} // namespace

QRect shownPlace(const QRect& box, QSize plot)
{
    return {QPoint(shownPosition(box.left(), box.width(), plot.width()),
                   shownPosition(box.top(), box.height(), plot.height())),
            box.size()};
}

} // namespace tarsil
