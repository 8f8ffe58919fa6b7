// SPDX-License-Identifier: Apache-2.0
#include "importing/ImportPreview.h"

#include "model/EVM.h"
#include "model/PlotAxes.h"
#include "plotwindow/EvmPlotView.h"
#include "vgfplot/EvolutionPlotter.h"

#include <QVBoxLayout>

#include <utility>

namespace tarsil {

ImportPreview::ImportPreview(CurvePalette palette, QWidget* parent)
    : QWidget(parent), m_palette(palette), m_view(std::make_unique<EvmPlotView>(m_plot))
{
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_view.get());
    m_view->setFocusPolicy(Qt::NoFocus);
    m_view->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_plot.texts().setText(TextBox::Legend, QStringLiteral(" ")); // an empty one asks for a legend
    m_view->hide();
}

ImportPreview::~ImportPreview() = default;

void ImportPreview::showEvolution(std::unique_ptr<EVM> evolution)
{
    m_plot.rows().clear();
    m_plot.setAxes(PlotAxes());
    m_plot.texts().setText(TextBox::Header, QString());
    m_plot.texts().setText(TextBox::Mechanism, QString());
    m_evolution = std::move(evolution);
    m_view->setVisible(m_evolution != nullptr);
    if (m_evolution)
        plotCurves(m_plot, {allCurvesOf(*m_evolution)}, {}, m_palette);
}

} // namespace tarsil
