#include "vgf/PictureWriter.h"

#include "plot/ClippingContext.h"
#include "plot/PainterContext.h"
#include "runtime/RunTimeError.h"
#include "vgf/EvmPlot.h"

#include <QBuffer>
#include <QMimeData>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgGenerator>

namespace tarsil {

namespace {

constexpr int pixelsPerInch = 96;
constexpr double pointsPerInch = 72;
constexpr double inchesPerMetre = 1 / 0.0254;
constexpr double clipboardScale = 2; ///< a bitmap that still looks sharp in a printed report

enum class Clips { Yes, No };

[[noreturn]] void fail(const char* details)
{
    throw RunTimeError(ErrorNumber::InvalidProcedureCall, "PictureWriter", details);
}

/// Draws the plot on a device that keeps to a clip, or on one that does not.
void draw(EvmPlot& plot, QPaintDevice& device, Clips clips)
{
    QPainter painter;
    if (!painter.begin(&device))
        fail("the picture cannot be drawn");
    PainterContext context(painter);
    ClippingContext clipping(context);
    if (clips == Clips::Yes)
        plot.Draw(context);
    else
        plot.Draw(clipping);
    context.flush();
    painter.end();
}

void writeSvg(EvmPlot& plot, QBuffer& buffer)
{
    QSvgGenerator generator;
    generator.setOutputDevice(&buffer);
    generator.setResolution(pixelsPerInch);
    generator.setSize(plot.size());
    generator.setViewBox(QRect(QPoint(0, 0), plot.size()));
    generator.setTitle(QStringLiteral("V-g-f plot"));
    draw(plot, generator, Clips::No);
}

void writePdf(EvmPlot& plot, QBuffer& buffer)
{
    QPdfWriter writer(&buffer);
    writer.setResolution(pixelsPerInch);
    writer.setTitle(QStringLiteral("V-g-f plot"));
    writer.setPageSize(QPageSize(QSizeF(plot.size()) * pointsPerInch / pixelsPerInch,
                                 QPageSize::Point, QString(), QPageSize::ExactMatch));
    writer.setPageMargins(QMarginsF());
    draw(plot, writer, Clips::Yes);
}

} // namespace

QImage pictureImage(EvmPlot& plot, double scale)
{
    QImage image(plot.size() * scale, QImage::Format_RGB32);
    if (image.isNull())
        fail("a bitmap of this size");
    const int dotsPerMetre = qRound(scale * pixelsPerInch * inchesPerMetre);
    image.setDotsPerMeterX(dotsPerMetre);
    image.setDotsPerMeterY(dotsPerMetre);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::white);
    draw(plot, image, Clips::Yes);
    image.setDevicePixelRatio(1);
    return image;
}

QByteArray pictureBytes(EvmPlot& plot, PictureFormat format)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    switch (format) {
    case PictureFormat::Svg:
        writeSvg(plot, buffer);
        break;
    case PictureFormat::Pdf:
        writePdf(plot, buffer);
        break;
    case PictureFormat::Emf:
        return plot.emfPicture();
    case PictureFormat::Png:
        if (!pictureImage(plot, 1).save(&buffer, "PNG"))
            fail("the picture cannot be made");
        break;
    }
    return buffer.data();
}

std::unique_ptr<QMimeData> pictureMimeData(EvmPlot& plot)
{
    auto data = std::make_unique<QMimeData>();
    const QByteArray metafile = pictureBytes(plot, PictureFormat::Emf);
    // One picture under the names that it goes by: there is no single one for metafiles.
    data->setData(QStringLiteral("application/x-openoffice-emf;windows_formatname=\"Image EMF\""),
                  metafile);
    data->setData(QStringLiteral("image/x-emf"), metafile);
    data->setData(QStringLiteral("image/emf"), metafile);
    data->setData(QStringLiteral("image/svg+xml"), pictureBytes(plot, PictureFormat::Svg));
    data->setImageData(pictureImage(plot, clipboardScale));
    return data;
}

} // namespace tarsil
