// SPDX-License-Identifier: Apache-2.0
#include "app/ChildFrame.h"

#include <QCloseEvent>
#include <QMdiArea>

#include <algorithm>

namespace tarsil {

namespace {

/// The start of part `index` of `count` equal parts of a length. Rounding loses no pixel.
int cut(int length, std::size_t index, std::size_t count)
{
    return static_cast<int>(static_cast<std::size_t>(length) * index / count);
}

std::vector<ChildFrame*> shownOf(const std::vector<ChildFrame*>& frames)
{
    std::vector<ChildFrame*> shown;
    std::copy_if(frames.begin(), frames.end(), std::back_inserter(shown),
                 [](const ChildFrame* frame) { return frame->isVisible(); });
    for (ChildFrame* frame : shown)
        frame->showNormal();
    return shown;
}

} // namespace

/// Parent and area come first: a frame that gets them later is laid out again each time.
ChildFrame::ChildFrame(QWidget* content, QMdiArea& area) : QMdiSubWindow(area.viewport())
{
    area.addSubWindow(this);
    setWidget(content);
    setObjectName(content->objectName() + QStringLiteral("Frame"));
    followTitle();
    connect(content, &QWidget::windowTitleChanged, this, &ChildFrame::followTitle);
    setAttribute(Qt::WA_DeleteOnClose, false);
    setMinimumSize(1, 1);
}

void ChildFrame::followTitle()
{
    setWindowTitle(widget()->windowTitle());
    setAccessibleName(widget()->accessibleName());
}

void ChildFrame::bringBack()
{
    widget()->show();
    if (isMinimized())
        showNormal();
    show();
    raise();
    setFocus();
    widget()->setFocus();
}

void ChildFrame::closeEvent(QCloseEvent* event)
{
    event->ignore();
    hide();
}

std::array<QRect, 3> defaultGeometry(QSize inner)
{
    const int half = inner.width() / 2;
    const int top = inner.height() / 4;
    return {QRect(0, 0, half, top), QRect(0, top, half, inner.height() - top),
            QRect(half, 0, inner.width() - half, inner.height())};
}

void arrangeByDefault(const ChildFrames& frames, QSize inner)
{
    auto [explorer, data, plot] = defaultGeometry(inner);
    for (ChildFrame* frame : {frames.explorer, frames.data, frames.plot}) {
        frame->widget()->show();
        frame->showNormal();
    }
    frames.explorer->setGeometry(explorer);
    frames.plot->setGeometry(plot);
    data.setTop(frames.explorer->height()); // which may have a least height
    frames.data->setGeometry(data);
}

void tileHorizontally(const std::vector<ChildFrame*>& frames, QSize inner)
{
    const std::vector<ChildFrame*> shown = shownOf(frames);
    for (std::size_t i = 0; i < shown.size(); ++i) {
        const int top = cut(inner.height(), i, shown.size());
        const int bottom = cut(inner.height(), i + 1, shown.size());
        shown[i]->setGeometry(0, top, inner.width(), bottom - top);
    }
}

void tileVertically(const std::vector<ChildFrame*>& frames, QSize inner)
{
    const std::vector<ChildFrame*> shown = shownOf(frames);
    for (std::size_t i = 0; i < shown.size(); ++i) {
        const int left = cut(inner.width(), i, shown.size());
        const int right = cut(inner.width(), i + 1, shown.size());
        shown[i]->setGeometry(left, 0, right - left, inner.height());
    }
}

} // namespace tarsil
