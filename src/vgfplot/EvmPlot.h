// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "model/PlotAxes.h"
#include "plot/EmfRichTextBox.h"
#include "plot/UcPlot.h"
#include "vgfplot/DrawnPicture.h"
#include "vgfplot/PictureWriter.h"
#include "vgfplot/PlotParts.h"
#include "vgfplot/PlotPicture.h"
#include "vgfplot/PlotProperties.h"
#include "vgfplot/PlotReferences.h"
#include "vgfplot/PlotRows.h"
#include "vgfplot/PlotTexts.h"
#include "vgfplot/TextBox.h"

#include <QImage>
#include <QObject>
#include <QSize>
#include <QString>

#include <cstddef>

namespace tarsil {

class DeviceContext;

/// The V-g-f plot of a set of modes: frequency above and damping below a common speed axis, axis
/// titles, and three text boxes. Needs no window. It composes rows, drawn items, properties,
/// references and texts, and draws them on the screen and into files. A change of any of them marks
/// the picture as stale; it is redrawn on the next request.
///
/// Speeds are KEAS, frequencies Hz, dampings g dimensionless (negative is stable).
class EvmPlot : public QObject, public PlotContainer, public DrawnPicture
{
    Q_OBJECT

public:
    EvmPlot();

    PlotRows& rows() { return m_rows; }
    const PlotRows& rows() const { return m_rows; }
    PlotProperties& properties() { return m_properties; }
    const PlotProperties& properties() const { return m_properties; }
    PlotReferences& references() { return m_references; }
    const PlotReferences& references() const { return m_references; }
    PlotTexts& texts() { return m_texts; }

    /// The drawn items: canvases, axes, labels, text boxes.
    const PlotParts& parts() const { return m_parts; }
    const emfRichTextBox& Header() const { return m_parts.box(TextBox::Header); }
    const emfRichTextBox& Legend() const { return m_parts.box(TextBox::Legend); }
    const emfRichTextBox& Mechanism() const { return m_parts.box(TextBox::Mechanism); }

    /// The series of the rows that have a curve, in drawing order.
    const SeriesList& SeriesCollection() const override { return m_rows.curves(); }

    /// Moves `count` rows from position `from`, counted from 1, so that the first of them gets
    /// position `to`. Error 9 "Subscript out of range" outside the rows.
    void SerieMove(std::size_t from, std::size_t to, std::size_t count = 1);

    PlotAxes axes() const { return m_parts.axes(); }
    void setAxes(const PlotAxes& axes);
    void GetScale(float& vmin, float& vmax, float& fmin, float& fmax, float& gmin,
                  float& gmax) const;
    void SetScale(float vmin, float vmax, float fmin, float fmax, float gmin, float gmax);

    /// Fits the frequency axis to the points of all series with a speed above 0.8 vmin and below
    /// vmax: from 0.95 of the smallest frequency to 1.05 of the largest, in whole Hz; from 0.85
    /// when these are equal. Without such points, or if the bounds are equal even then, the scale
    /// is unchanged.
    void fitFreq();

    /// Clears both canvases and draws them at once. Not needed after a change. Errors: those of
    /// `ucPlot`.
    void plot() { m_picture.plot(); }

    /// The points of modes in the rows have changed: the picture is stale.
    void modesChanged() { m_picture.showCurves(); }

    /// Clears both canvases until `plot` or a change of the rows.
    void Cls() { m_picture.Cls(); }

    bool Visible() const { return m_visible; }
    void setVisible(bool visible);

    /// Copies the text boxes with their positions, the scale, and every property of `source`, but
    /// not its series and references.
    void Clone(const EvmPlot& source);

    /// Sets the size in pixels at 96 per inch and updates the layout. `ratio`: physical pixels of
    /// the screen for each pixel.
    void resize(QSize size, double ratio = 1) { m_picture.resize(size, ratio); }
    QSize size() const override { return m_picture.size(); }
    QString title() const override;

    /// The opaque picture for the screen. Draws stale items first. Errors: those of drawing; the
    /// next call returns what could be drawn.
    const QImage& Image() { return m_picture.image(); }

    /// Writes the picture as an Enhanced Metafile, whole or not at all. The file name is used as
    /// given. Errors: those of drawing and of writing a file.
    void ExportPic(const QString& fileName, const PictureSettings& settings = {}) const;

    /// Draws the picture into `context`: white ground, axes, titles, boxes, curves. Edits in
    /// progress are not included; call `commitEdits` first to include them.
    void Draw(DeviceContext& context) const override;

    /// Asks the editor of a text to apply it to the plot. Call before the plot is saved, copied or
    /// made a picture.
    void commitEdits() { Q_EMIT editsWanted(); }

Q_SIGNALS:
    /// The picture for the screen is stale.
    void changed();

    /// `commitEdits` was called.
    void editsWanted();

    /// The contents are about to be replaced; edits in progress are to be dropped.
    void contentsReplaced();

private:
    void setBounds(const PlotBounds& bounds);
    void followRows();
    void WriteEmfPicture(const QString& fileName, const PictureSettings& settings) const;

    PlotRows m_rows;
    PlotParts m_parts;
    PlotPicture m_picture;
    PlotProperties m_properties;
    PlotReferences m_references;
    PlotTexts m_texts;
    bool m_visible = true;
};

} // namespace tarsil
