// SPDX-License-Identifier: Apache-2.0
#include "report/PdfReport.h"

#include "base/user/RunTimeError.h"
#include "report/ReportPages.h"
#include "report/ReportText.h"
#include "report/WatchedPicture.h"
#include "surface/PdfFile.h"
#include "surface/PropertyDate.h"
#include "vgfplot/PictureWriter.h"

#include <QColor>
#include <QPageLayout>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>

#include <cstddef>

namespace tarsil {

namespace {

constexpr int pointsPerInch = 72;

[[noreturn]] void fail(const char* details)
{
    throw RunTimeError(ErrorNumber::InvalidProcedureCall, "PdfReport", details);
}

QRectF pixelsOf(const QRectF& area)
{
    return {area.topLeft() * pixelsPerPoint, area.size() * pixelsPerPoint};
}

/// After a stop a picture is incomplete.
void drawPage(const ReportPage& page, QPainter& painter, StepCounter& steps)
{
    for (const PageFill& fill : page.fills)
        painter.fillRect(pixelsOf(fill.area), QColor(fill.color));
    for (const PagePicture& picture : page.pictures)
        drawPicture(WatchedPicture(*picture.picture, steps), painter, pixelsOf(picture.area));
    for (const PageText& text : page.texts) {
        painter.setFont(pageFont(text.font));
        painter.setPen(QColor(text.color));
        painter.drawText(text.start * pixelsPerPoint, text.text);
    }
}

QPageLayout layoutOf(const ReportPage& page)
{
    const bool isLandscape = page.size.width() > page.size.height();
    return {QPageSize(QPageSize::A4), isLandscape ? QPageLayout::Landscape : QPageLayout::Portrait,
            QMarginsF()};
}

/// False after a stop.
bool drawPages(const std::vector<ReportPage>& pages, QPdfWriter& writer, const Progress& progress)
{
    StepCounter steps(progress, pages.size() + 1);
    QPainter painter;
    for (std::size_t i = 0; i < pages.size(); ++i) {
        writer.setPageLayout(layoutOf(pages[i]));
        const bool isReady = i == 0 ? painter.begin(&writer) : writer.newPage();
        if (!isReady)
            fail("the document cannot be drawn");
        drawPage(pages[i], painter, steps);
        if (!steps.next())
            return false;
    }
    return true;
}

} // namespace

std::optional<std::string> pdfReport(const ReportContent& content, const Progress& progress)
{
    PdfFile pdf(shownText(content.title + ": " + content.workspace));
    pdf.writer().setResolution(pointsPerInch * pixelsPerPoint);
    pdf.writer().setCreator(shownText(content.program));
    constexpr std::size_t parts = 3;
    const auto pages = reportPages(content, partOf(progress, 0, parts, 2));
    if (!pages || !drawPages(*pages, pdf.writer(), partOf(progress, 2, parts)))
        return std::nullopt;
    return pdf.bytes(propertyDate(QString::fromStdString(content.date))).toStdString();
}

} // namespace tarsil
