#pragma once

#include "vgfplot/EvmPlot.h"

#include <QWidget>

#include <memory>

namespace tarsil {

class EVM;
class EvmPlotView;

/// Shows the V-g-f plot of an evolution that is not imported yet, as the plot window would draw it
/// at first. It is only looked at: mouse and keyboard do nothing.
class ImportPreview : public QWidget
{
    Q_OBJECT

public:
    explicit ImportPreview(QWidget* parent = nullptr);
    ~ImportPreview() override;

    /// Draws every mode. Null shows nothing.
    void showEvolution(std::unique_ptr<EVM> evolution);

private:
    std::unique_ptr<EVM> m_evolution;
    EvmPlot m_plot; ///< refers to the evolution
    std::unique_ptr<EvmPlotView> m_view; ///< refers to the plot
};

} // namespace tarsil
