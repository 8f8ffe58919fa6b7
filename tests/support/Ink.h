#pragma once

#include <QImage>
#include <QRect>

namespace tarsil::test {

/// Bounds of all pixels that are clearly darker than white.
QRect inkBounds(const QImage& image);

/// The share of the inked pixels of one picture within `area` that have ink of about the same
/// colour in another, at most `distance` pixels away; 0 when there is none.
double inkShare(const QImage& image, const QRect& area, const QImage& other, int distance);

/// Expects two pictures of one size to show the same: at least `share` of the inked pixels of each
/// have ink of about the same colour in the other, at most `distance` pixels away.
void expectSameInk(const QImage& a, const QImage& b, int distance, double share);

} // namespace tarsil::test
