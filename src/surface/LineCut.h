// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QRectF>

namespace tarsil {

/// Surfaces and metafile players are exact only near the picture: in the square that extends
/// `distance` pixels from (0, 0) in every direction.
inline QRectF guardBand(double distance)
{
    return {QPointF(-distance, -distance), QPointF(distance, distance)};
}

/// Clips a line to a rectangle and keeps its slope. False when no part of the line is inside.
bool cutLine(QPointF& from, QPointF& to, const QRectF& rectangle);

} // namespace tarsil
