// SPDX-License-Identifier: Apache-2.0
#include "emf/MetafileSurface.h"

#include <QPainter>

#include <algorithm>
#include <map>
#include <optional>
#include <vector>

namespace tarsil::test {

namespace {

QColor colorOf(std::uint32_t value)
{
    return QColor::fromRgb(value & 0xFF, value >> 8 & 0xFF, value >> 16 & 0xFF);
}

/// Pixels on and off of the platform's pens.
QList<qreal> dashesOf(std::uint32_t style)
{
    static const std::map<std::uint32_t, QList<qreal>> patterns = {
        {1, {18, 6}}, {2, {3, 3}}, {3, {9, 6, 3, 6}}, {4, {9, 3, 3, 3, 3, 3}}};
    const auto found = patterns.find(style);
    return found == patterns.end() ? QList<qreal>() : found->second;
}

QPen penOf(const EmfItem& item)
{
    QPen pen(colorOf(item.word(24)), std::max(item.integer(16), 1));
    const QList<qreal> dashes = dashesOf(item.word(12));
    if (!dashes.isEmpty()) {
        pen.setDashPattern(dashes);
        pen.setCapStyle(Qt::FlatCap);
    }
    return pen;
}

QFont fontOf(const EmfItem& item)
{
    constexpr int bold = 700;
    QFont font(item.face());
    font.setPixelSize(-item.integer(12));
    font.setBold(item.integer(28) >= bold);
    font.setItalic(item.byte(32) != 0);
    font.setUnderline(item.byte(33) != 0);
    font.setStrikeOut(item.byte(34) != 0);
    font.setHintingPreference(QFont::PreferFullHinting);
    return font;
}

/// Plays the records with a painter.
class MetafilePlayer
{
public:
    explicit MetafilePlayer(QPainter& painter) : m_painter(painter)
    {
        m_painter.setRenderHint(QPainter::TextAntialiasing);
    }

    void play(const EmfItem& item)
    {
        if (changeState(item) || changeObjects(item))
            return;
        if (m_state.clip)
            m_painter.setClipRect(*m_state.clip);
        else
            m_painter.setClipping(false);
        draw(item);
    }

private:
    struct State
    {
        QPen pen {Qt::black};
        QFont font;
        QColor brush = Qt::white;
        QColor textColor = Qt::black;
        std::optional<QRect> clip;
        QPoint position;
        std::uint32_t alignment = 0;
        bool isOpaque = true;
    };

    bool changeState(const EmfItem& item)
    {
        switch (item.type()) {
        case emf::saveDc:
            m_saved.push_back(m_state);
            return true;
        case emf::restoreDc:
            m_state = m_saved.back();
            m_saved.pop_back();
            return true;
        case emf::setBkMode:
            m_state.isOpaque = item.word(8) != 1;
            return true;
        case emf::setTextAlign:
            m_state.alignment = item.word(8);
            return true;
        case emf::setTextColor:
            m_state.textColor = colorOf(item.word(8));
            return true;
        case emf::moveToEx:
            m_state.position = item.point(8);
            return true;
        case emf::extSelectClipRgn:
            m_state.clip = item.rectangle(48).adjusted(0, 0, -1, -1);
            return true;
        case emf::intersectClipRect:
            intersectClip(item.rectangle(8).adjusted(0, 0, -1, -1));
            return true;
        default:
            return false;
        }
    }

    bool changeObjects(const EmfItem& item)
    {
        switch (item.type()) {
        case emf::createPen:
        case emf::createBrushIndirect:
        case emf::extCreateFontIndirectW:
            m_objects.insert_or_assign(item.word(8), item);
            return true;
        case emf::selectObject:
            select(item.word(8));
            return true;
        case emf::deleteObject:
            m_objects.erase(item.word(8));
            return true;
        default:
            return false;
        }
    }

    void intersectClip(const QRect& rectangle)
    {
        m_state.clip = m_state.clip ? *m_state.clip & rectangle : rectangle;
    }

    void select(std::uint32_t index)
    {
        constexpr std::uint32_t nullPen = emf::stockBit | 8;
        if (index == nullPen)
            m_state.pen = QPen(Qt::NoPen);
        if (index >= emf::stockBit)
            return;
        const EmfItem& object = m_objects.at(index);
        if (object.type() == emf::createPen)
            m_state.pen = penOf(object);
        else if (object.type() == emf::createBrushIndirect)
            m_state.brush = colorOf(object.word(16));
        else
            m_state.font = fontOf(object);
    }

    void draw(const EmfItem& item)
    {
        switch (item.type()) {
        case emf::lineTo:
            drawLine(m_state.position, item.point(8));
            m_state.position = item.point(8);
            break;
        case emf::polyline:
        case emf::polyline16:
            drawPolyline(item.points());
            break;
        case emf::bitBlt:
            m_painter.fillRect(QRect(item.point(24), QSize(item.integer(32), item.integer(36))),
                               m_state.brush);
            break;
        case emf::extTextOutW:
            drawText(item);
            break;
        default:
            break;
        }
    }

    /// On an opaque background the gaps of a dashed line are white.
    void drawLine(QPoint from, QPoint to)
    {
        if (m_state.isOpaque && m_state.pen.style() == Qt::CustomDashLine) {
            m_painter.setPen(Qt::white);
            m_painter.drawLine(from, to);
        }
        m_painter.setPen(m_state.pen);
        m_painter.drawLine(from, to);
    }

    void drawPolyline(const std::vector<QPoint>& points)
    {
        m_painter.setPen(m_state.pen);
        m_painter.drawPolyline(points.data(), static_cast<int>(points.size()));
    }

    /// The start of the text on its baseline.
    QPoint beginOfText(QPoint reference, int width, const QFontMetrics& metrics) const
    {
        constexpr std::uint32_t right = 2;
        constexpr std::uint32_t center = 6;
        constexpr std::uint32_t bottom = 8;
        constexpr std::uint32_t baseline = 24;
        QPoint begin = reference;
        if ((m_state.alignment & center) == center)
            begin.rx() -= width / 2;
        else if ((m_state.alignment & right) != 0)
            begin.rx() -= width;
        if ((m_state.alignment & baseline) == bottom)
            begin.ry() -= metrics.descent();
        else if ((m_state.alignment & baseline) != baseline)
            begin.ry() += metrics.ascent();
        return begin;
    }

    void drawText(const EmfItem& item)
    {
        const QString text = item.shownText();
        const std::vector<int> advances = item.advances();
        int width = 0;
        for (const int advance : advances)
            width += advance;
        const QFontMetrics metrics(m_state.font);
        QPoint position = beginOfText(item.point(36), width, metrics);
        if (m_state.isOpaque)
            m_painter.fillRect(QRect(position - QPoint(0, metrics.ascent()),
                                     QSize(width, metrics.ascent() + metrics.descent())),
                               Qt::white);
        m_painter.setFont(m_state.font);
        m_painter.setPen(m_state.textColor);
        for (qsizetype i = 0; i < text.size(); ++i) {
            const qsizetype units = text[i].isHighSurrogate() ? 2 : 1;
            if (!text[i].isLowSurrogate())
                m_painter.drawText(position, text.mid(i, units));
            position.rx() += advances[static_cast<std::size_t>(i)];
        }
    }

    QPainter& m_painter;
    State m_state;
    std::vector<State> m_saved;
    std::map<std::uint32_t, EmfItem> m_objects;
};

} // namespace

QImage playMetafile(const EmfContents& contents, QSize size)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    MetafilePlayer player(painter);
    for (const EmfItem& item : contents.records)
        player.play(item);
    return image;
}

QImage MetafileSurface::image()
{
    m_context.close();
    return playMetafile(readMetafile(m_memory.bytes()), {400, 300});
}

QRect inkOf(const QImage& image)
{
    QRect bounds;
    for (int row = 0; row < image.height(); ++row) {
        for (int column = 0; column < image.width(); ++column) {
            if (image.pixelColor(column, row) != Qt::white)
                bounds |= QRect(column, row, 1, 1);
        }
    }
    return bounds;
}

} // namespace tarsil::test
