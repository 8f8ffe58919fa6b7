// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "base/user/Progress.h"
#include "report/ReportContent.h"
#include "report/ReportFont.h"

#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QString>

#include <optional>
#include <vector>

namespace tarsil {

// The pages of a document. Positions and sizes are points from the upper left corner of the page.

/// A line of text; `start` is on its baseline.
struct PageText
{
    QPointF start;
    QString text;
    ReportFont font;
    QString color;
};

/// A filled rectangle.
struct PageFill
{
    QRectF area;
    QString color;
};

struct PagePicture
{
    QRectF area;
    const DrawnPicture* picture = nullptr; ///< belongs to the content
};

/// A page in its drawing order: fills, pictures, texts.
struct ReportPage
{
    QSizeF size;
    std::vector<PageFill> fills;
    std::vector<PagePicture> pictures;
    std::vector<PageText> texts;
};

/// The sizes of A4 and its margins, which contain head and foot.
namespace paper {
inline constexpr double shortSide = 595;
inline constexpr double longSide = 842;
inline constexpr double sideMargin = 50;
inline constexpr double topMargin = 62;
inline constexpr double bottomMargin = 56;

QSizeF sizeOf(bool isLandscape);

/// The area between the margins.
QRectF contentArea(bool isLandscape);
} // namespace paper

/// The size in points of a picture in an area: as wide as the area, but not higher than
/// three quarters of it.
QSizeF pictureSize(const DrawnPicture& picture, QSizeF area);

/// The look of a heading.
ReportFont headingFont(int level);

inline constexpr ReportFont bodyFont {9.5, false};
inline constexpr ReportFont captionFont {8.5, true};

/// Lays out a document on A4 pages. Every section begins on a new page. The rows of a table are
/// split between pages where needed, and its headings are repeated. The first page has no head.
/// Reports progress after each row that is measured or laid out. Empty after a stop.
std::optional<std::vector<ReportPage>> reportPages(const ReportContent& content,
                                                   const Progress& progress = {});

} // namespace tarsil
