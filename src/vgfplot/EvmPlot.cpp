// SPDX-License-Identifier: Apache-2.0
#include "vgfplot/EvmPlot.h"

#include "base/user/RunTimeError.h"
#include "emf/EmfSink.h"
#include "surface/DeviceContext.h"
#include "vgfplot/PictureWriter.h"

#include <QString>

#include <algorithm>
#include <cmath>
#include <optional>
#include <string>

namespace tarsil {

namespace {

constexpr ColorValue white = rgb(255, 255, 255);

struct Range
{
    float smallest;
    float largest;
};

/// The smallest and largest frequency of the points in the visible speed range, with a margin at
/// its lower end.
std::optional<Range> visibleFrequencies(const SeriesList& series, float vmin, float vmax)
{
    constexpr double margin = 0.8;
    std::optional<Range> range;
    for (const Series& one : series) {
        if (one.Mode == nullptr)
            continue;
        for (const Point& point : one.Mode->Points) {
            if (!(point.speed > margin * vmin && point.speed < vmax))
                continue;
            if (!range)
                range = {point.f, point.f};
            range->smallest = std::min(range->smallest, point.f);
            range->largest = std::max(range->largest, point.f);
        }
    }
    return range;
}

} // namespace

EvmPlot::EvmPlot()
    : m_parts(*this), m_picture(m_parts), m_properties(m_parts, m_picture),
      m_references(m_parts, m_picture), m_texts(m_parts, m_picture)
{
    connect(&m_picture, &PlotPicture::changed, this, &EvmPlot::changed);
    resize(QSize(800, 600));
    followRows();
}

/// Marks the picture as stale on every change of the rows.
void EvmPlot::followRows()
{
    connect(&m_rows, &PlotRows::rowsAdded, &m_picture, &PlotPicture::showCurves);
    connect(&m_rows, &PlotRows::rowsRemoved, &m_picture, &PlotPicture::showCurves);
    connect(&m_rows, &PlotRows::rowsMoved, &m_picture, &PlotPicture::showCurves);
    connect(&m_rows, &PlotRows::rowChanged, &m_picture, &PlotPicture::showCurves);
}

void EvmPlot::SerieMove(std::size_t from, std::size_t to, std::size_t count)
{
    if (from < 1 || to < 1)
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange, "EvmPlot",
                           "row " + std::to_string(from) + " to " + std::to_string(to) + " of "
                               + std::to_string(m_rows.count()));
    m_rows.move(from - 1, to - 1, count);
}

void EvmPlot::fitFreq()
{
    PlotAxes axes = this->axes();
    const std::optional<Range> range =
        visibleFrequencies(SeriesCollection(), axes.speed.min, axes.speed.max);
    if (!range)
        return;
    double fmin = std::nearbyint(static_cast<double>(range->smallest) * 0.95);
    double fmax = std::nearbyint(static_cast<double>(range->largest) * 1.05);
    if (std::fabs(fmax - fmin) < 0.1) {
        fmin = std::nearbyint(static_cast<double>(range->smallest) * 0.85);
        fmax = std::nearbyint(static_cast<double>(range->largest) * 1.05);
    }
    if (fmin == fmax)
        return;
    axes.frequency.min = static_cast<float>(fmin);
    axes.frequency.max = static_cast<float>(fmax);
    setBounds(axes.bounds());
}

void EvmPlot::setAxes(const PlotAxes& axes)
{
    m_properties.setAxes(axes);
    setBounds(axes.bounds());
}

void EvmPlot::GetScale(float& vmin, float& vmax, float& fmin, float& fmax, float& gmin,
                       float& gmax) const
{
    const PlotBounds bounds = axes().bounds();
    vmin = bounds[0];
    vmax = bounds[1];
    fmin = bounds[2];
    fmax = bounds[3];
    gmin = bounds[4];
    gmax = bounds[5];
}

void EvmPlot::SetScale(float vmin, float vmax, float fmin, float fmax, float gmin, float gmax)
{
    setBounds({vmin, vmax, fmin, fmax, gmin, gmax});
}

void EvmPlot::setBounds(const PlotBounds& bounds)
{
    m_parts.setBounds(bounds);
    m_picture.invalidate();
}

void EvmPlot::setVisible(bool visible)
{
    m_visible = visible;
    Q_EMIT changed();
}

void EvmPlot::Clone(const EvmPlot& source)
{
    Q_EMIT contentsReplaced();
    for (const TextBox box : allTextBoxes)
        m_parts.box(box).Clone(source.m_parts.box(box));
    m_parts.headerTop = source.m_parts.headerTop;
    m_properties.ReadProperties(source.m_properties.WriteProperties());
    setBounds(source.axes().bounds());
}

void EvmPlot::ExportPic(const QString& fileName, const PictureSettings& settings) const
{
    WriteEmfPicture(fileName, settings);
}

void EvmPlot::WriteEmfPicture(const QString& fileName, const PictureSettings& settings) const
{
    EmfFile file(fileName.toStdString());
    writeMetafile(*this, file, settings);
    file.commit();
}

QString EvmPlot::title() const
{
    return QStringLiteral("V-g-f plot");
}

void EvmPlot::Draw(DeviceContext& context) const
{
    context.fillRectangle({QPoint(0, 0), size()}, white);
    for (const PlotControl* const part : m_parts.inDrawingOrder())
        part->drawInto(context);
}

} // namespace tarsil
