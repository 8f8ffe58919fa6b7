#pragma once

#include "emf/EmfObjects.h"
#include "emf/EmfState.h"
#include "emf/EmfStream.h"
#include "surface/DeviceContext.h"
#include "surface/TextMetrics.h"

#include <optional>
#include <vector>

namespace tarsil {

class EmfSink;

/// Draws into an Enhanced Metafile: records that a player repeats on its own surface, at any size.
/// They go to the sink while drawing, so that a large picture takes no more memory than a small
/// one. Connected solid lines of one pen become one record; dashed ones stay single, as dashes
/// begin anew with each.
///
/// What lies farther than 2^16 pixels away is left out, and lines are cut there: some players go
/// wrong beyond. Drawing raises what the sink raises, and error 6 beyond 4 GiB; origin and clip
/// never fail.
class MetafileContext : public DeviceContext
{
public:
    /// `sink` must be empty and outlive the context. `description` says who made the picture.
    explicit MetafileContext(EmfSink& sink, const QString& description);

    void drawLine(QPoint from, QPoint to, const Pen& pen) override;
    void drawText(QPoint reference, const QString& text, const Font& font, ColorValue color,
                  TextAlignment alignment) override;
    QSize textExtent(const QString& text, const Font& font) const override;
    int textAscent(const Font& font) const override;
    void fillRectangle(const QRect& rectangle, ColorValue color) override;
    void setClip(const QRect& rectangle) override;
    void clearClip() override;
    void setOrigin(QPoint origin) override;

    /// Writes the end and then the header; without it the sink holds no metafile. Nothing is drawn
    /// after it.
    void close();

private:
    /// Connected lines that are not written yet, with the pen and the clip they were drawn with.
    struct Lines
    {
        Pen pen;
        std::optional<QRect> clip;
        std::vector<QPoint> points;
    };

    bool drawsNothing() const;
    void writeLines();
    void writeDashes(QPoint from, QPoint to, const Pen& pen);
    void addBounds(const QRect& box, const std::optional<QRect>& clip);

    EmfStream m_stream;
    EmfObjects m_objects;
    EmfState m_state;
    TextMetrics m_text;
    QString m_description;
    QPoint m_origin;
    std::optional<QRect> m_clip;
    Lines m_lines;
    QRect m_bounds; ///< of all that is drawn, pen width included
    bool m_isClosed = false;
};

} // namespace tarsil
