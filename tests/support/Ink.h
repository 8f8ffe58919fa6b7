// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QImage>
#include <QRect>

namespace tarsil::test {

/// The bounds of all pixels that are clearly darker than white.
QRect inkBounds(const QImage& image);

/// The share of the inked pixels of a picture within `area` that have ink of similar colour in
/// another picture, at most `distance` pixels away; 0 when there are none.
double inkShare(const QImage& image, const QRect& area, const QImage& other, int distance);

/// Expects two pictures of equal size to show the same: at least `share` of the inked pixels of
/// each have ink of similar colour in the other, at most `distance` pixels away.
void expectSameInk(const QImage& a, const QImage& b, int distance, double share);

} // namespace tarsil::test
