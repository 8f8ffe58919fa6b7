// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "trend/TrendPlot.h"

#include <QWidget>

namespace tarsil {

/// Shows the picture of a comparison in its own size.
class TrendView : public QWidget
{
    Q_OBJECT

public:
    explicit TrendView(QWidget* parent = nullptr);

    void setTrend(FlutterTrend trend);

    /// The picture as it is shown.
    const TrendPlot& picture() const { return m_plot; }

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    TrendPlot m_plot;
};

} // namespace tarsil
