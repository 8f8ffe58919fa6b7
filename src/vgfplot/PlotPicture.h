// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QImage>
#include <QObject>
#include <QSize>

namespace tarsil {

struct PlotParts;

/// The picture of a V-g-f plot on the screen, composed of the surfaces of the drawn items. Stale
/// items are redrawn on the next request.
class PlotPicture : public QObject
{
    Q_OBJECT

public:
    /// `parts` must outlive the picture.
    explicit PlotPicture(PlotParts& parts);

    /// Sets the size in pixels at 96 per inch, at least 1 x 1, and updates the layout. `ratio`:
    /// physical pixels of the screen for each pixel.
    void resize(QSize size, double ratio);
    QSize size() const { return m_size; }

    /// Updates the layout and marks the picture as stale. Call after a size has changed.
    void layOut();

    /// Marks the picture as stale.
    void invalidate();

    /// Marks the picture as stale; from now on the canvases show curves.
    void showCurves();

    /// Composes the picture again on the next request, without drawing any item. Call after an item
    /// was drawn on its own surface.
    void composeAgain();

    /// Clears both canvases and draws all items at once. If items fail, the others are still drawn,
    /// and the error is raised afterwards.
    void plot();

    /// Clears both canvases until `plot` or `showCurves`.
    void Cls();

    /// The opaque picture. Draws stale items first. Errors: those of drawing; the next call returns
    /// what could be drawn.
    const QImage& image();

Q_SIGNALS:
    /// The picture is out of date.
    void changed();

private:
    void drawParts();
    void compose();

    PlotParts& m_parts;
    bool m_isPlotted = false; ///< whether the canvases show curves
    bool m_isStale = true; ///< items have changed since they were drawn
    bool m_isComposed = false;
    QSize m_size {1, 1};
    double m_ratio = 1;
    QImage m_image;
};

} // namespace tarsil
