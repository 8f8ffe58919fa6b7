// SPDX-License-Identifier: Apache-2.0
#include "printing/PlotPrinter.h"

#include "base/user/RunTimeError.h"
#include "printing/PrintLayout.h"
#include "surface/TextMetrics.h"
#include "vgfplot/EvmPlot.h"
#include "vgfplot/PictureWriter.h"

#include <QFont>
#include <QFontMetricsF>
#include <QPagedPaintDevice>
#include <QPainter>

#include <algorithm>

namespace tarsil {

namespace {

constexpr double pointsPerInch = 72;
constexpr double edgePoints = 8; ///< letters of head and foot
constexpr double captionPoints = 10;
constexpr double edgeShare = 0.55; ///< of the width, for a long text in head or foot

[[noreturn]] void failPrinting()
{
    throw RunTimeError(ErrorNumber::InvalidProcedureCall, "PlotPrinter",
                       "the plots cannot be printed");
}

/// Draws the pages of a job.
class PagePainter
{
public:
    PagePainter(const PrintJob& job, QPagedPaintDevice& device);

    bool drawAll(const Progress& progress);

private:
    void drawPage(std::size_t page);
    void drawPlot(const EvmPlot& plot, const PrintedCell& cell);
    void drawText(const QRectF& area, Qt::Alignment alignment, const QString& text,
                  const QFont& font);
    void drawLine(const QRectF& edge, double y);
    QRectF pixels(const QRectF& area) const
    {
        return {area.topLeft() * m_scale, area.size() * m_scale};
    }

    const PrintJob& m_job;
    QPagedPaintDevice& m_device;
    QPainter m_painter;
    double m_scale; ///< pixels of the device in a point
    PrintedPage m_layout;
};

QFont fontOf(double points, bool isBold)
{
    QFont font(QStringLiteral("Arial"));
    font.setPointSizeF(points);
    font.setBold(isBold);
    return font;
}

PagePainter::PagePainter(const PrintJob& job, QPagedPaintDevice& device)
    : m_job(job), m_device(device), m_scale(device.logicalDpiX() / pointsPerInch),
      m_layout(printedPage(QSizeF(device.width(), device.height()) / m_scale, job.plotsPerPage))
{
    if (!m_painter.begin(&device))
        failPrinting();
}

/// A text that is too long is cut in its middle.
void PagePainter::drawText(const QRectF& area, Qt::Alignment alignment, const QString& text,
                           const QFont& font)
{
    const QRectF box = pixels(area);
    m_painter.setFont(font);
    m_painter.setPen(Qt::black);
    const QString shown =
        QFontMetricsF(font, &m_device).elidedText(drawableText(text), Qt::ElideMiddle, box.width());
    m_painter.drawText(box, static_cast<int>(alignment | Qt::AlignVCenter) | Qt::TextSingleLine,
                       shown);
}

void PagePainter::drawLine(const QRectF& edge, double y)
{
    constexpr double width = 0.5;
    m_painter.fillRect(pixels({edge.left(), y, edge.width(), width}), Qt::gray);
}

void PagePainter::drawPlot(const EvmPlot& plot, const PrintedCell& cell)
{
    drawText(cell.caption, Qt::AlignHCenter, plot.properties().Caption(),
             fontOf(captionPoints, true));
    drawPicture(plot, m_painter, pixels(fittedPicture(QSizeF(plot.size()), cell.area)));
}

void PagePainter::drawPage(std::size_t page)
{
    const std::size_t count = pageCount(m_job.plots.size(), m_job.plotsPerPage);
    const QFont font = fontOf(edgePoints, false);
    QRectF left = m_layout.foot;
    left.setWidth(edgeShare * left.width() / 2);
    drawText(m_layout.head, Qt::AlignLeft, m_job.workspace, font);
    drawLine(m_layout.head, m_layout.head.bottom());
    drawLine(m_layout.foot, m_layout.foot.top());
    drawText(left, Qt::AlignLeft, m_job.file, font);
    drawText(m_layout.foot, Qt::AlignHCenter, m_job.date, font);
    drawText(m_layout.foot, Qt::AlignRight,
             QStringLiteral("Page %1 of %2").arg(page + 1).arg(count), font);
    const std::size_t first = page * m_job.plotsPerPage;
    const std::size_t last = std::min(first + m_job.plotsPerPage, m_job.plots.size());
    for (std::size_t i = first; i < last; ++i)
        drawPlot(*m_job.plots[i], m_layout.cells[i - first]);
}

bool PagePainter::drawAll(const Progress& progress)
{
    const std::size_t count = pageCount(m_job.plots.size(), m_job.plotsPerPage);
    for (std::size_t page = 0; page < count; ++page) {
        if (page > 0 && !m_device.newPage())
            failPrinting();
        drawPage(page);
        if (!goesOn(progress, page + 1, count) && page + 1 < count)
            return false;
    }
    return true;
}

} // namespace

bool printPlots(const PrintJob& job, QPagedPaintDevice& device, const Progress& progress)
{
    return PagePainter(job, device).drawAll(progress);
}

} // namespace tarsil
