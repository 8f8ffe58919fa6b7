#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

namespace tarsil {

// A text box that somebody has put at a place is in reach when enough of it lies in the plot to be
// seen and taken hold of: 16 pixels of its width and of its height, or half of them where the box
// is smaller than twice that. All lengths are pixels of the plot.

/// Where a box is shown that is to stand at `box`: there while it is in reach. Otherwise it is
/// shifted to the nearest edges, wholly into the plot; of a box that does not fit, the upper left
/// part is shown.
QRect shownPlace(const QRect& box, QSize plot);

/// The corner nearest to `corner` with which a box of that size is in reach.
QPoint nearestInReach(QPoint corner, QSize box, QSize plot);

} // namespace tarsil
