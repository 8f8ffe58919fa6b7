#pragma once

#include <QStatusBar>

class QLabel;
class QProgressBar;
class QToolButton;

namespace tarsil {

/// The status bar `stBar` with its three panels: the status text, "AutoPlot", and "Edit Mode". The
/// last two are shown enabled when they are on. A click on "Edit Mode" is announced; on the others
/// it does nothing. Beside the status text there is room for two notes, which are shortened in the
/// middle where they are too long, and whole in their tool tips: what the last command left to say,
/// and what the user has to know about the plot that is shown.
class StatusPanels : public QStatusBar
{
    Q_OBJECT

public:
    explicit StatusPanels(QWidget* parent = nullptr);

    void setText(const QString& text);
    QString text() const;

    // An empty text ends a note.

    void setNote(const QString& text);
    void setPlotNote(const QString& text);

    void setAutoPlot(bool on);
    void setEditMode(bool on);

    /// A bar that fills while `done` goes up to `total`, and is gone then.
    void setProgress(std::size_t done, std::size_t total);

Q_SIGNALS:
    /// A panel was clicked; they are counted from 1.
    void panelClicked(int panel);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QLabel* m_text;
    QLabel* m_note;
    QLabel* m_plotNote;
    QProgressBar* m_progress;
    QToolButton* m_autoPlot;
    QToolButton* m_editMode;
};

} // namespace tarsil
