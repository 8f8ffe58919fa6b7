// SPDX-License-Identifier: Apache-2.0
#include "report/PdfReport.h"

#include "base/user/RunTimeError.h"
#include "report/ReportDate.h"
#include "report/ReportPages.h"
#include "report/ReportText.h"
#include "vgfplot/PictureWriter.h"

#include <QBuffer>
#include <QColor>
#include <QHashSeed>
#include <QPageLayout>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>

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

void drawPage(const ReportPage& page, QPainter& painter)
{
    for (const PageFill& fill : page.fills)
        painter.fillRect(pixelsOf(fill.area), QColor(fill.color));
    for (const PagePicture& picture : page.pictures)
        drawPicture(*picture.picture, painter, pixelsOf(picture.area));
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

void drawPages(const std::vector<ReportPage>& pages, QPdfWriter& writer)
{
    QPainter painter;
    for (std::size_t i = 0; i < pages.size(); ++i) {
        writer.setPageLayout(layoutOf(pages[i]));
        const bool isReady = i == 0 ? painter.begin(&writer) : writer.newPage();
        if (!isReady)
            fail("the document cannot be drawn");
        drawPage(pages[i], painter);
    }
}

/// The writer numbers the fonts in the order of a hash table. While this object exists, that order
/// does not depend on chance.
class FixedHashOrder
{
public:
    FixedHashOrder() { QHashSeed::setDeterministicGlobalSeed(); }
    ~FixedHashOrder() { QHashSeed::resetRandomGlobalSeed(); }
    FixedHashOrder(const FixedHashOrder&) = delete;
    FixedHashOrder& operator=(const FixedHashOrder&) = delete;
};

/// The position after `key` in a PDF.
qsizetype after(const QByteArray& pdf, const QByteArray& key, qsizetype from = 0)
{
    const qsizetype start = pdf.indexOf(key, from);
    if (start < 0)
        fail("the document has no date or no table of its objects");
    return start + key.size();
}

/// Adds `shift` to a number of fixed or free width that starts at `start` and ends at `end`.
void addToNumber(QByteArray& pdf, qsizetype start, qsizetype end, qsizetype shift)
{
    const qsizetype number = pdf.mid(start, end - start).toLongLong() + shift;
    pdf.replace(start, end - start, QByteArray::number(number).rightJustified(end - start, '0'));
}

/// Writes a date over that of the clock, and updates the offsets of the objects after it.
QByteArray withDate(QByteArray pdf, const QByteArray& date)
{
    constexpr qsizetype entrySize = 20; ///< of the table of objects: "0000000015 00000 n \n"
    constexpr qsizetype offsetSize = 10;
    const qsizetype start = after(pdf, "/CreationDate (");
    const qsizetype end = pdf.indexOf(')', start);
    const qsizetype shift = date.size() - (end - start);
    pdf.replace(start, end - start, date);
    const qsizetype pointer = after(pdf, "\nstartxref\n", pdf.lastIndexOf("\nstartxref\n"));
    addToNumber(pdf, pointer, pdf.indexOf('\n', pointer), shift);
    const qsizetype table = pdf.lastIndexOf("\nxref\n");
    qsizetype entry = after(pdf, "\n", after(pdf, "\nxref\n", table));
    for (; pdf.at(entry) != 't'; entry += entrySize) { // up to "trailer"
        if (pdf.mid(entry, offsetSize).toLongLong() > start)
            addToNumber(pdf, entry, entry + offsetSize, shift);
    }
    return pdf;
}

} // namespace

QByteArray pdfReport(const ReportContent& content)
{
    const FixedHashOrder order;
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setResolution(pointsPerInch * pixelsPerPoint);
    writer.setTitle(shownText(content.title + ": " + content.workspace));
    writer.setCreator(shownText(content.program));
    drawPages(reportPages(content), writer);
    return withDate(
        buffer.data(),
        documentDate(content).toString(QStringLiteral("'D:'yyyyMMddHHmmss")).toLatin1());
}

} // namespace tarsil
