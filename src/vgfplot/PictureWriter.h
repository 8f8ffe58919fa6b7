#pragma once

#include <QByteArray>
#include <QImage>

#include <memory>

class QMimeData;

namespace tarsil {

class EvmPlot;

enum class PictureFormat { Png, Svg, Pdf, Emf };

// The plot, in its present size, as a picture in memory; a pixel is 1/96 inch. They need a
// QGuiApplication. Errors: those of drawing; 5 for a bitmap that does not fit into memory.

QByteArray pictureBytes(EvmPlot& plot, PictureFormat format);

/// `scale` physical pixels for each pixel of the plot.
QImage pictureImage(EvmPlot& plot, double scale);

/// The picture as the clipboard takes it: metafile, SVG and bitmap, so that the program that it
/// goes to takes the best it knows.
std::unique_ptr<QMimeData> pictureMimeData(EvmPlot& plot);

} // namespace tarsil
