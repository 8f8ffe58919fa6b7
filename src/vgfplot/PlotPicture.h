#pragma once

#include <QImage>
#include <QObject>
#include <QSize>

namespace tarsil {

struct PlotParts;

/// The picture of a V-g-f plot on the screen. Every part is drawn on its own surface, and the
/// picture is composed of these. What has changed is drawn when the picture is next asked for.
class PlotPicture : public QObject
{
    Q_OBJECT

public:
    /// `parts` must outlive the picture.
    explicit PlotPicture(PlotParts& parts);

    /// Size of the plot in pixels at 96 per inch, at least 1 x 1; lays the parts out. `ratio`:
    /// physical pixels of the screen for each of them.
    void resize(QSize size, double ratio);
    QSize size() const { return m_size; }

    /// Lays the parts out again and marks the picture as stale. Called when a size has changed.
    void layOut();

    /// Marks the picture as stale.
    void invalidate();

    /// The same, and the canvases show curves from now on.
    void showCurves();

    /// A part has been drawn on its own surface: the picture is composed again, and nothing else
    /// is drawn.
    void composeAgain();

    /// Empties both canvases and draws all parts at once. A part that fails does not prevent the
    /// others from being drawn; its error is raised afterwards.
    void plot();

    /// Empties both canvases; they stay so until `plot` or `showCurves`.
    void Cls();

    /// The picture, opaque; parts that have changed are drawn first. Errors: those of the parts;
    /// the next picture has what could be drawn.
    const QImage& image();

Q_SIGNALS:
    /// The picture is no longer what the plot looks like.
    void changed();

private:
    void drawParts();
    void compose();

    PlotParts& m_parts;
    bool m_isPlotted = false; ///< the canvases show curves
    bool m_isStale = true; ///< parts have changed since they were drawn
    bool m_isComposed = false;
    QSize m_size {1, 1};
    double m_ratio = 1;
    QImage m_image;
};

} // namespace tarsil
