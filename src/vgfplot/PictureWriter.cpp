#include "vgfplot/PictureWriter.h"

#include "base/user/RunTimeError.h"
#include "emf/EmfSink.h"
#include "emf/MetafileContext.h"
#include "surface/PainterContext.h"
#include "surface/SvgContext.h"
#include "vgfplot/EvmPlot.h"

#include <QBuffer>
#include <QMimeData>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>

namespace tarsil {

namespace {

constexpr int pixelsPerInch = 96;
constexpr double pointsPerInch = 72;
constexpr double inchesPerMetre = 1 / 0.0254;
constexpr double clipboardScale = 2; ///< sharp enough for a printed report

[[noreturn]] void fail(const char* details)
{
    throw RunTimeError(ErrorNumber::InvalidProcedureCall, "PictureWriter", details);
}

/// The separators are a backslash and the digit zero, as in all such pictures so far.
const QString description = QStringLiteral("Tarsil\\0Created by Kestrin\\0\\0");

const QString title = QStringLiteral("V-g-f plot");

void draw(const EvmPlot& plot, QPaintDevice& device)
{
    QPainter painter;
    if (!painter.begin(&device))
        fail("the picture cannot be drawn");
    PainterContext context(painter);
    plot.Draw(context);
    context.flush();
    painter.end();
}

void writeSvg(const EvmPlot& plot, QBuffer& buffer)
{
    SvgContext context(buffer, plot.size(), title);
    plot.Draw(context);
}

QSizeF pagePoints(const EvmPlot& plot)
{
    return QSizeF(plot.size()) * pointsPerInch / pixelsPerInch;
}

void writePdf(const EvmPlot& plot, QBuffer& buffer)
{
    QPdfWriter writer(&buffer);
    writer.setResolution(pixelsPerInch);
    writer.setTitle(title);
    writer.setPageSize(
        QPageSize(pagePoints(plot), QPageSize::Point, QString(), QPageSize::ExactMatch));
    writer.setPageMargins(QMarginsF());
    draw(plot, writer);
}

/// Qt rounds the page to whole points, with the drawing at its upper left corner. Writes the exact
/// size over the rounded one without changing any offset in the file.
QByteArray withExactPage(QByteArray pdf, QSizeF points)
{
    const QByteArray key = "/MediaBox [";
    const qsizetype start = pdf.indexOf(key) + key.size();
    const qsizetype length = pdf.indexOf(']', start) - start;
    const QList<QByteArray> corners = pdf.mid(start, length).simplified().split(' ');
    if (start < key.size() || corners.size() != 4)
        fail("a page without a size");
    const double top = corners[3].toDouble();
    const auto text = [](double number) { return QByteArray::number(number, 'g', 9); };
    const QByteArray box =
        "0 " + text(top - points.height()) + ' ' + text(points.width()) + ' ' + text(top);
    if (box.size() > length)
        fail("a page size that is too long for its field");
    return pdf.replace(start, length, box.leftJustified(length));
}

QByteArray metafileBytes(const EvmPlot& plot)
{
    EmfMemory memory;
    writeMetafile(plot, memory);
    return QByteArray::fromStdString(memory.bytes());
}

} // namespace

void writeMetafile(const EvmPlot& plot, EmfSink& sink)
{
    MetafileContext context(sink, description);
    plot.Draw(context);
    context.close();
}

QImage pictureImage(const EvmPlot& plot, double scale)
{
    QImage image(plot.size() * scale, QImage::Format_RGB32);
    if (image.isNull())
        fail("a bitmap of this size");
    const int dotsPerMetre = qRound(scale * pixelsPerInch * inchesPerMetre);
    image.setDotsPerMeterX(dotsPerMetre);
    image.setDotsPerMeterY(dotsPerMetre);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::white);
    draw(plot, image);
    image.setDevicePixelRatio(1);
    return image;
}

QByteArray pictureBytes(const EvmPlot& plot, PictureFormat format)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    switch (format) {
    case PictureFormat::Svg:
        writeSvg(plot, buffer);
        break;
    case PictureFormat::Pdf:
        writePdf(plot, buffer);
        return withExactPage(buffer.data(), pagePoints(plot));
    case PictureFormat::Emf:
        return metafileBytes(plot);
    case PictureFormat::Png:
        if (!pictureImage(plot, 1).save(&buffer, "PNG"))
            fail("the picture cannot be made");
        break;
    }
    return buffer.data();
}

std::unique_ptr<QMimeData> pictureMimeData(const EvmPlot& plot)
{
    auto data = std::make_unique<QMimeData>();
    const QByteArray metafile = pictureBytes(plot, PictureFormat::Emf);
    // One picture under several names: there is no standard one for metafiles.
    data->setData(QStringLiteral("application/x-openoffice-emf;windows_formatname=\"Image EMF\""),
                  metafile);
    data->setData(QStringLiteral("image/x-emf"), metafile);
    data->setData(QStringLiteral("image/emf"), metafile);
    data->setData(QStringLiteral("image/svg+xml"), pictureBytes(plot, PictureFormat::Svg));
    data->setImageData(pictureImage(plot, clipboardScale));
    return data;
}

} // namespace tarsil
