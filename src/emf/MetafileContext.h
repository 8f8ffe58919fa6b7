// SPDX-License-Identifier: Apache-2.0
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

/// How a metafile contains the dashes of a line: as a pen, which each program draws in its own way
/// and some draw solid, or as short lines of a solid pen, with their ends on whole pixels.
enum class MetafileDashes { Pens, Lines };

/// Draws into an Enhanced Metafile: a list of records that a player repeats on its own surface, at
/// any size. Records go to the sink while drawing, so memory use does not grow with the picture.
/// Connected solid lines of one pen become one record. Dashed lines get one record each, because
/// dashes begin anew with each line.
///
/// Anything farther than 2^16 pixels away is omitted and lines are cut there, because some players
/// fail beyond. Drawing raises the errors of the sink, and error 6 beyond 4 GiB. Setting origin and
/// clip never fails.
class MetafileContext : public DeviceContext
{
public:
    /// `sink` must be empty and outlive the context. `description` names the program and the
    /// picture.
    explicit MetafileContext(EmfSink& sink, const QString& description,
                             MetafileDashes dashes = MetafileDashes::Pens);

    void drawLine(QPoint from, QPoint to, const Pen& pen) override;
    void drawText(QPoint reference, const QString& text, const Font& font, ColorValue color,
                  TextAlignment alignment) override;
    QSize textExtent(const QString& text, const Font& font) const override;
    int textAscent(const Font& font) const override;
    void fillRectangle(const QRect& rectangle, ColorValue color) override;
    void setClip(const QRect& rectangle) override;
    void clearClip() override;
    void setOrigin(QPoint origin) override;
    bool hasFixedOrder() const override { return true; }

    /// Writes the final record and then the header. Without it the sink holds no valid metafile. Do
    /// not draw afterwards.
    void close();

private:
    /// Connected lines not written yet, with their pen and clip.
    struct Lines
    {
        Pen pen;
        std::optional<QRect> clip;
        std::vector<QPoint> points;
    };

    bool drawsNothing() const;
    void addLine(QPoint from, QPoint to, const Pen& written);
    void addDashes(QPointF from, QPointF to, const Pen& pen);
    void writeLines();
    void writeDashes(QPoint from, QPoint to, const Pen& pen);
    void addBounds(const QRect& box, const std::optional<QRect>& clip);

    EmfStream m_stream;
    EmfObjects m_objects;
    EmfState m_state;
    TextMetrics m_text;
    QString m_description;
    MetafileDashes m_dashes;
    QPoint m_origin;
    std::optional<QRect> m_clip;
    Lines m_lines;
    QRect m_bounds; ///< of everything drawn, with pen widths
    bool m_isClosed = false;
};

} // namespace tarsil
