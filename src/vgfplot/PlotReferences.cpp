// SPDX-License-Identifier: Apache-2.0
#include "vgfplot/PlotReferences.h"

#include "base/numbers/Numbers.h"
#include "surface/DeviceContext.h"
#include "vgfplot/PlotParts.h"
#include "vgfplot/PlotPicture.h"

#include <cmath>
#include <utility>

namespace tarsil {

void PlotReferences::AddRef(float speed, const QString& caption)
{
    m_picture.composeAgain();
    m_parts.velAxis.AddRef(speed, caption);
}

void PlotReferences::RemoveRef()
{
    m_picture.composeAgain();
    m_parts.velAxis.RemoveRef();
}

const std::vector<RefThick>& PlotReferences::referenceSpeeds() const
{
    return m_parts.velAxis.marks();
}

void PlotReferences::setReferenceSpeeds(std::vector<RefThick> marks)
{
    m_parts.velAxis.setMarks(std::move(marks));
    m_picture.invalidate();
}

QString PlotReferences::shiftNote() const
{
    const double begin = m_parts.velAxis.Min();
    if (referenceSpeeds().empty() || begin == 0)
        return {};
    const QString side = begin > 0 ? QStringLiteral("right") : QStringLiteral("left");
    const auto text = [](double speed) { return QString::fromStdString(shortestText(speed)); };
    return QStringLiteral("Reference speeds are drawn ") + text(std::fabs(begin))
        + QStringLiteral(" knots too far ") + side + QStringLiteral(": the speed axis begins at ")
        + text(begin);
}

void PlotReferences::AddDampLine(float g, const QString& caption)
{
    append(g, caption);
    m_picture.plot();
}

void PlotReferences::append(float g, const QString& caption)
{
    constexpr ColorValue black = 0;
    const AxisValues speed = m_parts.axes().speed;
    m_parts.vgPlot.AddLine(speed.min, g, speed.max, g, caption, black, penstyle::solid);
}

void PlotReferences::RemoveDampLine()
{
    m_parts.vgPlot.RemoveLines();
    m_picture.plot();
}

const std::vector<RefLine>& PlotReferences::dampingLines() const
{
    return m_parts.vgPlot.lines();
}

void PlotReferences::setDampingLines(const std::vector<DampLine>& lines)
{
    m_parts.vgPlot.RemoveLines();
    for (const DampLine& line : lines)
        append(line.g, line.Caption);
    m_picture.invalidate();
}

void PlotReferences::restoreDampingLines(std::vector<RefLine> lines)
{
    m_parts.vgPlot.setLines(std::move(lines));
    m_picture.invalidate();
}

} // namespace tarsil
