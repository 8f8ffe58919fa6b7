// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "base/user/RunTimeError.h"
#include "document/UndoHistory.h"
#include "plotwindow/CurveSelection.h"
#include "plotwindow/PlotHighlight.h"
#include "plotwindow/PlotSigns.h"
#include "plotwindow/TextBoxMover.h"
#include "plotwindow/ZoomGesture.h"
#include "vgfplot/EvmPlot.h"

#include <QRect>
#include <QWidget>

#include <functional>
#include <optional>
#include <vector>

class QMenu;

namespace tarsil {

class InPlaceEditor;

/// Shows a V-g-f plot and follows its changes. A click selects a text box, dragging or the arrow
/// keys move it, a double click or F2 edits it; its context menu `mnuErtb` has the same commands.
/// An empty box shows its prompt, on the screen only.
///
/// A click selects the nearest curve, with Ctrl several curves; Del asks for the removal of the
/// selected ones. Elsewhere the mouse zooms and pans (`ZoomGesture`). A double click on an axis
/// edits its bounds and ticks in place; Home, or a double click between the curves, fits all axes.
///
/// Tab goes from the plot to the header, the legend and the subtitle, which F2 or Return edits. The
/// arrow keys move a cursor along a curve and from curve to curve.
class EvmPlotView : public QWidget
{
    Q_OBJECT

public:
    /// `plot` must outlive the view.
    explicit EvmPlotView(EvmPlot& plot, QWidget* parent = nullptr);
    ~EvmPlotView() override;

    QSize sizeHint() const override;

    /// Copies the picture to the clipboard as metafile, SVG and bitmap.
    void copyPicture();

    /// Shows a highlight over the picture until the next call; empty removes it.
    void setHighlight(const std::optional<PlotHighlight>& highlight);

    /// Selects the curves of these rows only.
    void selectCurves(const std::vector<tarsil::RowId>& rows);

    /// Whether the plot has a selected curve.
    bool hasSelectedCurve() const { return !m_curves.rows().empty(); }

    /// Shows a text while the plot has no rows: what the user can do next. Empty for none.
    void setHint(const QString& text);

    const EvmPlot& plot() const { return m_plot; }
    const CurveSelection& curves() const { return m_curves; }

    /// The text box that keys move and edit.
    std::optional<TextBox> selectedBox() const { return m_mover.selected(); }

    /// Shows signs over the picture until the next call.
    void setSigns(PlotSigns signs);

Q_SIGNALS:
    /// The user has selected the curves of these rows, or none.
    void curvesSelected(const std::vector<tarsil::RowId>& rows);

    /// The keys have moved the cursor on a curve, or removed it.
    void cursorMoved();

    /// The user asks for the removal of the selected curves.
    void removeWanted();

    /// Drawing failed; what could be drawn is shown. Emitted once for each failure, not at every
    /// repaint.
    void failed(const tarsil::RunTimeError& error);

    /// The user has changed the plot. `what` is the name of the undo step.
    void edited(const QString& what, tarsil::UndoHistory::Joining joining);

    /// The user has clicked a sign, by its index.
    void signClicked(std::size_t index);

    /// The user begins to change the plot, or copies the picture.
    void commandBegun();

protected:
    bool event(QEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void fitPlot();
    void makeActions();
    void paintPrompts(QPainter& painter) const;
    void paintSelection(QPainter& painter) const;
    void showBoxMenu(TextBox box, QPoint position);
    void paintBand(QPainter& painter) const;
    void startEditing(TextBox which);
    void editAxis(PlotZone axis, QPoint position);
    void openEditor(InPlaceEditor& editor, QRect area, std::function<QString()> apply);
    void fitEditor();
    void commitEditor();
    void finishByKey();
    void finishEditing(bool keep);
    void fitAll();
    void selectCurveAt(QPoint position, bool adds);
    bool handleKey(const QKeyEvent& key);
    bool handleBoxKey(const QKeyEvent& key);
    bool handleCurveKey(const QKeyEvent& key);
    bool moveCursor(const QKeyEvent& key);
    void selectBox(std::optional<TextBox> box);
    bool isMoving() const { return m_mover.isMoving() || m_gesture.isActive(); }
    void updatePointer();
    void letGo();
    void followMovement();
    void updateDescription();

    EvmPlot& m_plot;
    std::optional<PlotHighlight> m_highlight;
    PlotSigns m_signs;
    QString m_hint;
    TextBoxMover m_mover;
    ZoomGesture m_gesture;
    CurveSelection m_curves;
    QMenu* m_boxMenu;
    QAction* m_edit;
    QAction* m_move;
    bool m_isMoving = false; ///< a text box follows the pointer
    InPlaceEditor* m_editor = nullptr;
    QRect m_editorArea; ///< where the editor was opened
    std::function<QString()> m_applyEditor; ///< returns the name of the undo step, or an empty text
    std::optional<TextBox> m_editedBox;
};

} // namespace tarsil
