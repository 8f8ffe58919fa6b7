// SPDX-License-Identifier: Apache-2.0
#include "printing/PrintLayout.h"

namespace tarsil {

namespace {

constexpr double edgeLine = 16; ///< height of head and foot
constexpr double captionLine = 16;
constexpr double gap = 12; ///< between plots, and to head and foot

struct Grid
{
    std::size_t columns = 1;
    std::size_t rows = 1;
};

Grid gridOf(QSizeF page, std::size_t plotsPerPage)
{
    if (plotsPerPage <= 1)
        return {};
    if (plotsPerPage > 2)
        return {2, 2};
    return page.width() > page.height() ? Grid {2, 1} : Grid {1, 2};
}

/// The length of each of `count` equal parts with gaps between them.
double partOf(double length, std::size_t count)
{
    const auto number = static_cast<double>(count);
    return (length - (number - 1) * gap) / number;
}

} // namespace

PrintedPage printedPage(QSizeF page, std::size_t plotsPerPage)
{
    const Grid grid = gridOf(page, plotsPerPage);
    const double top = edgeLine + gap;
    const double width = partOf(page.width(), grid.columns);
    const double height = partOf(page.height() - 2 * top, grid.rows);
    PrintedPage result;
    result.head = {0, 0, page.width(), edgeLine};
    result.foot = {0, page.height() - edgeLine, page.width(), edgeLine};
    for (std::size_t row = 0; row < grid.rows; ++row) {
        for (std::size_t column = 0; column < grid.columns; ++column) {
            const double left = static_cast<double>(column) * (width + gap);
            const double upper = top + static_cast<double>(row) * (height + gap);
            result.cells.push_back({{left, upper, width, captionLine},
                                    {left, upper + captionLine, width, height - captionLine}});
        }
    }
    return result;
}

std::size_t pageCount(std::size_t plots, std::size_t plotsPerPage)
{
    return (plots + plotsPerPage - 1) / plotsPerPage;
}

QRectF fittedPicture(QSizeF picture, const QRectF& area)
{
    const QSizeF size = picture.scaled(area.size(), Qt::KeepAspectRatio);
    return {{area.left() + (area.width() - size.width()) / 2, area.top()}, size};
}

} // namespace tarsil
