#pragma once

#include "model/PlotAxes.h"
#include "plot/EmfRichTextBox.h"
#include "plot/Marker.h"
#include "plot/TrspLabel.h"
#include "plot/UcPlot.h"
#include "plot/XAxis.h"
#include "plot/YAxis.h"
#include "vgfplot/PlotRows.h"
#include "vgfplot/TextBox.h"

#include <QImage>
#include <QObject>

#include <array>
#include <cstdint>
#include <optional>
#include <type_traits>
#include <vector>

namespace tarsil {

struct PlotLayout;

/// The V-g-f plot of a set of modes: frequency above and damping below one speed axis, axis titles,
/// and three text boxes. It needs no window: it lays its parts out, keeps axes and canvases in
/// step, and hands drawing on to them, on the screen and into files alike.
///
///     f(Hz) |  V-f curves            vfPlot (upper half), freqAxis
///           |
///     ------+----------------- V     velAxis
///           |  V-g curves            vgPlot (both halves), gAxis
///         g |
///
/// Speeds are knots (KEAS), frequencies Hz, dampings g dimensionless (negative is stable).
class EvmPlot : public QObject, public PlotContainer
{
    Q_OBJECT

public:
    EvmPlot();
    ~EvmPlot() override;

    emfRichTextBox& Header() { return textBox(TextBox::Header); }
    emfRichTextBox& Legend() { return textBox(TextBox::Legend); }
    emfRichTextBox& Mechanism() { return textBox(TextBox::Mechanism); }

    /// The series in order of drawing: those of the rows that have a curve.
    const SeriesList& SeriesCollection() const override { return m_rows.curves(); }

    /// The rows of the plot. A change of them marks the picture as stale; it is drawn when it is
    /// next asked for.
    PlotRows& rows() { return m_rows; }
    const PlotRows& rows() const { return m_rows; }

    /// Appends a row with a series for a mode (`newSeries`), with these markers in the colour of
    /// the curve. Rows without a curve count, so that none gets the look of another one when its
    /// curve comes back.
    RowId addSeries(AeMode& mode, const std::optional<MarkerOptions>& markers = {});

    /// Moves `count` rows from position `from` on, counted from 1, so that the first of them is at
    /// position `to`; error 9 "Subscript out of range" outside the rows.
    void SerieMove(std::size_t from, std::size_t to, std::size_t count = 1);

    /// Fits the frequency axis to the points of all series whose speed lies above 0.8 vmin and
    /// below vmax: 0.95 of the smallest to 1.05 of the largest, in whole Hz; 0.85 when they fall
    /// together. With no such point, or when the bounds still fall together, the scale stays.
    void fitFreq();

    /// Empties both canvases and draws them at once, each on its own surface. Who changes something
    /// need not call it. Errors: those of `ucPlot`.
    void plot();

    /// Empties both canvases; they stay so until `plot` or a change of the rows.
    void Cls();

    /// The axes as they are. `SetScale` and the properties below set parts of them.
    PlotAxes axes() const;
    void setAxes(const PlotAxes& axes);

    void GetScale(float& vmin, float& vmax, float& fmin, float& fmax, float& gmin,
                  float& gmax) const;
    void SetScale(float vmin, float vmax, float fmin, float fmax, float gmin, float gmax);

    int ModeColor() const { return m_modeColor; }
    void setModeColor(int value);
    std::int16_t vthicks() const { return m_velAxis.nThick(); }
    void setVthicks(std::int16_t count);
    std::int16_t gthicks() const { return m_gAxis.nThick(); }
    void setGthicks(std::int16_t count);
    std::int16_t fthicks() const { return m_freqAxis.nThick(); }
    void setFthicks(std::int16_t count);
    const QString& vLabel() const { return m_velAxisLabel.Caption(); }
    void setVLabel(const QString& text);
    const QString& gLabel() const { return m_gAxisLabel.Caption(); }
    void setGLabel(const QString& text);
    const QString& fLabel() const { return m_freqAxislabel.Caption(); }
    void setFLabel(const QString& text);
    const QString& Caption() const { return m_caption; }
    void setCaption(const QString& caption);
    bool Visible() const { return m_visible; }
    void setVisible(bool visible);

    /// In edit mode the text boxes are outlined on the screen, and a click edits one.
    bool EditMode() const { return m_editMode; }
    void setEditMode(bool on);

    /// Reference speeds on the speed axis.
    void AddRef(float speed, const QString& caption);
    void RemoveRef();

    /// What has to be said of the reference speeds: a mark is measured from the left end of the
    /// speed axis, so that it does not stand at its speed on an axis that does not begin at 0.
    /// Empty while all marks stand at their speeds.
    QString shiftedMarksNote() const;

    /// A horizontal line at damping g across the present speed range. Both draw the plot again.
    void AddDampLine(float g, const QString& caption);
    void RemoveDampLine();

    /// A damping line, wherever it begins and ends.
    struct DampLine
    {
        float g = 0;
        QString Caption;
    };

    /// The reference speeds and the damping lines. Setting them takes them in the place of all
    /// others, the lines across the present speed range, and draws nothing.
    const std::vector<RefThick>& Refs() const { return m_velAxis.marks(); }
    void setRefs(std::vector<RefThick> marks);
    std::vector<DampLine> DampLines() const;
    void setDampLines(const std::vector<DampLine>& lines);

    /// Damping lines as they were (`vgPlot().lines()`), each with its own ends; nothing is drawn.
    void restoreDampLines(const std::vector<RefLine>& lines);

    /// Copies the text boxes with their positions, the scale, and every property of `source`; its
    /// series are not copied.
    void Clone(const EvmPlot& source);

    /// Keys "Caption" "Plot1", "ModeColor" 0, "vThicks" 7, "gThicks" 5, "fThicks" 5, "vLabel"
    /// "V(keas)", "gLabel" "g", "fLabel" "f(Hz)".
    void ReadProperties(const PropertyBag& bag);
    PropertyBag WriteProperties() const;
    const ChangedProperties& changedProperties() const { return m_changed; }

    /// Size of the plot in pixels at 96 per inch; lays the parts out. `ratio`: physical pixels of
    /// the screen for each of them.
    void resize(QSize size, double ratio = 1);
    QSize size() const { return m_size; }

    /// The upper edge of the header's row, in twentieths of a point; 60 in a new plot. In a plot
    /// that is too small for the header to be seen there it is shown at the nearest edge.
    void setHeaderTop(double top);

    /// Moves a text box to a position in twentieths of a point; the header goes back to its row.
    /// The box keeps the position, but in a plot that is too small for all of it to be seen there
    /// it is shown, and drawn, at the nearest edge (`shownPlace`); `geometry` of the box says
    /// where.
    void moveBox(TextBox box, double left, double top);

    /// Sets the text of a box and lays the parts out again.
    void setBoxText(TextBox box, const QString& text);
    void setBoxContent(TextBox box, RichText content);
    const emfRichTextBox& box(TextBox box) const
    {
        return ertbTexts[static_cast<std::size_t>(box)];
    }

    /// Lays the parts out again after a text box was changed from outside, and draws them.
    void refresh();

    /// The picture on the screen, opaque; parts that have changed are drawn first. Errors: those of
    /// the parts; what could be drawn is in the next picture.
    const QImage& Image();

    /// Writes the picture as an Enhanced Metafile, whole or not at all. The file name is taken as
    /// it stands. Errors: those of drawing and of writing a file.
    void ExportPic(const QString& fileName) const;

    /// Draws the same picture into a caller's context: white ground, axes, titles, boxes, curves.
    /// What is being edited is not in it: who wants it there calls `commitEdits` first.
    void Draw(DeviceContext& context) const;

    /// Asks whoever edits a text of the plot to put into the plot what has been typed. Called
    /// before the plot is saved, copied or made a picture.
    void commitEdits() { Q_EMIT editsWanted(); }

    const ucPlot& vgPlot() const { return m_vgPlot; }
    const ucPlot& vfPlot() const { return m_vfPlot; }
    const xAxis& velAxis() const { return m_velAxis; }
    const yAxis& gAxis() const { return m_gAxis; }
    const yAxis& freqAxis() const { return m_freqAxis; }
    const trspLabel& velAxisLabel() const { return m_velAxisLabel; }
    const trspLabel& gAxisLabel() const { return m_gAxisLabel; }
    const trspLabel& freqAxislabel() const { return m_freqAxislabel; }

Q_SIGNALS:
    /// The picture on the screen is no longer true.
    void changed();

    /// `commitEdits` was called.
    void editsWanted();

    /// The plot is about to get other contents: what is being edited, or moved, goes with the old
    /// ones.
    void contentsReplaced();

private:
    void WriteEmfPicture(const QString& fileName) const;
    void setBounds(const PlotBounds& bounds);
    void layOut();
    void layOutBoxes(const PlotLayout& layout);
    emfRichTextBox& textBox(TextBox box) { return ertbTexts[static_cast<std::size_t>(box)]; }
    void appendDampLine(float g, const QString& caption);
    void invalidate();
    void followRows();
    void drawParts();
    void compose();
    template <typename Plot>
    static auto partsInDrawingOrder(Plot& plot);

    ucPlot m_vgPlot;
    ucPlot m_vfPlot;
    xAxis m_velAxis;
    yAxis m_gAxis;
    yAxis m_freqAxis;
    trspLabel m_velAxisLabel {QStringLiteral("velAxisLabel")};
    trspLabel m_gAxisLabel {QStringLiteral("gAxisLabel")};
    trspLabel m_freqAxislabel {QStringLiteral("freqAxislabel")};
    std::array<emfRichTextBox, allTextBoxes.size()> ertbTexts; ///< by `TextBox`
    double m_headerTop = 60; ///< twentieths of a point

    PlotRows m_rows;
    QString m_caption;
    int m_modeColor = 0;
    bool m_visible = true;
    bool m_editMode = false;
    bool m_isPlotted = false; ///< the canvases show curves
    bool m_isStale = true; ///< parts have changed since they were drawn
    bool m_isComposed = false;
    QSize m_size;
    double m_ratio = 1;
    QImage m_image;
    ChangedProperties m_changed;
};

template <typename Plot>
auto EvmPlot::partsInDrawingOrder(Plot& plot)
{
    using Part = std::conditional_t<std::is_const_v<Plot>, const PlotControl, PlotControl>;
    std::array<Part*, 8 + allTextBoxes.size()> parts = {&plot.m_velAxis,  &plot.m_velAxisLabel,
                                                        &plot.m_freqAxis, &plot.m_freqAxislabel,
                                                        &plot.m_gAxis,    &plot.m_gAxisLabel};
    Part** next = parts.data() + 6;
    for (auto& box : plot.ertbTexts)
        *next++ = &box;
    *next++ = &plot.m_vfPlot;
    *next = &plot.m_vgPlot;
    return parts;
}

} // namespace tarsil
