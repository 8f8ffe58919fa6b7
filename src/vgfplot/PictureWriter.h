// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "emf/MetafileContext.h"

#include <QByteArray>
#include <QImage>
#include <QRectF>
#include <QSize>
#include <QSizeF>

#include <array>
#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

class QMimeData;
class QPainter;

namespace tarsil {

class DrawnPicture;
class EmfSink;

enum class PictureFormat { Emf, Svg, Pdf, Png };

/// The properties of a format.
struct PictureTraits
{
    PictureFormat format;
    std::string_view extension; ///< of its files, with the dot
    std::string_view name; ///< for the user
};

inline constexpr std::array<PictureTraits, 4> pictureTraits = {
    {{PictureFormat::Emf, ".emf", "Enhanced Metafile"},
     {PictureFormat::Svg, ".svg", "SVG"},
     {PictureFormat::Pdf, ".pdf", "PDF"},
     {PictureFormat::Png, ".png", "PNG"}}};

constexpr const PictureTraits& pictureTraitsOf(PictureFormat format)
{
    return pictureTraits[static_cast<std::size_t>(format)];
}

/// The format that the extension of a path selects, in any case; empty for another extension.
std::optional<PictureFormat> pictureFormatOf(std::string_view path);

/// How a picture becomes a file.
struct PictureSettings
{
    /// The exact size of the file. The picture must have `pixelsOf` this size. Empty: that of the
    /// picture. A metafile always has whole pixels.
    std::optional<QSizeF> millimetres;

    double dotsPerInch = 300; ///< of a bitmap whose size is in millimetres

    /// Narrower lines get this width in pixels of 1/96 inch; not those of a metafile, whose pens
    /// are those of the plot.
    double leastLineWidth = 1;

    MetafileDashes dashes = MetafileDashes::Pens; ///< of a metafile
};

/// The size of a picture, in whole pixels at 96 per inch, that covers a size in millimetres.
QSize pixelsOf(QSizeF millimetres);

// A picture in its current size; a pixel is 1/96 inch. Edits in progress are not included
// (`EvmPlot::commitEdits`). Needs a QGuiApplication. Errors: those of drawing; 5 for a
// bitmap that does not fit into memory.

/// Writes the picture as an Enhanced Metafile; does not commit `sink`.
void writeMetafile(const DrawnPicture& picture, EmfSink& sink,
                   const PictureSettings& settings = {});

/// Draws the picture into an area of a page, scaled to its width; for a printer or a PDF in
/// vectors. The state of the painter is restored, also after an error.
void drawPicture(const DrawnPicture& picture, QPainter& painter, const QRectF& area);

/// Equal pictures give equal bytes: the date in a PDF is always 1980-01-01.
QByteArray pictureBytes(const DrawnPicture& picture, PictureFormat format,
                        const PictureSettings& settings = {});

/// `scale`: physical pixels for each pixel of the picture.
QImage pictureImage(const DrawnPicture& picture, double scale);

/// The picture for the clipboard: metafile, SVG and bitmap, so that the receiving program can
/// choose.
std::unique_ptr<QMimeData> pictureMimeData(const DrawnPicture& picture);

/// Writes the picture to a file, whole or not at all. The extension of `path`, in any case, selects
/// the format: .png, .svg, .pdf or .emf. A metafile is streamed, because it can be large. Errors:
/// also 5 for another extension and those of writing a file.
void writePicture(const DrawnPicture& picture, const std::string& path,
                  const PictureSettings& settings = {});

} // namespace tarsil
