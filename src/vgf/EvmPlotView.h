#pragma once

#include "runtime/RunTimeError.h"
#include "vgf/EvmPlot.h"

#include <QWidget>

#include <optional>

class QPlainTextEdit;

namespace tarsil {

/// Shows one V-g-f plot and follows its changes. A text box is moved by dragging it and edited by a
/// double click; an empty one shows its prompt, on the screen only.
class EvmPlotView : public QWidget
{
    Q_OBJECT

public:
    /// `plot` must outlive the view.
    explicit EvmPlotView(EvmPlot& plot, QWidget* parent = nullptr);
    ~EvmPlotView() override;

    QSize sizeHint() const override;

Q_SIGNALS:
    /// Drawing failed; what could be drawn is shown. Emitted once for a failure, not at every
    /// repaint.
    void failed(const tarsil::RunTimeError& error);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void fitPlot();
    void paintPrompts(QPainter& painter) const;
    std::optional<std::size_t> boxAt(QPoint position) const;
    void startEditing(std::size_t index);
    void finishEditing(bool keep);
    void updateDescription();

    EvmPlot& m_plot;
    std::optional<std::size_t> m_draggedBox;
    QPoint m_grip; ///< where in the dragged box the pointer holds it
    bool m_isDragging = false;
    QPlainTextEdit* m_editor = nullptr;
    std::size_t m_editedBox = 0;
};

} // namespace tarsil
