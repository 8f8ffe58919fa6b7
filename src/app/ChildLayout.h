// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "app/ChildFrame.h"

#include <QObject>
#include <QRectF>

#include <array>
#include <vector>

class QMdiArea;
class QString;

namespace tarsil {

/// Keeps the share of each child window in the main window: when the main window is resized, the
/// child windows grow and shrink with it. Child windows that are maximized or minimized are left
/// alone.
class ChildLayout : public QObject
{
    Q_OBJECT

public:
    /// Both must outlive this object.
    ChildLayout(QMdiArea& area, const ChildFrames& frames);

    /// Arranges all child windows in the default layout.
    void setDefault();

    /// The layout for the settings: for each window left, top, right and bottom as parts of the
    /// main window, and whether it is hidden, normal, or maximized; empty for the default layout.
    QString text() const;

    /// Applies a text of `text`. A text that is damaged, or would put a window out of sight,
    /// changes nothing.
    void restore(const QString& text);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    static constexpr std::size_t frameCount = 3;

    void followArea();
    void followFrame(std::size_t index);
    QRect geometryOf(const QRectF& share) const;
    QSize innerSize() const;

    QMdiArea& m_area;
    std::array<ChildFrame*, frameCount> m_frames;
    std::array<QRectF, frameCount> m_shares; ///< parts of the area; empty before the first layout
    bool m_isArranging = false;
};

} // namespace tarsil
