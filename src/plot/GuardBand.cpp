#include "plot/GuardBand.h"

#include <QPointF>

#include <algorithm>
#include <array>
#include <cmath>

namespace tarsil {

namespace {

bool isInside(QPointF point, double band)
{
    return std::abs(point.x()) <= band && std::abs(point.y()) <= band;
}

} // namespace

/// The method of Liang and Barsky (1984): each border narrows the range of the line's parameter, 0
/// at its beginning and 1 at its end.
bool cutToGuardBand(QPointF& from, QPointF& to, double band)
{
    if (isInside(from, band) && isInside(to, band))
        return true;
    const QPointF way = to - from;
    const std::array<std::array<double, 2>, 4> borders = {{{-way.x(), from.x() + band},
                                                           {way.x(), band - from.x()},
                                                           {-way.y(), from.y() + band},
                                                           {way.y(), band - from.y()}}};
    double first = 0;
    double last = 1;
    for (const auto& [direction, distance] : borders) {
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
