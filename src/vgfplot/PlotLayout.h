#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

namespace tarsil {

/// The sizes of the axis titles, pixels.
struct TitleSizes
{
    QSize speed;
    QSize frequency;
    QSize damping;
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
    int headerLeft = 0;
    int headerWidth = 0; ///< the least one; the text may need more
};

/// The layout of a plot of that size.
PlotLayout layOutPlot(QSize plot, const TitleSizes& titles);

/// The position of a legend that nobody has moved: right of the curves, and as far left of that as
/// its text needs.
QPoint usualLegendPosition(QSize plot, const PlotLayout& layout, QSize legend);

/// The position of a subtitle that nobody has moved: below the header.
QPoint usualSubtitlePosition(const PlotLayout& layout, const QRect& header);

} // namespace tarsil
