// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "plotwindow/EvmPlotView.h"

#include <QObject>

class QLabel;
class QSinglePointEvent;

namespace tarsil {

/// A small box beside the pointer with the values of the plot there (`readAt`). It is visible while
/// the pointer moves over the canvases or rests on them with no button pressed. It hides when the
/// pointer leaves, a button or key is pressed, a text box is edited, or the plot changes. It exists
/// on the screen only; pictures do not contain it. Beside the cursor on a curve it shows the values
/// there.
class PlotReadout : public QObject
{
    Q_OBJECT

public:
    /// The view owns the readout. Events of the view pass through unchanged; its mouse tracking
    /// stays on.
    PlotReadout(EvmPlot& plot, EvmPlotView& view);
    ~PlotReadout() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void follow(const QSinglePointEvent& event);
    void showAt(QPoint pointer);
    void showCursor();
    void show(const QString& text, QPoint position);
    void hide();
    bool isCovered(QPoint pointer) const;
    QPoint positionBeside(QPoint pointer) const;

    EvmPlot& m_plot;
    EvmPlotView& m_view;
    QLabel* m_box; ///< belongs to the view
};

} // namespace tarsil
