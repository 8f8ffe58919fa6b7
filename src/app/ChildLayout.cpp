// SPDX-License-Identifier: Apache-2.0
#include "app/ChildLayout.h"

#include <QEvent>
#include <QMdiArea>
#include <QScopedValueRollback>
#include <QStringList>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <optional>

namespace tarsil {

namespace {

constexpr double smallestPart = 0.05; ///< of the main window; less is a damaged text
constexpr QChar windowSeparator = u'|';

enum class FrameState { Hidden, Normal, Maximized };

struct FrameLayout
{
    QRectF share;
    FrameState state;
};

FrameState stateOf(const ChildFrame& frame)
{
    if (frame.isHidden())
        return FrameState::Hidden;
    return frame.isMaximized() ? FrameState::Maximized : FrameState::Normal;
}

QString layoutText(const FrameLayout& layout)
{
    QStringList fields;
    for (const double part :
         {layout.share.left(), layout.share.top(), layout.share.right(), layout.share.bottom()})
        fields.append(QString::number(part, 'f', 5));
    fields.append(QString::number(static_cast<int>(layout.state)));
    return fields.join(u' ');
}

bool isInSight(const QRectF& share)
{
    const QRectF seen = share & QRectF(0, 0, 1, 1);
    return seen.width() >= smallestPart && seen.height() >= smallestPart && share.top() >= 0;
}

/// Shares are rounded each time the main window is resized.
bool isNear(const QRect& a, const QRect& b)
{
    constexpr int most = 2;
    return std::abs(a.left() - b.left()) <= most && std::abs(a.top() - b.top()) <= most
        && std::abs(a.right() - b.right()) <= most && std::abs(a.bottom() - b.bottom()) <= most;
}

std::optional<FrameLayout> parseLayout(const QString& text)
{
    constexpr qsizetype fieldCount = 5;
    const QStringList fields = text.split(u' ');
    if (fields.size() != fieldCount)
        return std::nullopt;
    std::array<double, fieldCount> numbers {};
    for (qsizetype i = 0; i < fieldCount; ++i) {
        bool isNumber = false;
        numbers.at(static_cast<std::size_t>(i)) = fields[i].toDouble(&isNumber);
        if (!isNumber || !std::isfinite(numbers.at(static_cast<std::size_t>(i))))
            return std::nullopt;
    }
    const auto& [left, top, right, bottom, state] = numbers;
    const FrameLayout layout {QRectF(QPointF(left, top), QPointF(right, bottom)),
                              state == 0       ? FrameState::Hidden
                                  : state == 2 ? FrameState::Maximized
                                               : FrameState::Normal};
    return isInSight(layout.share) ? std::optional(layout) : std::nullopt;
}

void applyState(ChildFrame& frame, FrameState state)
{
    if (state == FrameState::Hidden)
        frame.hide();
    else if (state == FrameState::Maximized)
        frame.showMaximized();
}

} // namespace

ChildLayout::ChildLayout(QMdiArea& area, const ChildFrames& frames)
    : m_area(area), m_frames {frames.explorer, frames.data, frames.plot}
{
    m_area.viewport()->installEventFilter(this);
    for (ChildFrame* frame : m_frames)
        frame->installEventFilter(this);
}

void ChildLayout::setDefault()
{
    arrangeByDefault({m_frames[0], m_frames[1], m_frames[2]}, innerSize());
    for (std::size_t i = 0; i < m_frames.size(); ++i)
        followFrame(i);
}

QString ChildLayout::text() const
{
    const std::array<QRect, frameCount> byDefault = defaultGeometry(innerSize());
    bool isDefault = true;
    QStringList windows;
    for (std::size_t i = 0; i < m_frames.size(); ++i) {
        const FrameState state = stateOf(*m_frames[i]);
        isDefault = isDefault && state == FrameState::Normal
            && isNear(geometryOf(m_shares[i]), byDefault[i]);
        windows.append(layoutText({m_shares[i], state}));
    }
    return isDefault ? QString() : windows.join(windowSeparator);
}

void ChildLayout::restore(const QString& text)
{
    std::vector<FrameLayout> layouts;
    for (const QString& window : text.split(windowSeparator)) {
        if (const auto layout = parseLayout(window))
            layouts.push_back(*layout);
    }
    if (layouts.size() != m_frames.size() || text.count(windowSeparator) + 1 != frameCount)
        return;
    for (std::size_t i = 0; i < m_frames.size(); ++i) {
        m_shares[i] = layouts[i].share;
        m_frames[i]->setGeometry(geometryOf(m_shares[i]));
        applyState(*m_frames[i], layouts[i].state);
        m_shares[i] = layouts[i].share; // not that of the maximized window
    }
}

bool ChildLayout::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::Resize && event->type() != QEvent::Move)
        return false;
    if (watched == m_area.viewport()) {
        followArea();
    } else if (!m_isArranging) {
        const auto frame = std::find(m_frames.begin(), m_frames.end(), watched);
        if (frame != m_frames.end())
            followFrame(static_cast<std::size_t>(frame - m_frames.begin()));
    }
    return false;
}

void ChildLayout::followArea()
{
    const QScopedValueRollback arranging(m_isArranging, true);
    for (std::size_t i = 0; i < m_frames.size(); ++i) {
        ChildFrame& frame = *m_frames[i];
        if (!m_shares[i].isEmpty() && !frame.isMaximized() && !frame.isMinimized())
            frame.setGeometry(geometryOf(m_shares[i]));
    }
}

void ChildLayout::followFrame(std::size_t index)
{
    const ChildFrame& frame = *m_frames.at(index);
    const QSize inner = innerSize();
    if (frame.isMaximized() || frame.isMinimized() || inner.isEmpty())
        return;
    const QRect geometry = frame.geometry();
    const auto width = static_cast<double>(inner.width());
    const auto height = static_cast<double>(inner.height());
    m_shares.at(index) = QRectF(geometry.x() / width, geometry.y() / height,
                                geometry.width() / width, geometry.height() / height);
}

/// Edges, not sizes, are rounded, so that windows that touch still do.
QRect ChildLayout::geometryOf(const QRectF& share) const
{
    const QSize inner = innerSize();
    const int left = qRound(share.left() * inner.width());
    const int top = qRound(share.top() * inner.height());
    const int right = qRound(share.right() * inner.width());
    const int bottom = qRound(share.bottom() * inner.height());
    return {left, top, right - left, bottom - top};
}

QSize ChildLayout::innerSize() const
{
    return m_area.viewport()->size();
}

} // namespace tarsil
