// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "document/EvolutionFilter.h"

#include <QLineEdit>

namespace tarsil {

/// The line above a list of evolutions in which the user types a filter. Escape empties it.
class FilterLine : public QLineEdit
{
    Q_OBJECT

public:
    explicit FilterLine(QWidget* parent = nullptr);

    const EvolutionFilter& filter() const { return m_filter; }

Q_SIGNALS:
    void filterChanged();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    EvolutionFilter m_filter;
};

} // namespace tarsil
