// SPDX-License-Identifier: Apache-2.0
#include "document/PlotTitles.h"

#include "aircraft/AirplaneInfo.h"
#include "base/files/PathNames.h"
#include "base/numbers/Numbers.h"
#include "base/user/RunTimeError.h"
#include "document/MdlData.h"
#include "model/EVM.h"
#include "vgfplot/EvmPlot.h"

#include <QStringList>

namespace tarsil {

namespace {

constexpr std::string_view gridWindowModule = "wndData";
const QString lineBreak = QStringLiteral("\r\n");

std::int16_t ticks(float count, const FlutterMechanism& mechanism, std::string_view axis)
{
    return roundToInteger16(static_cast<double>(count), gridWindowModule,
                            "ticks of the " + std::string(axis) + " axis of mechanism "
                                + mechanism.ShortName);
}

/// Searches each line after the one before it, so that equal lines get their own colours.
void colorLines(emfRichTextBox& box, const QStringList& lines,
                const std::vector<ColorValue>& colors)
{
    const QString text = box.Text();
    qsizetype from = 0;
    for (qsizetype i = 0; i < lines.size(); ++i) {
        const qsizetype position = text.indexOf(lines[i], from);
        if (position < 0)
            continue;
        box.setSelStart(static_cast<int>(position));
        box.setSelLength(static_cast<int>(lines[i].size()));
        box.setSelColor(colors[static_cast<std::size_t>(i)]);
        from = position + lines[i].size();
    }
    box.setSelStart(0);
}

} // namespace

std::string missingAircraftText(const AirplaneInfo& airplane)
{
    const bool isKnown = !airplane.MassConfs.empty() || !airplane.FlutterMechs.empty()
        || !airplane.FlutterEnvs.empty();
    if (isKnown || fileExists(airplane.Filename))
        return {};
    const std::string missing = airplane.Filename.empty()
        ? "No aircraft information file is set"
        : "The aircraft information file \"" + shownPath(airplane.Filename) + "\" does not exist";
    return missing + ": choose one in Tools > Options.";
}

QString headerText(const EVM& evolution, const QString& lastLine)
{
    QString airplane = QString::fromStdString(evolution.Param.Airplane);
    airplane.replace(QStringLiteral("QRX"), QStringLiteral("QRX-"));
    const QString mass = QString::fromStdString(evolution.Param.Mass).toUpper();
    const QString method = QString::fromStdString(evolution.flutterMethod);
    return airplane + QStringLiteral(" - Configuration ") + mass + lineBreak + method
        + QStringLiteral(" Method - Mach No. ")
        + QString::fromStdString(envelopeName(evolution.Param.Mach)) + lineBreak + lastLine;
}

void markEnvelope(EvmPlot& plot, const EVM& evolution, const AirplaneInfo& airplane)
{
    const FlutterEnvelope* const envelope = airplane.envelopeAtMach(evolution.Param.Mach);
    if (envelope == nullptr) {
        const std::string missing = missingAircraftText(airplane);
        const std::string where =
            missing.empty() ? " in \"" + shownPath(airplane.Filename) + "\"" : ". " + missing;
        throw RunTimeError(ErrorNumber::InvalidProcedureCall, std::string(gridWindowModule),
                           "no flutter envelope for Mach number "
                               + envelopeName(evolution.Param.Mach) + where);
    }
    // Blanks keep captions apart whose speeds are close.
    plot.references().RemoveRef();
    plot.references().AddRef(envelope->Ceiling, QString::fromStdString(airplane.CeTag));
    plot.references().AddRef(envelope->Vd, QString::fromStdString(airplane.VdTag + "    "));
    plot.references().AddRef(envelope->VL, QString::fromStdString("       " + airplane.VLTag));
}

void showMechanism(EvmPlot& plot, const AirplaneInfo& airplane, const QString& shortName,
                   bool withLongName)
{
    const FlutterMechanism* const found = airplane.flutterMechanism(shortName.toStdString());
    if (found == nullptr)
        throw RunTimeError(ErrorNumber::InvalidProcedureCall, std::string(gridWindowModule),
                           "no flutter mechanism \"" + shortName.toStdString() + "\" in \""
                               + shownPath(airplane.Filename) + "\"");
    PlotAxes axes = plot.axes();
    axes.setBounds({found->vmin, found->vmax, found->fmin, found->fmax, found->gmin, found->gmax});
    axes.speed.ticks = ticks(found->vthick, *found, "speed");
    axes.damping.ticks = ticks(found->gthick, *found, "damping");
    axes.frequency.ticks = ticks(found->fthick, *found, "frequency");
    plot.texts().setText(TextBox::Mechanism,
                         QString::fromStdString(withLongName ? found->LongName : found->ShortName));
    plot.setAxes(axes);
}

void writeLegend(EvmPlot& plot, double points)
{
    QStringList lines;
    std::vector<ColorValue> colors;
    for (const Series& series : plot.SeriesCollection()) {
        if (series.LegendText.isEmpty())
            continue;
        lines.append(
            mdlData::inOneLine(u'[' + series.MarkerTag + QStringLiteral("] ") + series.LegendText));
        colors.push_back(series.ColorIndex);
    }
    plot.texts().change(TextBox::Legend, [&](emfRichTextBox& box) {
        Font font = box.Font();
        font.points = points;
        box.setFont(font);
        box.setText(lines.join(lineBreak));
        colorLines(box, lines, colors);
    });
}

} // namespace tarsil
