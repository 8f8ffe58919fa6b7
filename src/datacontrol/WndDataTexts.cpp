// The plot's axes, texts, reference speeds and picture in the Data Control window.

#include "datacontrol/WndData.h"

#include "ui_WndData.h"

#include "aircraft/AirplaneInfo.h"
#include "base/files/PathNames.h"
#include "base/user/RunTimeError.h"
#include "base/user/UserInterface.h"
#include "document/Document.h"
#include "document/MdlData.h"
#include "document/PlotTitles.h"
#include "model/EVM.h"
#include "plotwindow/NumberInput.h"
#include "vgfplot/EvmPlot.h"

namespace tarsil {

namespace {

constexpr std::string_view windowName = "wndData";
constexpr std::string_view pictureFilter =
    "Enhanced Windows Metafile (*.emf)|*.emf|All Files (*.*)|*.*|";

/// The number in the input of the legend index, without the explanation after ":=".
std::int16_t legendIndexIn(QLineEdit& input)
{
    return NumberInput(input, windowName).integer16Before(QStringLiteral(":="));
}

double fontSizeIn(QLineEdit& input)
{
    const double points = NumberInput(input, windowName, "Font Size").number();
    if (!(points >= 1 && points <= 400))
        throw RunTimeError(ErrorNumber::InvalidProcedureCall, std::string(windowName),
                           "a font of " + input.text().toStdString()
                               + " points; it must be from 1 to 400");
    return points;
}

} // namespace

void wndData::btnFitFreq_Click()
{
    if (activePlot() != nullptr)
        changePlot(tr("Fit Frequency Axis"), [](EvmPlot& plot) { plot.fitFreq(); });
}

void wndData::btnMakHead_Click()
{
    const EVM* const evolution = reference();
    if (evolution == nullptr)
        return;
    if (m_document.airplane().massConf(evolution->Param.Mass) == nullptr) {
        const std::string missing = missingAircraftText(m_document.airplane());
        return warn("Please type a valid mass configurarion in ref. modal evolution."
                    + (missing.empty() ? missing : "\n" + missing));
    }
    if (activePlot() == nullptr)
        return;
    changePlot(tr("Header"), [&](EvmPlot& plot) {
        plot.texts().setText(TextBox::Header, headerText(*evolution, m_ui->txtTitle->text()));
    });
}

void wndData::btnAutoRef_Click()
{
    const EVM* const evolution = reference();
    if (evolution == nullptr)
        return;
    if (evolution->Param.Mach == 0)
        return warn("This reference modal evolution does not have mach number info.");
    if (activePlot() == nullptr)
        return;
    changePlot(tr("Reference Speeds"),
               [&](EvmPlot& plot) { markEnvelope(plot, *evolution, m_document.airplane()); });
}

void wndData::cmbFlutMech_Click()
{
    const QString name = m_ui->cmbFlutMech->currentText();
    if (name.isEmpty() || activePlot() == nullptr)
        return;
    changePlot(tr("Flutter Mechanism"), [&](EvmPlot& plot) {
        showMechanism(plot, m_document.airplane(), name, !m_ui->optFlutMecShort->isChecked());
    });
}

/// Reports all entries that do not exist in one message.
void wndData::btnFilltLeg_Click()
{
    if (activePlot() == nullptr)
        return;
    const std::int32_t index = legendIndexIn(*m_ui->txtLegIdx);
    bool areThere = true;
    changePlot(tr("Fill Legend"), [&](EvmPlot& plot) {
        areThere = mdlData::fillLegends(plot.rows(), m_ui->flxSerieViewer->selectedRows(), index);
    });
    if (!areThere)
        warn("There is not " + std::to_string(index) + "\u00AA legend entry");
}

void wndData::btnPlotLeg_Click()
{
    if (activePlot() == nullptr)
        return;
    const double points = fontSizeIn(*m_ui->txtLegFontSize);
    const MarkerOptions markers = m_markers.options();
    std::string missing;
    changePlot(tr("Plot Legend"), [&](EvmPlot& plot) {
        missing = mdlData::buildSeries(plot.rows(), markers);
        writeLegend(plot, points);
    });
    if (!missing.empty())
        warn(missing);
}

/// Cancelling the dialog does not cancel the command: the picture is written under the caption of
/// the plot. No question is asked then before a file of that name is replaced.
void wndData::SavePic_Click()
{
    EvmPlot* const plot = activePlot();
    if (plot == nullptr)
        return;
    const std::string caption = plot->properties().Caption().toStdString();
    const auto answer = m_user.askSaveFile({std::string(pictureFilter), 1, false, caption, true});
    if (!answer && fileExists(caption)
        && !m_user.confirm("The file '" + caption + "' already exists. Do you want to replace it?",
                           "Tarsil"))
        return;
    const std::string name = answer.value_or(caption);
    plot->commitEdits();
    plot->ExportPic(QString::fromStdString(name));
    m_user.showNote("The picture is in " + wholePath(name));
}

} // namespace tarsil
