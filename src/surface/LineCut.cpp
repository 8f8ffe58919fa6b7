// SPDX-License-Identifier: Apache-2.0
#include "surface/LineCut.h"

#include <algorithm>
#include <array>

namespace tarsil {

namespace {

bool isInside(QPointF point, const QRectF& rectangle)
{
    return point.x() >= rectangle.left() && point.x() <= rectangle.right()
        && point.y() >= rectangle.top() && point.y() <= rectangle.bottom();
}

} // namespace

/// The algorithm of Liang and Barsky (1984): each edge narrows the range of the line's parameter,
/// which is 0 at the start and 1 at the end.
bool cutLine(QPointF& from, QPointF& to, const QRectF& rectangle)
{
    if (isInside(from, rectangle) && isInside(to, rectangle))
        return true;
    const QPointF way = to - from;
    const std::array<std::array<double, 2>, 4> edges = {{{-way.x(), from.x() - rectangle.left()},
                                                         {way.x(), rectangle.right() - from.x()},
                                                         {-way.y(), from.y() - rectangle.top()},
                                                         {way.y(), rectangle.bottom() - from.y()}}};
    double first = 0;
    double last = 1;
    for (const auto& [direction, distance] : edges) {
        if (direction == 0 && distance < 0)
            return false;
        if (direction < 0)
            first = std::max(first, distance / direction);
        else if (direction > 0)
            last = std::min(last, distance / direction);
    }
    if (first > last)
        return false;
    to = from + last * way;
    from += first * way;
    return true;
}

} // namespace tarsil
