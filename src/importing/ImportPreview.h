// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "plot/CurvePalette.h"
#include "vgfplot/EvmPlot.h"

#include <QWidget>

#include <memory>

namespace tarsil {

class EVM;
class EvmPlotView;

/// A read-only V-g-f plot of an evolution before its import, in the look of a new plot in the plot
/// window.
class ImportPreview : public QWidget
{
    Q_OBJECT

public:
    explicit ImportPreview(CurvePalette palette, QWidget* parent = nullptr);
    ~ImportPreview() override;

    /// Draws all modes. Null hides the plot.
    void showEvolution(std::unique_ptr<EVM> evolution);

private:
    CurvePalette m_palette;
    std::unique_ptr<EVM> m_evolution;
    EvmPlot m_plot; ///< refers to the evolution
    std::unique_ptr<EvmPlotView> m_view; ///< refers to the plot
};

} // namespace tarsil
