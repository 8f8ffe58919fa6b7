#pragma once

#include <QMdiSubWindow>

#include <vector>

class QMdiArea;

namespace tarsil {

/// The frame of a child window in the main window. Closing it hides it, with what it holds, until
/// the View menu shows it again. It takes any size, so that layouts are exact.
class ChildFrame : public QMdiSubWindow
{
    Q_OBJECT

public:
    /// Takes the content over.
    explicit ChildFrame(QWidget* content);

    /// Shows the window, in front of the others and with the focus.
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

/// The explorer in the upper quarter of the left half, the data window below it, the plot window in
/// the right half. All are shown.
void arrangeByDefault(const ChildFrames& frames, QSize inner);

/// Shown windows as strips over the whole width, one below the other.
void tileHorizontally(const std::vector<ChildFrame*>& frames, QSize inner);

/// Shown windows as columns over the whole height, side by side.
void tileVertically(const std::vector<ChildFrame*>& frames, QSize inner);

} // namespace tarsil
