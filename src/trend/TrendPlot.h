// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "analysis/FlutterTrend.h"
#include "trend/TrendScales.h"
#include "vgfplot/DrawnPicture.h"

namespace tarsil {

/// The picture of a comparison: speeds above, frequencies below, over one abscissa, with a legend
/// at the right. Levels differ in colour, groups in the style of their lines, kinds in the symbol.
/// Beside a start are its mode and its confidence. Limits (unstable from the first speed, none up
/// to the last speed) have open symbols that no line joins, side by side for the levels.
///
///     title
///     |      .--o  2A               levels
///     |   o--                       groups
///     |___________                  symbols
///     |      .--o
///     |   o--
///     |___________
///       0.4  0.5
///     note about what is not drawn
class TrendPlot : public DrawnPicture
{
public:
    /// The evolutions that the trend refers to must outlive the plot.
    explicit TrendPlot(FlutterTrend trend, QSize size = {1000, 750});

    void setTrend(FlutterTrend trend);
    void resize(QSize size) { m_size = size; }

    QString title() const override;
    QSize size() const override { return m_size; }
    void Draw(DeviceContext& context) const override;

private:
    FlutterTrend m_trend;
    TrendScales m_scales;
    QSize m_size;
};

} // namespace tarsil
