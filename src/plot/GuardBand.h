#pragma once

class QPointF;

namespace tarsil {

/// Surfaces and players are exact only so far from the picture. Cuts a line to the square that
/// reaches `band` pixels to all sides of (0, 0), so that it keeps its slope; false when no part of
/// it lies there.
bool cutToGuardBand(QPointF& from, QPointF& to, double band);

} // namespace tarsil
