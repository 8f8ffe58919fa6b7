#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

#include <optional>

namespace tarsil {

/// The sizes of the axis titles, pixels.
struct TitleSizes
{
    QSize speed;
    QSize frequency;
    QSize damping;
};

/// A text box that can be moved: the size that its text needs, and the position that the user has
/// given it, pixels of the plot.
struct PlacedBox
{
    QSize size;
    std::optional<QPoint> position;
};

/// What the layout depends on of the text boxes, pixels of the plot.
struct BoxSizes
{
    QSize header; ///< the size that its text needs
    int headerTop = 0; ///< the upper edge of its row
    PlacedBox legend;
    PlacedBox mechanism;
};

/// Where a text box is.
struct BoxLayout
{
    QPoint position; ///< the one given to it, or the usual one of a box that nobody has moved
    QRect shown; ///< the nearest rectangle to it that lies in the plot
};

/// Where the parts of a V-g-f plot are, in pixels of the plot.
struct PlotLayout
{
    QRect vfPlot; ///< the upper half of `vgPlot`
    QRect vgPlot;
    QRect velAxis; ///< its line is on the lower edge of `vfPlot`
    QRect freqAxis;
    QRect gAxis;
    QRect velAxisLabel;
    QRect freqAxislabel;
    QRect gAxisLabel;
    BoxLayout header; ///< from the frequency title to the right edge, or as wide as its text
    BoxLayout legend; ///< usually right of the curves, as far left of that as its text needs
    BoxLayout mechanism; ///< usually below the header
};

/// The nearest position of a text box at which as much of it as possible lies in the plot: a box
/// that fits is shown whole, and one that is larger than the plot, in either direction, covers it
/// in that direction. All lengths are pixels of the plot.
QRect shownPlace(const QRect& box, QSize plot);

/// The layout of a plot of that size. Text boxes are shown as `shownPlace` says, but the header is
/// moved up and down only.
PlotLayout layOutPlot(QSize plot, const TitleSizes& titles, const BoxSizes& boxes);

} // namespace tarsil
