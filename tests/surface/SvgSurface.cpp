// SPDX-License-Identifier: Apache-2.0
#include "surface/SvgSurface.h"

#include "emf/MetafileSurface.h"

#include <QHash>
#include <QPainter>
#include <QXmlStreamReader>

#include <stdexcept>

namespace tarsil::test {

namespace {

/// Plays an SVG element by element.
class SvgPlayer
{
public:
    explicit SvgPlayer(const QByteArray& svg) : m_xml(svg) { }

    QImage play()
    {
        while (!m_xml.atEnd()) {
            const auto token = m_xml.readNext();
            if (token == QXmlStreamReader::StartElement)
                begin(m_xml.name().toString(), m_xml.attributes());
            else if (token == QXmlStreamReader::EndElement)
                end(m_xml.name().toString());
        }
        if (m_xml.hasError())
            throw std::runtime_error(m_xml.errorString().toStdString());
        m_painter.end();
        return m_image;
    }

private:
    using Attributes = QXmlStreamAttributes;

    static QString textOf(const Attributes& attributes, const char* name)
    {
        return attributes.value(QLatin1String(name)).toString();
    }

    static int number(const Attributes& attributes, const char* name)
    {
        return textOf(attributes, name).toInt();
    }

    static QRectF rectangleOf(const Attributes& attributes)
    {
        const auto length = [&attributes](const char* name) {
            return textOf(attributes, name).toDouble();
        };
        return {length("x"), length("y"), length("width"), length("height")};
    }

    void begin(const QString& name, const Attributes& attributes)
    {
        if (name == u"svg")
            beginPicture(attributes);
        else if (name == u"clipPath")
            m_path = textOf(attributes, "id");
        else if (name == u"rect")
            playRectangle(attributes);
        else if (name == u"g")
            clip(textOf(attributes, "clip-path"));
        else if (name == u"polyline")
            playLines(attributes);
        else if (name == u"text")
            playText(attributes);
        else if (name != u"title" && name != u"defs")
            throw std::runtime_error("element " + name.toStdString());
    }

    void end(const QString& name)
    {
        if (name == u"clipPath")
            m_path.clear();
        else if (name == u"g")
            m_painter.setClipping(false);
    }

    void beginPicture(const Attributes& attributes)
    {
        const auto box = textOf(attributes, "viewBox").split(u' ');
        m_image = QImage(box.at(2).toInt(), box.at(3).toInt(), QImage::Format_RGB32);
        m_image.fill(Qt::white);
        m_painter.begin(&m_image);
        m_painter.setRenderHint(QPainter::Antialiasing);
    }

    void playRectangle(const Attributes& attributes)
    {
        if (m_path.isEmpty())
            m_painter.fillRect(rectangleOf(attributes), QColor(textOf(attributes, "fill")));
        else
            m_paths[QStringLiteral("url(#") + m_path + u')'] = rectangleOf(attributes);
    }

    void clip(const QString& path)
    {
        if (!m_paths.contains(path))
            throw std::runtime_error("clip path " + path.toStdString());
        m_painter.setClipRect(m_paths.value(path));
    }

    void playLines(const Attributes& attributes)
    {
        const bool isRound = textOf(attributes, "stroke-linecap") == u"round";
        const bool isFlat = textOf(attributes, "stroke-linecap") == u"butt";
        const int width = number(attributes, "stroke-width");
        QPen pen(QColor(textOf(attributes, "stroke")), width, Qt::SolidLine,
                 isRound      ? Qt::RoundCap
                     : isFlat ? Qt::FlatCap
                              : Qt::SquareCap,
                 isRound ? Qt::RoundJoin : Qt::BevelJoin);
        QList<qreal> dashes;
        const QString lengths = textOf(attributes, "stroke-dasharray");
        for (const QString& length : lengths.split(u',', Qt::SkipEmptyParts))
            dashes.append(length.toDouble() / width);
        if (!dashes.isEmpty())
            pen.setDashPattern(dashes);
        pen.setDashOffset(textOf(attributes, "stroke-dashoffset").toDouble() / width);
        QPolygonF points;
        for (const QString& point : textOf(attributes, "points").split(u' '))
            points.append(QPointF(point.section(u',', 0, 0).toDouble(),
                                  point.section(u',', 1, 1).toDouble()));
        m_painter.setPen(pen);
        m_painter.drawPolyline(points);
    }

    void playText(const Attributes& attributes)
    {
        Font font;
        font.family = textOf(attributes, "font-family");
        font.points = number(attributes, "font-size") * 0.75;
        font.bold = textOf(attributes, "font-weight") == u"700";
        font.italic = textOf(attributes, "font-style") == u"italic";
        m_painter.setFont(screenFont(font));
        m_painter.setPen(QColor(textOf(attributes, "fill")));
        m_painter.drawText(QPoint(number(attributes, "x"), number(attributes, "y")),
                           m_xml.readElementText());
    }

    QXmlStreamReader m_xml;
    QImage m_image;
    QPainter m_painter;
    QString m_path; ///< the clip path being read
    QHash<QString, QRectF> m_paths;
};

} // namespace

QImage playSvg(const QByteArray& svg)
{
    return SvgPlayer(svg).play();
}

SvgSurface::SvgSurface()
{
    begin();
}

void SvgSurface::begin()
{
    m_buffer.close();
    m_buffer.setData({});
    m_buffer.open(QIODevice::WriteOnly);
    m_context.emplace(m_buffer, QSize(400, 300), QStringLiteral("a test"));
}

QByteArray SvgSurface::bytes()
{
    m_context.reset();
    QByteArray svg = m_buffer.data();
    begin();
    return svg;
}

QRect SvgSurface::ink()
{
    return inkOf(image());
}

} // namespace tarsil::test
