// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QDialog>

class QLabel;
class QLineEdit;
class QTextBrowser;

namespace tarsil {

/// The window "Guide": the user's guide, with its pictures as wide as the window at most, and a
/// field that finds text in it. Links to other documents open in the system's program for them.
class wndGuide : public QDialog
{
    Q_OBJECT

public:
    /// `path` is the guide in Markdown; its pictures are relative to it.
    explicit wndGuide(const QString& path, QWidget* parent = nullptr);

private:
    void findNext();

    QTextBrowser* m_browser;
    QLineEdit* m_find;
    QLabel* m_message;
};

} // namespace tarsil
