#pragma once

#include <QByteArray>
#include <QImage>

#include <memory>

class QMimeData;

namespace tarsil {

class EmfSink;
class EvmPlot;

enum class PictureFormat { Png, Svg, Pdf, Emf };

// The plot, in its present size, as a picture; a pixel is 1/96 inch. What is being edited is not in
// it (`EvmPlot::commitEdits`). They need a QGuiApplication. Errors: those of drawing; 5 for a
// bitmap that does not fit into memory.

/// Writes the picture as an Enhanced Metafile; `sink` is not committed.
void writeMetafile(const EvmPlot& plot, EmfSink& sink);

QByteArray pictureBytes(const EvmPlot& plot, PictureFormat format);

/// `scale` physical pixels for each pixel of the plot.
QImage pictureImage(const EvmPlot& plot, double scale);

/// The picture as the clipboard takes it: metafile, SVG and bitmap, so that the program that it
/// goes to takes the best it knows.
std::unique_ptr<QMimeData> pictureMimeData(const EvmPlot& plot);

} // namespace tarsil
