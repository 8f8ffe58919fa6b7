// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "report/ReportPages.h"

#include <QRectF>
#include <QString>

#include <vector>

namespace tarsil {

/// Fills pages from top to bottom.
class PageFlow
{
public:
    void beginPage(bool isLandscape);

    /// Begins a page like the last one.
    void continueOnNewPage() { beginPage(m_isLandscape); }

    const QRectF& area() const { return m_area; }
    double y() const { return m_y; }
    double heightLeft() const { return m_area.bottom() - m_y; }
    bool isAtTop() const { return m_y <= m_area.top(); }
    void skip(double height) { m_y += height; }

    /// Begins a new page unless this height is left, or the page is empty.
    void require(double height);

    ReportPage& page() { return m_pages.back(); }

    /// Adds a line of text whose upper left corner is `x` points from the left of the area and at
    /// `y` on the page.
    void addText(double x, double y, const QString& text, const ReportFont& font,
                 const QString& color);

    void addFill(const QRectF& area, const QString& color)
    {
        page().fills.push_back({area, color});
    }

    std::vector<ReportPage> take() { return std::move(m_pages); }

private:
    std::vector<ReportPage> m_pages;
    QRectF m_area;
    double m_y = 0;
    bool m_isLandscape = false;
};

} // namespace tarsil
