// SPDX-License-Identifier: Apache-2.0
#include "plotwindow/FilterLine.h"

#include <QKeyEvent>

namespace tarsil {

FilterLine::FilterLine(QWidget* parent) : QLineEdit(parent)
{
    setAccessibleName(tr("Filter"));
    setPlaceholderText(tr("Filter: part of a name, mach:0.4..0.6, mass:clean, warnings"));
    setToolTip(tr("Show only what fits all words: part of a name, mach:0.4, mach:0.4..0.6, "
                  "mass:clean, warnings (Escape shows all)"));
    setClearButtonEnabled(true);
    connect(this, &QLineEdit::textChanged, this, [this](const QString& text) {
        m_filter = EvolutionFilter(text);
        Q_EMIT filterChanged();
    });
}

void FilterLine::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape && !text().isEmpty())
        clear();
    else
        QLineEdit::keyPressEvent(event);
}

} // namespace tarsil
