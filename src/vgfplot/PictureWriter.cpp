// SPDX-License-Identifier: Apache-2.0
#include "vgfplot/PictureWriter.h"

#include "base/files/AtomicFile.h"
#include "base/text/AsciiText.h"
#include "base/user/RunTimeError.h"
#include "emf/EmfSink.h"
#include "surface/PainterContext.h"
#include "surface/PdfFile.h"
#include "surface/PropertyDate.h"
#include "surface/SvgContext.h"
#include "vgfplot/DrawnPicture.h"

#include <QBuffer>
#include <QMimeData>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>

#include <cmath>

namespace tarsil {

namespace {

constexpr int pixelsPerInch = 96;
constexpr double pointsPerInch = 72;
constexpr double inchesPerMetre = 1 / 0.0254;
constexpr double pixelsPerMillimetre = pixelsPerInch / 25.4;
constexpr double clipboardScale = 2; ///< sharp enough for a printed report

[[noreturn]] void fail(const char* details)
{
    throw RunTimeError(ErrorNumber::InvalidProcedureCall, "PictureWriter", details);
}

constexpr bool areFormatsInOrder()
{
    for (std::size_t i = 0; i < pictureTraits.size(); ++i) {
        if (static_cast<std::size_t>(pictureTraits[i].format) != i)
            return false;
    }
    return true;
}
static_assert(areFormatsInOrder(), "the traits of pictures are indexed by format");

/// The separators are a backslash and the digit zero, as in all such pictures so far.
const QString description = QStringLiteral("Tarsil\\0Created by Kestrin\\0\\0");

void draw(const DrawnPicture& picture, QPaintDevice& device, const LineDrawing& lines)
{
    QPainter painter;
    if (!painter.begin(&device))
        fail("the picture cannot be drawn");
    PainterContext context(painter, lines);
    picture.Draw(context);
    context.flush();
    painter.end();
}

/// Restores the state of a painter.
class SavedState
{
public:
    explicit SavedState(QPainter& painter) : m_painter(painter) { m_painter.save(); }
    ~SavedState() { m_painter.restore(); }
    SavedState(const SavedState&) = delete;
    SavedState& operator=(const SavedState&) = delete;

private:
    QPainter& m_painter;
};

/// The size of the file in pixels at 96 per inch.
QSizeF exactSize(const DrawnPicture& picture, const PictureSettings& settings)
{
    return settings.millimetres ? *settings.millimetres * pixelsPerMillimetre
                                : QSizeF(picture.size());
}

void writeSvg(const DrawnPicture& picture, const PictureSettings& settings, QBuffer& buffer)
{
    SvgContext context(buffer, exactSize(picture, settings), picture.title(),
                       settings.leastLineWidth);
    picture.Draw(context);
}

QSizeF pagePoints(const DrawnPicture& picture, const PictureSettings& settings)
{
    return exactSize(picture, settings) * pointsPerInch / pixelsPerInch;
}

/// A picture has no date of its own.
QByteArray pdfBytes(const DrawnPicture& picture, const PictureSettings& settings)
{
    PdfFile pdf(picture.title());
    QPdfWriter& writer = pdf.writer();
    writer.setResolution(pixelsPerInch);
    writer.setPageSize(QPageSize(pagePoints(picture, settings), QPageSize::Point, QString(),
                                 QPageSize::ExactMatch));
    writer.setPageMargins(QMarginsF());
    draw(picture, writer, {true, settings.leastLineWidth});
    return pdf.bytes(propertyDate({}));
}

/// An image of `pixels`, in which a pixel of the picture is `scale` pixels wide.
QImage bitmapOf(const DrawnPicture& picture, QSize pixels, double scale, const LineDrawing& lines)
{
    QImage image(pixels, QImage::Format_RGB32);
    if (image.isNull())
        fail("a bitmap of this size");
    const int dotsPerMetre = qRound(scale * pixelsPerInch * inchesPerMetre);
    image.setDotsPerMeterX(dotsPerMetre);
    image.setDotsPerMeterY(dotsPerMetre);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::white);
    draw(picture, image, lines);
    image.setDevicePixelRatio(1);
    return image;
}

QImage bitmapFor(const DrawnPicture& picture, const PictureSettings& settings)
{
    const double scale = settings.millimetres ? settings.dotsPerInch / pixelsPerInch : 1;
    return bitmapOf(picture, (exactSize(picture, settings) * scale).toSize(), scale,
                    {settings.millimetres.has_value(), settings.leastLineWidth});
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
    const auto text = [](double number) { // as many digits as fit
        return QByteArray::number(std::nearbyint(number * 1e4) / 1e4, 'g', 9);
    };
    const QByteArray box =
        "0 " + text(top - points.height()) + ' ' + text(points.width()) + ' ' + text(top);
    if (box.size() > length)
        fail("a page size that is too long for its field");
    return pdf.replace(start, length, box.leftJustified(length));
}

QByteArray metafileBytes(const DrawnPicture& picture, const PictureSettings& settings)
{
    EmfMemory memory;
    writeMetafile(picture, memory, settings);
    return QByteArray::fromStdString(memory.bytes());
}

} // namespace

std::optional<PictureFormat> pictureFormatOf(std::string_view path)
{
    for (const PictureTraits& traits : pictureTraits) {
        const std::size_t length = traits.extension.size();
        if (path.size() >= length
            && equalIgnoringAsciiCase(path.substr(path.size() - length), traits.extension))
            return traits.format;
    }
    return std::nullopt;
}

QSize pixelsOf(QSizeF millimetres)
{
    const auto covering = [](double length) {
        return static_cast<int>(std::ceil(length * pixelsPerMillimetre - 1e-6));
    };
    return {covering(millimetres.width()), covering(millimetres.height())};
}

void writeMetafile(const DrawnPicture& picture, EmfSink& sink, const PictureSettings& settings)
{
    MetafileContext context(sink, description, settings.dashes);
    picture.Draw(context);
    context.close();
}

void drawPicture(const DrawnPicture& picture, QPainter& painter, const QRectF& area)
{
    const SavedState state(painter);
    const double scale = area.width() / picture.size().width();
    painter.translate(area.topLeft());
    painter.scale(scale, scale);
    PainterContext context(painter);
    picture.Draw(context);
    context.flush();
}

QImage pictureImage(const DrawnPicture& picture, double scale)
{
    return bitmapOf(picture, picture.size() * scale, scale, {});
}

QByteArray pictureBytes(const DrawnPicture& picture, PictureFormat format,
                        const PictureSettings& settings)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    switch (format) {
    case PictureFormat::Svg:
        writeSvg(picture, settings, buffer);
        break;
    case PictureFormat::Pdf:
        return withExactPage(pdfBytes(picture, settings), pagePoints(picture, settings));
    case PictureFormat::Emf:
        return metafileBytes(picture, settings);
    case PictureFormat::Png:
        if (!bitmapFor(picture, settings).save(&buffer, "PNG"))
            fail("the picture cannot be made");
        break;
    }
    return buffer.data();
}

std::unique_ptr<QMimeData> pictureMimeData(const DrawnPicture& picture)
{
    auto data = std::make_unique<QMimeData>();
    const QByteArray metafile = pictureBytes(picture, PictureFormat::Emf);
    // One picture under several names: there is no standard one for metafiles.
    data->setData(QStringLiteral("application/x-openoffice-emf;windows_formatname=\"Image EMF\""),
                  metafile);
    data->setData(QStringLiteral("image/x-emf"), metafile);
    data->setData(QStringLiteral("image/emf"), metafile);
    data->setData(QStringLiteral("image/svg+xml"), pictureBytes(picture, PictureFormat::Svg));
    data->setImageData(pictureImage(picture, clipboardScale));
    return data;
}

void writePicture(const DrawnPicture& picture, const std::string& path,
                  const PictureSettings& settings)
{
    const std::optional<PictureFormat> format = pictureFormatOf(path);
    if (!format)
        throw RunTimeError(ErrorNumber::InvalidProcedureCall, "PictureWriter",
                           path + " does not end in .png, .svg, .pdf or .emf");
    if (format == PictureFormat::Emf) {
        EmfFile file(path);
        writeMetafile(picture, file, settings);
        file.commit();
        return;
    }
    const QByteArray bytes = pictureBytes(picture, *format, settings);
    writeFile(path, {bytes.constData(), static_cast<std::size_t>(bytes.size())});
}

} // namespace tarsil
