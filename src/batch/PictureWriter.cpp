#include "batch/PictureWriter.h"

#include "batch/BatchRun.h"
#include "batch/ClippingContext.h"
#include "batch/CommandLine.h"
#include "plot/PainterContext.h"
#include "vgf/EvmPlot.h"

#include <QBuffer>
#include <QImage>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgGenerator>

#include <array>

namespace tarsil::batch {

namespace {

constexpr int pixelsPerInch = 96;
constexpr double pointsPerInch = 72;
constexpr double inchesPerMetre = 1 / 0.0254;

enum class Clips { Yes, No };

/// Draws the plot on a device that keeps to a clip, or on one that does not.
void draw(EvmPlot& plot, QPaintDevice& device, Clips clips)
{
    QPainter painter;
    if (!painter.begin(&device))
        throw Failure("the picture cannot be drawn");
    PainterContext context(painter);
    ClippingContext clipping(context);
    if (clips == Clips::Yes)
        plot.Draw(context);
    else
        plot.Draw(clipping);
    context.flush();
    painter.end();
}

void writePng(EvmPlot& plot, QBuffer& buffer)
{
    QImage image(plot.size(), QImage::Format_RGB32);
    if (image.isNull())
        throw Failure("there is not enough memory for a picture of this size");
    const int dotsPerMetre = qRound(pixelsPerInch * inchesPerMetre);
    image.setDotsPerMeterX(dotsPerMetre);
    image.setDotsPerMeterY(dotsPerMetre);
    image.fill(Qt::white);
    draw(plot, image, Clips::Yes);
    if (!image.save(&buffer, "PNG"))
        throw Failure("the picture cannot be made");
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

QByteArray pictureBytes(EvmPlot& plot, std::string_view fileName)
{
    constexpr std::array<std::string_view, 1> svg = {".svg"};
    constexpr std::array<std::string_view, 1> pdf = {".pdf"};
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    if (hasExtension(fileName, svg))
        writeSvg(plot, buffer);
    else if (hasExtension(fileName, pdf))
        writePdf(plot, buffer);
    else
        writePng(plot, buffer);
    return buffer.data();
}

} // namespace tarsil::batch
