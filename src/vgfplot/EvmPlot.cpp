#include "vgfplot/EvmPlot.h"

#include "base/numbers/Numbers.h"
#include "base/user/RunTimeError.h"
#include "surface/PainterContext.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <exception>
#include <optional>
#include <utility>

namespace tarsil {

namespace {

constexpr ColorValue white = rgb(255, 255, 255);
constexpr ColorValue black = 0;

struct Range
{
    float smallest;
    float largest;
};

/// Smallest and largest frequency of the points in the visible speeds, with a margin below.
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

/// What a person reads in the bounds: -0.35, and not the -0.34999999 of the single.
void setRange(PlotAxis& axis, float min, float max)
{
    axis.setMin(decimalValue(min));
    axis.setMax(decimalValue(max));
}

} // namespace

EvmPlot::EvmPlot() : m_vgPlot(*this), m_vfPlot(*this)
{
    m_vgPlot.setPlotType(plottype::dampingOverSpeed);
    m_vfPlot.setPlotType(plottype::frequencyOverSpeed);
    m_gAxis.setDirection(true);
    m_gAxis.setThickFormat(QStringLiteral("0.00#"));
    m_freqAxis.setThickFormat(QStringLiteral("0.0#"));
    for (trspLabel* label : {&m_velAxisLabel, &m_gAxisLabel, &m_freqAxislabel})
        label->setAutoSize(true);
    Header().setPrompt(QStringLiteral("Insert Header"));
    Legend().setPrompt(QStringLiteral("Insert Legend"));
    Mechanism().setPrompt(QStringLiteral("Insert Subtitle"));
    ReadProperties({});
    setBounds(PlotAxes().bounds());
    resize(QSize(800, 600));
    followRows();
}

EvmPlot::~EvmPlot() = default;

/// A change of the rows is shown without being asked for.
void EvmPlot::followRows()
{
    const auto showCurves = [this] {
        m_isPlotted = true;
        invalidate();
    };
    connect(&m_rows, &PlotRows::rowsAdded, this, showCurves);
    connect(&m_rows, &PlotRows::rowsRemoved, this, showCurves);
    connect(&m_rows, &PlotRows::rowsMoved, this, showCurves);
    connect(&m_rows, &PlotRows::rowChanged, this, showCurves);
}

RowId EvmPlot::addSeries(AeMode& mode, const std::optional<MarkerOptions>& markers)
{
    Series series = newSeries(mode, m_rows.count());
    if (markers) {
        series.MarkerForegroundColor = series.ColorIndex;
        markers->applyTo(series);
    }
    return m_rows.add(std::move(series));
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

void EvmPlot::plot()
{
    m_isPlotted = true;
    invalidate();
    drawParts();
}

void EvmPlot::Cls()
{
    m_isPlotted = false;
    m_isComposed = false;
    m_vgPlot.Cls();
    m_vfPlot.Cls();
    Q_EMIT changed();
}

PlotAxes EvmPlot::axes() const
{
    const auto valuesOf = [](const PlotAxis& axis, const trspLabel& label) {
        return AxisValues {label.Caption().toStdString(), static_cast<float>(axis.Min()),
                           static_cast<float>(axis.Max()), axis.nThick()};
    };
    return {valuesOf(m_velAxis, m_velAxisLabel), valuesOf(m_freqAxis, m_freqAxislabel),
            valuesOf(m_gAxis, m_gAxisLabel)};
}

void EvmPlot::setAxes(const PlotAxes& axes)
{
    setVLabel(QString::fromStdString(axes.speed.title));
    setGLabel(QString::fromStdString(axes.damping.title));
    setFLabel(QString::fromStdString(axes.frequency.title));
    setVthicks(axes.speed.ticks);
    setGthicks(axes.damping.ticks);
    setFthicks(axes.frequency.ticks);
    setBounds(axes.bounds());
}

void EvmPlot::GetScale(float& vmin, float& vmax, float& fmin, float& fmax, float& gmin,
                       float& gmax) const
{
    vmin = static_cast<float>(m_velAxis.Min());
    vmax = static_cast<float>(m_velAxis.Max());
    fmin = static_cast<float>(m_freqAxis.Min());
    fmax = static_cast<float>(m_freqAxis.Max());
    gmin = static_cast<float>(m_gAxis.Min());
    gmax = static_cast<float>(m_gAxis.Max());
}

void EvmPlot::SetScale(float vmin, float vmax, float fmin, float fmax, float gmin, float gmax)
{
    setBounds({vmin, vmax, fmin, fmax, gmin, gmax});
}

void EvmPlot::setBounds(const PlotBounds& bounds)
{
    setRange(m_velAxis, bounds[0], bounds[1]);
    setRange(m_freqAxis, bounds[2], bounds[3]);
    setRange(m_gAxis, bounds[4], bounds[5]);
    // The V-g canvas spans both halves; its lower half agrees with the damping axis.
    m_vgPlot.SetScale(m_velAxis.Min(), 2 * m_gAxis.Min() - m_gAxis.Max(), m_velAxis.Max(),
                      m_gAxis.Max());
    m_vfPlot.SetScale(m_velAxis.Min(), m_freqAxis.Max(), m_velAxis.Max(), m_freqAxis.Min());
    invalidate();
}

void EvmPlot::setModeColor(int value)
{
    m_modeColor = value;
    m_vgPlot.setModeColor(value);
    m_vfPlot.setModeColor(value);
    m_changed.mark(QStringLiteral("ModeColor"));
}

void EvmPlot::setVthicks(std::int16_t count)
{
    m_velAxis.setNThick(count);
    m_changed.mark(QStringLiteral("vThicks"));
    invalidate();
}

void EvmPlot::setGthicks(std::int16_t count)
{
    m_gAxis.setNThick(count);
    m_changed.mark(QStringLiteral("gThicks"));
    invalidate();
}

void EvmPlot::setFthicks(std::int16_t count)
{
    m_freqAxis.setNThick(count);
    m_changed.mark(QStringLiteral("fThicks"));
    invalidate();
}

void EvmPlot::setVLabel(const QString& text)
{
    m_velAxisLabel.setCaption(text);
    m_changed.mark(QStringLiteral("vLabel"));
    refresh();
}

void EvmPlot::setGLabel(const QString& text)
{
    m_gAxisLabel.setCaption(text);
    m_changed.mark(QStringLiteral("gLabel"));
    refresh();
}

void EvmPlot::setFLabel(const QString& text)
{
    m_freqAxislabel.setCaption(text);
    m_changed.mark(QStringLiteral("fLabel"));
    refresh();
}

void EvmPlot::setCaption(const QString& caption)
{
    m_caption = caption;
    m_changed.mark(QStringLiteral("Caption"));
    Q_EMIT changed();
}

void EvmPlot::setVisible(bool visible)
{
    m_visible = visible;
    Q_EMIT changed();
}

void EvmPlot::setEditMode(bool on)
{
    m_editMode = on;
    Q_EMIT changed();
}

void EvmPlot::AddRef(float speed, const QString& caption)
{
    m_isComposed = false;
    Q_EMIT changed();
    m_velAxis.AddRef(speed, caption);
}

void EvmPlot::RemoveRef()
{
    m_isComposed = false;
    Q_EMIT changed();
    m_velAxis.RemoveRef();
}

QString EvmPlot::shiftedMarksNote() const
{
    const double begin = m_velAxis.Min();
    if (m_velAxis.marks().empty() || begin == 0)
        return {};
    const QString side = begin > 0 ? QStringLiteral("right") : QStringLiteral("left");
    const auto text = [](double speed) { return QString::fromStdString(shortestText(speed)); };
    return QStringLiteral("Reference speeds stand ") + text(std::fabs(begin))
        + QStringLiteral(" knots too far ") + side + QStringLiteral(": the speed axis begins at ")
        + text(begin);
}

void EvmPlot::AddDampLine(float g, const QString& caption)
{
    appendDampLine(g, caption);
    plot();
}

void EvmPlot::appendDampLine(float g, const QString& caption)
{
    const AxisValues speed = axes().speed;
    m_vgPlot.AddLine(speed.min, g, speed.max, g, caption, black, penstyle::solid);
}

void EvmPlot::RemoveDampLine()
{
    m_vgPlot.RemoveLines();
    plot();
}

void EvmPlot::setRefs(std::vector<RefThick> marks)
{
    m_velAxis.setMarks(std::move(marks));
    invalidate();
}

std::vector<EvmPlot::DampLine> EvmPlot::DampLines() const
{
    std::vector<DampLine> lines;
    for (const RefLine& line : m_vgPlot.lines())
        lines.push_back({line.Y1, line.Caption});
    return lines;
}

void EvmPlot::setDampLines(const std::vector<DampLine>& lines)
{
    m_vgPlot.RemoveLines();
    for (const DampLine& line : lines)
        appendDampLine(line.g, line.Caption);
    invalidate();
}

void EvmPlot::restoreDampLines(const std::vector<RefLine>& lines)
{
    m_vgPlot.setLines(lines);
    invalidate();
}

void EvmPlot::Clone(const EvmPlot& source)
{
    Q_EMIT contentsReplaced();
    for (std::size_t i = 0; i < ertbTexts.size(); ++i)
        ertbTexts[i].Clone(source.ertbTexts[i]);
    m_headerTop = source.m_headerTop;
    ReadProperties(source.WriteProperties());
    setBounds(source.axes().bounds());
}

void EvmPlot::ReadProperties(const PropertyBag& bag)
{
    const auto thicks = [&bag](const QString& key, std::int16_t usual) {
        return static_cast<std::int16_t>(readProperty<int>(bag, key, usual));
    };
    const auto title = [&bag](const QString& key, const std::string& usual) {
        return readProperty(bag, key, QString::fromStdString(usual));
    };
    const PlotAxes usual;
    m_caption = readProperty(bag, QStringLiteral("Caption"), QStringLiteral("Plot1"));
    m_modeColor = readProperty(bag, QStringLiteral("ModeColor"), 0);
    m_vgPlot.setModeColor(m_modeColor);
    m_vfPlot.setModeColor(m_modeColor);
    m_velAxis.setNThick(thicks(QStringLiteral("vThicks"), usual.speed.ticks));
    m_gAxis.setNThick(thicks(QStringLiteral("gThicks"), usual.damping.ticks));
    m_freqAxis.setNThick(thicks(QStringLiteral("fThicks"), usual.frequency.ticks));
    m_velAxisLabel.setCaption(title(QStringLiteral("vLabel"), usual.speed.title));
    m_gAxisLabel.setCaption(title(QStringLiteral("gLabel"), usual.damping.title));
    m_freqAxislabel.setCaption(title(QStringLiteral("fLabel"), usual.frequency.title));
    refresh();
}

PropertyBag EvmPlot::WriteProperties() const
{
    return {{QStringLiteral("Caption"), m_caption}, {QStringLiteral("ModeColor"), m_modeColor},
            {QStringLiteral("vThicks"), vthicks()}, {QStringLiteral("gThicks"), gthicks()},
            {QStringLiteral("fThicks"), fthicks()}, {QStringLiteral("vLabel"), vLabel()},
            {QStringLiteral("gLabel"), gLabel()},   {QStringLiteral("fLabel"), fLabel()}};
}

void EvmPlot::invalidate()
{
    m_isStale = true;
    Q_EMIT changed();
}

void EvmPlot::refresh()
{
    layOut();
    invalidate();
}

const QImage& EvmPlot::Image()
{
    std::exception_ptr failure;
    if (m_isStale) {
        try {
            drawParts();
        } catch (...) {
            failure = std::current_exception();
        }
    }
    if (!m_isComposed)
        compose();
    if (failure)
        std::rethrow_exception(failure);
    return m_image;
}

/// Draws every part on its own surface; a part that fails does not keep the others from it.
void EvmPlot::drawParts()
{
    m_isStale = false;
    m_isComposed = false;
    std::exception_ptr failure;
    for (PlotControl* part : partsInDrawingOrder(*this)) {
        const bool isCanvas = part == &m_vgPlot || part == &m_vfPlot;
        if (isCanvas && !m_isPlotted)
            continue;
        try {
            part->Cls();
            part->Draw(nullptr);
        } catch (...) {
            failure = std::current_exception();
        }
    }
    if (failure)
        std::rethrow_exception(failure);
}

void EvmPlot::compose()
{
    const QSize pixels = m_size * m_ratio;
    if (m_image.size() != pixels)
        m_image = QImage(pixels, QImage::Format_RGB32);
    m_image.setDevicePixelRatio(1); // the parts' surfaces count physical pixels
    m_image.fill(Qt::white);
    m_isComposed = true;
    if (m_image.isNull())
        return;
    QPainter painter(&m_image);
    for (const PlotControl* part : partsInDrawingOrder(*this)) {
        if (!part->surface().isNull())
            painter.drawImage(part->surfacePosition(), part->surface());
    }
    painter.end();
    m_image.setDevicePixelRatio(m_ratio);
}

void EvmPlot::Draw(DeviceContext& context) const
{
    context.fillRectangle({QPoint(0, 0), m_size}, white);
    for (const PlotControl* part : partsInDrawingOrder(*this))
        part->drawInto(context);
}

} // namespace tarsil
