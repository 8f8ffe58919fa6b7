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
class PlotMarks
{
public:
    /// A damping line, wherever it begins and ends.
    struct DampLine
    {
        float g = 0;
        QString Caption;
    };

    /// Both must outlive the object.
    PlotMarks(PlotParts& parts, PlotPicture& picture) : m_parts(parts), m_picture(picture) { }

    /// Both draw the speed axis again. Error 11 for an axis that cannot be drawn; the change is
    /// made all the same.
    void AddRef(float speed, const QString& caption);
    void RemoveRef();

    const std::vector<RefThick>& referenceSpeeds() const;

    /// Replaces all reference speeds; nothing is drawn.
    void setReferenceSpeeds(std::vector<RefThick> marks);

    /// A note about marks that are not at their speeds: a mark is measured from the left end of the
    /// speed axis, so that it is elsewhere on an axis that does not begin at 0. Empty while all
    /// marks are at their speeds.
    QString shiftNote() const;

    /// A horizontal line at damping g across the present speed range. Both draw the plot again;
    /// errors as `PlotPicture::plot`.
    void AddDampLine(float g, const QString& caption);
    void RemoveDampLine();

    const std::vector<RefLine>& dampingLines() const;

    /// Replaces all damping lines by lines across the present speed range; nothing is drawn.
    void setDampingLines(const std::vector<DampLine>& lines);

    /// The same with lines that have their own ends.
    void restoreDampingLines(std::vector<RefLine> lines);

private:
    void append(float g, const QString& caption);

    PlotParts& m_parts;
    PlotPicture& m_picture;
};

} // namespace tarsil
