// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QStatusBar>

class QLabel;
class QProgressBar;
class QToolButton;

namespace tarsil {

/// The status bar `stBar` with three panels: the status text, "AutoPlot" and "Edit Mode". The last
/// two look enabled when they are on. A click on "Edit Mode" is signalled; clicks on the others do
/// nothing. Beside the status text are two notes: the result of the last command, and what the user
/// must know about the visible plot. A long note is shortened in the middle and complete in its
/// tool tip. Long operations have a progress bar and a button that stops them.
class StatusPanels : public QStatusBar
{
    Q_OBJECT

public:
    explicit StatusPanels(QWidget* parent = nullptr);

    void setText(const QString& text);
    QString text() const;

    // An empty text hides a note.

    void setNote(const QString& text);
    void setPlotNote(const QString& text);

    void setAutoPlot(bool on);
    void setEditMode(bool on);

    /// Shows a progress bar and the button "Stop"; hides them when `done` equals `total`.
    void setProgress(std::size_t done, std::size_t total);

    const QToolButton& stopButton() const { return *m_stop; }

Q_SIGNALS:
    /// A panel was clicked; panels are counted from 1.
    void panelClicked(int panel);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QLabel* m_text;
    QLabel* m_note;
    QLabel* m_plotNote;
    QProgressBar* m_progress;
    QToolButton* m_stop;
    QToolButton* m_autoPlot;
    QToolButton* m_editMode;
};

} // namespace tarsil
