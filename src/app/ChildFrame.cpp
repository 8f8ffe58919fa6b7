#include "app/ChildFrame.h"

#include <QCloseEvent>

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

ChildFrame::ChildFrame(QWidget* content)
{
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

void arrangeByDefault(const ChildFrames& frames, QSize inner)
{
    for (ChildFrame* frame : {frames.explorer, frames.data, frames.plot}) {
        frame->widget()->show();
        frame->showNormal();
    }
    const int half = inner.width() / 2;
    frames.explorer->setGeometry(0, 0, half, inner.height() / 4);
    frames.plot->setGeometry(half, 0, inner.width() - half, inner.height());
    const int top = frames.explorer->height();
    frames.data->setGeometry(0, top, half, inner.height() - top);
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
