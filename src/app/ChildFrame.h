// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QMdiSubWindow>

#include <array>
#include <vector>

class QMdiArea;

namespace tarsil {

/// The frame of a child window in the main window. Closing it only hides it, until the View menu
/// shows it again. Any size is allowed, so that layouts are exact.
class ChildFrame : public QMdiSubWindow
{
    Q_OBJECT

public:
    /// Adds the frame to the area and takes ownership of the content.
    ChildFrame(QWidget* content, QMdiArea& area);

    /// Shows the window in front of the others, with the focus.
    void bringBack();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void followTitle();
};

/// The three child windows.
struct ChildFrames
{
    ChildFrame* explorer;
    ChildFrame* data;
    ChildFrame* plot;
};

/// The default layout of explorer, data window and plot window: the explorer in the upper quarter
/// of the left half, the data window below it, the plot window in the right half.
std::array<QRect, 3> defaultGeometry(QSize inner);

/// Arranges and shows all in the default layout.
void arrangeByDefault(const ChildFrames& frames, QSize inner);

/// Tiles the visible windows as rows of full width.
void tileHorizontally(const std::vector<ChildFrame*>& frames, QSize inner);

/// Tiles the visible windows as columns of full height.
void tileVertically(const std::vector<ChildFrame*>& frames, QSize inner);

} // namespace tarsil
