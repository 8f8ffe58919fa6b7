// SPDX-License-Identifier: Apache-2.0
#include "datacontrol/LegendPanel.h"

#include "ui_LegendPanel.h"

#include "base/user/RunTimeError.h"
#include "base/user/UserInterface.h"
#include "datacontrol/DataCommands.h"
#include "datacontrol/MarkerPanel.h"
#include "datacontrol/SeriesGridView.h"
#include "document/MdlData.h"
#include "document/PlotTitles.h"
#include "plot/Marker.h"
#include "plotwindow/NumberInput.h"
#include "vgfplot/EvmPlot.h"

#include <algorithm>
#include <cstdint>
#include <string>

namespace tarsil {

namespace {

double fontSizeIn(QLineEdit& input)
{
    const double points = NumberInput(input, DataCommands::module, "Font Size").number();
    if (!(points >= 1 && points <= 400))
        throw RunTimeError(ErrorNumber::InvalidProcedureCall, std::string(DataCommands::module),
                           "a font of " + input.text().toStdString()
                               + " points; it must be from 1 to 400");
    return points;
}

/// A note when curves with a legend text are marked by something else than the tag that the legend
/// names; empty otherwise.
std::string markerNote(const EvmPlot& plot)
{
    const SeriesList& curves = plot.SeriesCollection();
    const auto isMarkedOtherwise = [](const Series& series) {
        return !series.LegendText.isEmpty() && series.MarkerSpacing != 0
            && series.MarkerStyle != markerNumber(MarkerKind::None)
            && series.MarkerStyle != markerNumber(MarkerKind::Tag);
    };
    return std::any_of(curves.begin(), curves.end(), isMarkedOtherwise)
        ? "The legend names the tags of the curves, which their markers do not show: choose the "
          "marker \"Tag\""
        : "";
}

} // namespace

LegendPanel::LegendPanel(const DataCommands& commands, const MarkerPanel& markers,
                         const SeriesGridView& grid, QWidget* parent)
    : QGroupBox(parent), m_commands(commands), m_markers(markers), m_grid(grid),
      m_ui(std::make_unique<Ui::LegendPanel>())
{
    m_ui->setupUi(this);
    m_ui->txtLegIdx->home(false); // shows the start of the explanation
    connect(m_ui->btnFilltLeg, &QPushButton::clicked, this,
            commands.command([this] { btnFilltLeg_Click(); }));
    connect(m_ui->btnPlotLeg, &QPushButton::clicked, this,
            commands.command([this] { btnPlotLeg_Click(); }));
}

LegendPanel::~LegendPanel() = default;

/// Reports all entries that do not exist in one message.
void LegendPanel::btnFilltLeg_Click()
{
    if (m_commands.activePlot() == nullptr)
        return;
    const std::int32_t index =
        NumberInput(*m_ui->txtLegIdx, DataCommands::module).integer16Before(QStringLiteral(":="));
    bool areThere = true;
    m_commands.change(tr("Fill Legend"), [&](EvmPlot& plot) {
        areThere = mdlData::fillLegends(plot.rows(), m_grid.selectedRows(), index);
    });
    if (!areThere)
        m_commands.warn("There is not " + std::to_string(index) + "\u00AA legend entry");
}

void LegendPanel::btnPlotLeg_Click()
{
    if (m_commands.activePlot() == nullptr)
        return;
    const double points = fontSizeIn(*m_ui->txtLegFontSize);
    const MarkerOptions markers = m_markers.options();
    std::string missing;
    m_commands.change(tr("Plot Legend"), [&](EvmPlot& plot) {
        missing = mdlData::buildSeries(plot.rows(), markers);
        writeLegend(plot, points);
    });
    if (const std::string note = markerNote(*m_commands.activePlot()); !note.empty())
        m_commands.user().showNote(note);
    if (!missing.empty())
        m_commands.warn(missing);
}

} // namespace tarsil
