#pragma once

#include <QRectF>

namespace tarsil {

/// Surfaces and players are exact only so far from the picture: the square that reaches `distance`
/// pixels to all sides of (0, 0).
inline QRectF guardBand(double distance)
{
    return {QPointF(-distance, -distance), QPointF(distance, distance)};
}

/// Cuts a line at the edges of a rectangle, so that it keeps its slope; false when no part of it
/// lies there.
bool cutLine(QPointF& from, QPointF& to, const QRectF& rectangle);

} // namespace tarsil
