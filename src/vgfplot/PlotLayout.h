// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

#include <optional>

namespace tarsil {

/// The sizes of the axis titles in pixels.
struct TitleSizes
{
    QSize speed;
    QSize frequency;
    QSize damping;
};

/// The size that the text of a box needs, and the position that the user gave it, if any, in pixels
/// of the plot.
struct PlacedBox
{
    QSize size;
    std::optional<QPoint> position;
};

/// The input of the layout from the text boxes, in pixels of the plot.
struct BoxSizes
{
    QSize header; ///< size that its text needs
    int headerTop = 0; ///< upper edge of its row
    PlacedBox legend;
    PlacedBox mechanism;
};

/// The position of a text box.
struct BoxLayout
{
    QPoint position; ///< the one that the user gave it, otherwise the default
    QRect shown; ///< the nearest rectangle inside the plot
};

/// The positions of the drawn items of a V-g-f plot, in pixels of the plot.
struct PlotLayout
{
    QRect vfPlot; ///< the upper half of `vgPlot`
    QRect vgPlot;
    QRect velAxis; ///< the line is on the lower edge of `vfPlot`
    QRect freqAxis;
    QRect gAxis;
    QRect velAxisLabel;
    QRect freqAxislabel;
    QRect gAxisLabel;
    BoxLayout header; ///< from the frequency title to the right edge, or as wide as its text
    BoxLayout legend; ///< by default right of the curves, moved left as far as its text requires
    BoxLayout mechanism; ///< by default below the header
};

/// The rectangle of a text box moved into the plot by the shortest distance. Along a direction in
/// which the box is larger than the plot, the result covers the plot. All lengths are pixels of the
/// plot.
QRect shownRectangle(const QRect& box, QSize plot);

/// The layout of a plot of a given size. Text boxes are shown at their `shownRectangle`; the header
/// is moved only vertically.
PlotLayout layOutPlot(QSize plot, const TitleSizes& titles, const BoxSizes& boxes);

} // namespace tarsil
