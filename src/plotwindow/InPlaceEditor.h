// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QFrame>

namespace tarsil {

/// A frame with fields over a plot, which edits a part of it in place. It is open until the focus
/// leaves it or a key ends it; its owner then closes it.
class InPlaceEditor : public QFrame
{
    Q_OBJECT

public:
    explicit InPlaceEditor(QWidget* parent);
    ~InPlaceEditor() override;

Q_SIGNALS:
    /// The focus has moved out of the editor: what was typed is to be kept.
    void left();

    /// Ctrl+Return was pressed: what was typed is to be kept.
    void committed();

    /// Escape was pressed: nothing is to be changed.
    void cancelled();

protected:
    /// Makes Escape and Ctrl+Return in a field end the editor.
    void watch(QWidget& field);

    bool eventFilter(QObject* watched, QEvent* event) override;

    /// Whether a widget is part of the editor, or belongs to a dialog or list that it has opened.
    bool contains(const QWidget* widget) const;

private:
    void followFocus(QWidget* now);
};

} // namespace tarsil
