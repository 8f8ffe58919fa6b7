#pragma once

#include "model/Session.h"
#include "runtime/RunTimeError.h"
#include "vgf/EvmPlot.h"

#include <QMainWindow>

namespace tarsil {

class EvmPlotView;

/// A plain window with one V-g-f plot of the files it is given.
class PlotWindow : public QMainWindow
{
    Q_OBJECT

public:
    PlotWindow();
    ~PlotWindow() override;

    /// Reads the files, draws every mode of each on axes that fit them, and heads the plot with
    /// what all files say alike. A file that cannot be read is reported in a box when the window is
    /// shown; the others are drawn.
    void open(const QStringList& files);

    EvmPlot& plot() { return m_plot; }

private:
    EVM& openEvolution(const std::string& path);
    void addModes(EVM& evolution);
    void fillTexts();
    void drawPlot();
    void report(const RunTimeError& error);

    Session m_session;
    EvmPlot m_plot;
    EvmPlotView* m_view;
};

} // namespace tarsil
