#pragma once

#include "plotwindow/EvmPlotView.h"

#include <QObject>

class QLabel;
class QSinglePointEvent;

namespace tarsil {

/// A small box beside the pointer with the values of the plot there (`readAt`). It shows while the
/// pointer moves over the canvases or rests on them with no button pressed, and hides when the
/// pointer leaves them, when a button or a key is pressed, while a text box is edited, and when
/// what it says is no longer true, since the plot has changed. It is on the screen only: the plot,
/// which draws the pictures, knows nothing of it.
class PlotReadout : public QObject
{
    Q_OBJECT

public:
    /// Belongs to the view from then on. All of the view's events pass through unchanged; mouse
    /// tracking of the view stays on.
    PlotReadout(EvmPlot& plot, EvmPlotView& view);
    ~PlotReadout() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void follow(const QSinglePointEvent& event);
    void showAt(QPoint pointer);
    void hide();
    bool isCovered(QPoint pointer) const;
    QPoint placeBeside(QPoint pointer) const;

    EvmPlot& m_plot;
    EvmPlotView& m_view;
    QLabel* m_box; ///< belongs to the view
};

} // namespace tarsil
