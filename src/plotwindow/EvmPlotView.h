#pragma once

#include "base/user/RunTimeError.h"
#include "plotwindow/PlotHighlight.h"
#include "plotwindow/TextBoxMover.h"
#include "vgfplot/EvmPlot.h"

#include <QWidget>

#include <optional>

class QMenu;

namespace tarsil {

class RichTextEditor;

/// Shows a V-g-f plot and follows its changes. A click selects a text box, dragging or the arrow
/// keys move it, a double click or F2 edits it; its context menu `mnuErtb` has the same commands.
/// An empty box shows its prompt, on the screen only.
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

Q_SIGNALS:
    /// Drawing failed; what could be drawn is shown. Emitted once for each failure, not at every
    /// repaint.
    void failed(const tarsil::RunTimeError& error);

    /// The user has edited or moved a text box. `what` is the name of the undo step; `joins` says
    /// that it belongs to the last step if that has the same name.
    void edited(const QString& what, bool joins);

    /// The user copies the picture, or begins to edit or move a text box.
    void commandBegun();

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void fitPlot();
    void makeActions();
    void paintPrompts(QPainter& painter) const;
    void paintSelection(QPainter& painter) const;
    void showBoxMenu(TextBox box, QPoint position);
    void startEditing(TextBox box);
    void finishEditing(bool keep);
    void letGo();
    void followMovement();
    void updateDescription();

    EvmPlot& m_plot;
    std::optional<PlotHighlight> m_highlight;
    TextBoxMover m_mover;
    QMenu* m_boxMenu;
    QAction* m_edit;
    QAction* m_move;
    bool m_isMoving = false; ///< a text box follows the pointer
    RichTextEditor* m_editor = nullptr;
    TextBox m_editedBox = TextBox::Header;
};

} // namespace tarsil
