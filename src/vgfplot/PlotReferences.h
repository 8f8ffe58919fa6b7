// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "plot/RefLine.h"
#include "plot/RefThick.h"

#include <QString>

#include <vector>

namespace tarsil {

class PlotPicture;
struct PlotParts;

/// The reference speeds of a V-g-f plot, which are marks on its speed axis, and its damping lines,
/// which are horizontal lines on its V-g canvas. Speeds are knots (KEAS); dampings g are
/// dimensionless (negative is stable).
class PlotReferences
{
public:
    /// A damping line without its ends.
    struct DampLine
    {
        float g = 0;
        QString Caption;
    };

    /// Both must outlive the object.
    PlotReferences(PlotParts& parts, PlotPicture& picture) : m_parts(parts), m_picture(picture) { }

    /// Adds a mark, or removes all marks, and redraws the speed axis. Error 11 for an axis that
    /// cannot be drawn; the change is made all the same.
    void AddRef(float speed, const QString& caption);
    void RemoveRef();

    const std::vector<RefThick>& referenceSpeeds() const;

    /// Replaces all reference speeds; does not draw.
    void setReferenceSpeeds(std::vector<RefThick> marks);

    /// A note on misplaced marks: a mark is measured from the left end of the speed axis, so it is
    /// at its speed only when the axis begins at 0. Empty when all marks are at their speeds.
    QString shiftNote() const;

    /// A horizontal line at damping g across the current speed range. Both functions redraw the
    /// plot; errors as in `PlotPicture::plot`.
    void AddDampLine(float g, const QString& caption);
    void RemoveDampLine();

    const std::vector<RefLine>& dampingLines() const;

    /// Replaces all damping lines by lines across the current speed range; does not draw.
    void setDampingLines(const std::vector<DampLine>& lines);

    /// Replaces all damping lines by lines with their own ends; does not draw.
    void restoreDampingLines(std::vector<RefLine> lines);

private:
    void append(float g, const QString& caption);

    PlotParts& m_parts;
    PlotPicture& m_picture;
};

} // namespace tarsil
