// SPDX-License-Identifier: Apache-2.0
#include "surface/SvgContext.h"

#include "surface/Dashes.h"
#include "surface/LineCut.h"
#include "surface/QtColor.h"

#include <QLineF>

#include <algorithm>
#include <cmath>

namespace tarsil {

namespace {

constexpr double millimetresPerPixel = 25.4 / 96;
constexpr double farthestExact = 16000; ///< readers are exact only this near the picture

QString numberText(double number)
{
    constexpr int digits = 9;
    return QString::number(number, 'g', digits);
}

QString colorText(ColorValue color)
{
    return qtColor(color).name();
}

/// A font family as a CSS value, quoted unless it consists of plain words.
QString familyText(const QString& family)
{
    QString name = drawableText(family);
    const auto isPlain = [](QChar unit) {
        return (unit >= u'a' && unit <= u'z') || (unit >= u'A' && unit <= u'Z') || unit == u' ';
    };
    if (!name.isEmpty() && std::all_of(name.begin(), name.end(), isPlain))
        return name;
    QString quoted = name;
    quoted.replace(u'\\', QStringLiteral("\\\\")).replace(u'\'', QStringLiteral("\\'"));
    return u'\'' + quoted + u'\'';
}

QString dashText(const Pen& pen)
{
    QStringList lengths;
    for (const qreal length : dashPattern(pen))
        lengths.append(numberText(length));
    return lengths.join(u',');
}

/// A position in the picture. A thousandth of a pixel is less than any printer can show.
QString positionText(double position)
{
    constexpr double finest = 1000;
    return numberText(std::nearbyint(position * finest) / finest);
}

QString pointsText(const QPolygonF& points)
{
    QString text;
    for (const QPointF point : points) {
        if (!text.isEmpty())
            text += u' ';
        text += positionText(point.x()) + u',' + positionText(point.y());
    }
    return text;
}

/// The rectangle to cut lines at: far enough outside the clip to hide their ends.
QRectF cutOf(const std::optional<QRect>& clip, const Pen& pen)
{
    if (!clip)
        return guardBand(farthestExact);
    const double margin = pen.width / 2.0 + 1;
    return QRectF(*clip).adjusted(-margin, -margin, margin, margin) & guardBand(farthestExact);
}

} // namespace

SvgContext::SvgContext(QIODevice& output, QSizeF size, const QString& title, double leastWidth)
    : m_xml(&output), m_leastWidth(leastWidth)
{
    const auto millimetres = [](double pixels) {
        return numberText(pixels * millimetresPerPixel) + QStringLiteral("mm");
    };
    m_xml.setAutoFormatting(true);
    m_xml.setAutoFormattingIndent(1);
    m_xml.writeStartDocument();
    m_xml.writeStartElement(QStringLiteral("svg"));
    m_xml.writeDefaultNamespace(QStringLiteral("http://www.w3.org/2000/svg"));
    m_xml.writeAttribute(QStringLiteral("width"), millimetres(size.width()));
    m_xml.writeAttribute(QStringLiteral("height"), millimetres(size.height()));
    m_xml.writeAttribute(QStringLiteral("viewBox"),
                         QStringLiteral("0 0 ") + numberText(size.width()) + u' '
                             + numberText(size.height()));
    m_xml.writeTextElement(QStringLiteral("title"), drawableText(title));
}

SvgContext::~SvgContext()
{
    flush();
    m_xml.writeEndDocument();
}

void SvgContext::drawLine(QPoint from, QPoint to, const Pen& pen)
{
    drawExactLine(from, to, pen);
}

void SvgContext::drawExactLine(QPointF from, QPointF to, const Pen& pen)
{
    if (pen.style == penstyle::none)
        return;
    const QPointF pixelCentre(0.5, 0.5);
    const QPointF whole = from + m_origin + pixelCentre;
    QPointF start = whole;
    QPointF end = to + m_origin + pixelCentre;
    if (!cutLine(start, end, cutOf(m_clip, pen)))
        return;
    const bool continues =
        !isDashed(pen) && !m_points.isEmpty() && pen == m_pen && m_points.constLast() == start;
    if (!continues) {
        flush();
        m_pen = pen;
        m_points.append(start);
    }
    m_points.append(end);
    if (isDashed(pen)) // the dash pattern begins at the start of the line, not at the cut
        writeLines(QLineF(whole, start).length());
}

void SvgContext::drawText(QPoint reference, const QString& text, const Font& font, ColorValue color,
                          TextAlignment alignment)
{
    const QRect box = m_text.box(reference + m_origin, text, font, alignment);
    const QRect seen = TextMetrics::reach(box, font);
    if (box.isEmpty() || (m_clip && !m_clip->intersects(seen)))
        return;
    flush();
    begin();
    const int baseline = box.top() + m_text.ascent(font);
    writeText(QPoint(box.left(), baseline), text, font, color);
    decorate(QPoint(box.left(), baseline), box.width(), font, color);
}

void SvgContext::writeText(QPoint start, const QString& text, const Font& font, ColorValue color)
{
    m_xml.writeStartElement(QStringLiteral("text"));
    m_xml.writeAttribute(QStringLiteral("x"), QString::number(start.x()));
    m_xml.writeAttribute(QStringLiteral("y"), QString::number(start.y()));
    m_xml.writeAttribute(QStringLiteral("fill"), colorText(color));
    m_xml.writeAttribute(QStringLiteral("font-family"), familyText(font.family));
    m_xml.writeAttribute(QStringLiteral("font-size"), QString::number(pixelSize(font)));
    if (font.bold)
        m_xml.writeAttribute(QStringLiteral("font-weight"), QStringLiteral("700"));
    if (font.italic)
        m_xml.writeAttribute(QStringLiteral("font-style"), QStringLiteral("italic"));
    m_xml.writeAttribute(QStringLiteral("xml:space"), QStringLiteral("preserve"));
    m_xml.writeCharacters(drawableText(text));
    m_xml.writeEndElement();
}

/// Writes underline and strike-out as rectangles, because not every reader supports them as text
/// properties. The positions are those of QPainter.
void SvgContext::decorate(QPoint start, int width, const Font& font, ColorValue color)
{
    const QFontMetricsF metrics(m_text.qtFont(font));
    const double thickness = metrics.lineWidth();
    const auto writeLine = [&](double row) {
        writeRectangle({start.x() + 0.0, start.y() + row - thickness / 2, width + 0.0, thickness},
                       colorText(color));
    };
    if (font.underline) // below the letters, but not lower than their descenders
        writeLine(std::min(std::ceil(metrics.underlinePos()) + 0.5, metrics.descent() - 0.5));
    if (font.strikeOut)
        writeLine(-metrics.ascent() / 3);
}

QSize SvgContext::textExtent(const QString& text, const Font& font) const
{
    return m_text.extent(text, font);
}

int SvgContext::textAscent(const Font& font) const
{
    return m_text.ascent(font);
}

void SvgContext::fillRectangle(const QRect& rectangle, ColorValue color)
{
    flush();
    begin();
    writeRectangle(rectangle.translated(m_origin), colorText(color));
}

void SvgContext::setClip(const QRect& rectangle)
{
    changeClip(rectangle);
}

void SvgContext::clearClip()
{
    changeClip(std::nullopt);
}

void SvgContext::setOrigin(QPoint origin)
{
    m_origin = origin;
}

/// Writes the collected lines first: they belong to the previous clip.
void SvgContext::changeClip(std::optional<QRect> clip)
{
    flush();
    m_clip = clip;
}

/// Opens the group of the current clip unless it is open.
void SvgContext::begin()
{
    if (m_groupClip == m_clip)
        return;
    if (m_groupClip)
        m_xml.writeEndElement();
    m_groupClip = m_clip;
    if (!m_clip)
        return;
    const QString path = pathOf(*m_clip);
    m_xml.writeStartElement(QStringLiteral("g"));
    m_xml.writeAttribute(QStringLiteral("clip-path"), QStringLiteral("url(#") + path + u')');
}

/// The name of a clip path. Writes the path on first use.
QString SvgContext::pathOf(const QRect& clip)
{
    const auto nameOf = [](qsizetype index) {
        return QStringLiteral("clip") + QString::number(index + 1);
    };
    if (const qsizetype known = m_paths.indexOf(clip); known >= 0)
        return nameOf(known);
    QString name = nameOf(m_paths.size());
    m_paths.append(clip);
    m_xml.writeStartElement(QStringLiteral("defs"));
    m_xml.writeStartElement(QStringLiteral("clipPath"));
    m_xml.writeAttribute(QStringLiteral("id"), name);
    writeRectangle(clip, {});
    m_xml.writeEndElement();
    m_xml.writeEndElement();
    return name;
}

void SvgContext::writeRectangle(const QRectF& rectangle, const QString& fill)
{
    m_xml.writeEmptyElement(QStringLiteral("rect"));
    m_xml.writeAttribute(QStringLiteral("x"), numberText(rectangle.x()));
    m_xml.writeAttribute(QStringLiteral("y"), numberText(rectangle.y()));
    m_xml.writeAttribute(QStringLiteral("width"), numberText(rectangle.width()));
    m_xml.writeAttribute(QStringLiteral("height"), numberText(rectangle.height()));
    if (!fill.isEmpty())
        m_xml.writeAttribute(QStringLiteral("fill"), fill);
}

void SvgContext::flush()
{
    if (!m_points.isEmpty())
        writeLines(0);
}

/// Writes the collected lines. The dash pattern starts `dashOffset` pixels after its beginning.
void SvgContext::writeLines(double dashOffset)
{
    begin();
    const bool isThin = m_pen.width <= 1; // caps of wider lines are round
    m_xml.writeEmptyElement(QStringLiteral("polyline"));
    m_xml.writeAttribute(QStringLiteral("fill"), QStringLiteral("none"));
    m_xml.writeAttribute(QStringLiteral("stroke"), colorText(m_pen.color));
    m_xml.writeAttribute(QStringLiteral("stroke-width"),
                         numberText(std::max<double>(m_pen.width, m_leastWidth)));
    m_xml.writeAttribute(QStringLiteral("stroke-linecap"),
                         isDashed(m_pen) ? QStringLiteral("butt")
                             : isThin    ? QStringLiteral("square")
                                         : QStringLiteral("round"));
    m_xml.writeAttribute(QStringLiteral("stroke-linejoin"),
                         isThin ? QStringLiteral("bevel") : QStringLiteral("round"));
    if (isDashed(m_pen))
        m_xml.writeAttribute(QStringLiteral("stroke-dasharray"), dashText(m_pen));
    if (dashOffset > 0)
        m_xml.writeAttribute(QStringLiteral("stroke-dashoffset"), numberText(dashOffset));
    m_xml.writeAttribute(QStringLiteral("points"), pointsText(m_points));
    m_points.clear();
}

} // namespace tarsil
