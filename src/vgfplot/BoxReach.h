#pragma once

#include <QRect>
#include <QSize>

namespace tarsil {

/// The nearest position of a text box at which as much of it as possible lies in the plot: a box
/// that fits is shown whole, and one that is larger than the plot, in either direction, covers it
/// in that direction. All lengths are pixels of the plot.
QRect shownPlace(const QRect& box, QSize plot);

} // namespace tarsil
