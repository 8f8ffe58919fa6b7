#pragma once

#include "model/PlotAxes.h"
#include "plot/EmfRichTextBox.h"
#include "plot/UcPlot.h"
#include "vgfplot/PlotMarks.h"
#include "vgfplot/PlotParts.h"
#include "vgfplot/PlotPicture.h"
#include "vgfplot/PlotProperties.h"
#include "vgfplot/PlotRows.h"
#include "vgfplot/PlotTexts.h"
#include "vgfplot/TextBox.h"

#include <QImage>
#include <QObject>
#include <QSize>

#include <cstddef>

class QString;

namespace tarsil {

class DeviceContext;

/// The V-g-f plot of a set of modes: frequency above and damping below one speed axis, axis titles,
/// and three text boxes. It needs no window. It composes rows, drawn items, properties, marks and
/// texts, and draws them on the screen and into files alike; a change of any of them marks the
/// picture as stale, and it is drawn when it is next asked for.
///
/// Speeds are knots (KEAS), frequencies Hz, dampings g dimensionless (negative is stable).
class EvmPlot : public QObject, public PlotContainer
{
    Q_OBJECT

public:
    EvmPlot();

    PlotRows& rows() { return m_rows; }
    const PlotRows& rows() const { return m_rows; }
    PlotProperties& properties() { return m_properties; }
    const PlotProperties& properties() const { return m_properties; }
    PlotMarks& marks() { return m_marks; }
    const PlotMarks& marks() const { return m_marks; }
    PlotTexts& texts() { return m_texts; }

    /// What is drawn: canvases, axes, labels, text boxes.
    const PlotParts& parts() const { return m_parts; }
    const emfRichTextBox& Header() const { return m_parts.box(TextBox::Header); }
    const emfRichTextBox& Legend() const { return m_parts.box(TextBox::Legend); }
    const emfRichTextBox& Mechanism() const { return m_parts.box(TextBox::Mechanism); }

    /// The series in order of drawing: those of the rows that have a curve.
    const SeriesList& SeriesCollection() const override { return m_rows.curves(); }

    /// Moves `count` rows from position `from` on, counted from 1, so that the first of them is at
    /// position `to`; error 9 "Subscript out of range" outside the rows.
    void SerieMove(std::size_t from, std::size_t to, std::size_t count = 1);

    PlotAxes axes() const { return m_parts.axes(); }
    void setAxes(const PlotAxes& axes);
    void GetScale(float& vmin, float& vmax, float& fmin, float& fmax, float& gmin,
                  float& gmax) const;
    void SetScale(float vmin, float vmax, float fmin, float fmax, float gmin, float gmax);

    /// Fits the frequency axis to the points of all series whose speed lies above 0.8 vmin and
    /// below vmax: 0.95 of the smallest to 1.05 of the largest, in whole Hz; 0.85 when they fall
    /// together. With no such point, or when the bounds still fall together, the scale stays.
    void fitFreq();

    /// Empties both canvases and draws them at once, each on its own surface. No change needs it.
    /// Errors: those of `ucPlot`.
    void plot() { m_picture.plot(); }

    /// Empties both canvases; they stay so until `plot` or a change of the rows.
    void Cls() { m_picture.Cls(); }

    bool Visible() const { return m_visible; }
    void setVisible(bool visible);

    /// Copies the text boxes with their positions, the scale, and every property of `source`; its
    /// series and marks are not copied.
    void Clone(const EvmPlot& source);

    /// Size of the plot in pixels at 96 per inch; lays the parts out. `ratio`: physical pixels of
    /// the screen for each of them.
    void resize(QSize size, double ratio = 1) { m_picture.resize(size, ratio); }
    QSize size() const { return m_picture.size(); }

    /// The picture on the screen, opaque; parts that have changed are drawn first. Errors: those of
    /// the parts; what could be drawn is in the next picture.
    const QImage& Image() { return m_picture.image(); }

    /// Writes the picture as an Enhanced Metafile, whole or not at all. The file name is taken as
    /// it is. Errors: those of drawing and of writing a file.
    void ExportPic(const QString& fileName) const;

    /// Draws the same picture into a caller's context: white ground, axes, titles, boxes, curves.
    /// What is being edited is not in it: who wants it there calls `commitEdits` first.
    void Draw(DeviceContext& context) const;

    /// Asks whoever edits a text of the plot to put into the plot what has been typed. Called
    /// before the plot is saved, copied or made a picture.
    void commitEdits() { Q_EMIT editsWanted(); }

Q_SIGNALS:
    /// The picture on the screen is no longer true.
    void changed();

    /// `commitEdits` was called.
    void editsWanted();

    /// The plot is about to get other contents: what is being edited, or moved, goes with the old
    /// ones.
    void contentsReplaced();

private:
    void setBounds(const PlotBounds& bounds);
    void followRows();
    void WriteEmfPicture(const QString& fileName) const;

    PlotRows m_rows;
    PlotParts m_parts;
    PlotPicture m_picture;
    PlotProperties m_properties;
    PlotMarks m_marks;
    PlotTexts m_texts;
    bool m_visible = true;
};

} // namespace tarsil
