#include "vgf/BoxReach.h"

#include <algorithm>

namespace tarsil {

namespace {

/// How much of a width or height has to lie in the plot.
int leastInSight(int extent)
{
    constexpr int least = 16;
    return std::min(least, (extent + 1) / 2);
}

/// The same in one direction: the nearest position in reach.
int nearestInReach(int position, int extent, int plot)
{
    const int least = leastInSight(extent);
    const int first = least - extent;
    return std::clamp(position, first, std::max(first, plot - least));
}

int inside(int position, int extent, int plot)
{
    return std::clamp(position, 0, std::max(0, plot - extent));
}

} // namespace

QRect shownPlace(const QRect& box, QSize plot)
{
    if (nearestInReach(box.topLeft(), box.size(), plot) == box.topLeft())
        return box;
    return {QPoint(inside(box.left(), box.width(), plot.width()),
                   inside(box.top(), box.height(), plot.height())),
            box.size()};
}

QPoint nearestInReach(QPoint corner, QSize box, QSize plot)
{
    return {nearestInReach(corner.x(), box.width(), plot.width()),
            nearestInReach(corner.y(), box.height(), plot.height())};
}

} // namespace tarsil
