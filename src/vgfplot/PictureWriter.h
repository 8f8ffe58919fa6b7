#pragma once

#include <QByteArray>
#include <QImage>

#include <memory>

class QMimeData;

namespace tarsil {

class EmfSink;
class EvmPlot;

enum class PictureFormat { Png, Svg, Pdf, Emf };

// The plot in its current size as a picture; a pixel is 1/96 inch. Edits in progress are not
// included (`EvmPlot::commitEdits`). Needs a QGuiApplication. Errors: those of drawing; 5 for a
// bitmap that does not fit into memory.

/// Writes the picture as an Enhanced Metafile; does not commit `sink`.
void writeMetafile(const EvmPlot& plot, EmfSink& sink);

QByteArray pictureBytes(const EvmPlot& plot, PictureFormat format);

/// `scale`: physical pixels for each pixel of the plot.
QImage pictureImage(const EvmPlot& plot, double scale);

/// The picture for the clipboard: metafile, SVG and bitmap, so that the receiving program can
/// choose.
std::unique_ptr<QMimeData> pictureMimeData(const EvmPlot& plot);

} // namespace tarsil
