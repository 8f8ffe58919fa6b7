// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QRectF>
#include <QSizeF>

#include <array>
#include <cstddef>
#include <vector>

namespace tarsil {

// The layout of printed plots. Sizes are points; rectangles are relative to the printable area.

/// The numbers of plots that a page can have.
inline constexpr std::array<std::size_t, 3> plotsPerPageChoices = {1, 2, 4};

/// The position of a plot on a page.
struct PrintedCell
{
    QRectF caption; ///< one line
    QRectF area; ///< for the picture, below the caption
};

/// A page: a line at its head, a line at its foot, and the plots between them.
struct PrintedPage
{
    QRectF head;
    QRectF foot;
    std::vector<PrintedCell> cells; ///< by rows, from the left
};

/// The layout of every page. Two plots are beside each other on a landscape page and below each
/// other on another one; four are in two rows.
PrintedPage printedPage(QSizeF page, std::size_t plotsPerPage);

/// The number of pages for some plots; the last one may have fewer.
std::size_t pageCount(std::size_t plots, std::size_t plotsPerPage);

/// The largest rectangle with the shape of a picture in an area, centred at its top.
QRectF fittedPicture(QSizeF picture, const QRectF& area);

} // namespace tarsil
