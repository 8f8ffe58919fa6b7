// SPDX-License-Identifier: Apache-2.0
#include "options/DlgOptions.h"

#include "ui_DlgOptions.h"

#include "aircraft/AirplaneInfo.h"
#include "base/files/PathNames.h"
#include "base/numbers/Numbers.h"
#include "base/user/ErrorGuard.h"
#include "base/user/RunTimeError.h"
#include "base/user/UserInterface.h"
#include "document/Document.h"
#include "options/ListInput.h"
#include "plot/CurvePalette.h"
#include "plotwindow/InputMessage.h"
#include "vgfplot/EvmPlot.h"

#include <QCheckBox>
#include <QComboBox>

#include <algorithm>
#include <array>
#include <functional>
#include <utility>

namespace tarsil {

namespace {

constexpr std::string_view moduleName = "dlgOptions";
constexpr std::string_view aircraftFilter =
    "Aircraft information data file (*.inp)|*.inp|All Files (*.*)|*.*|";
const QString lineStylesOn = QStringLiteral("on"); ///< in the options file
const QString lineStylesOff = QStringLiteral("off");
const QString dashLines = QStringLiteral("lines");
const QString dashPens = QStringLiteral("pens");
constexpr std::size_t firstTicks = 6; ///< index in the entries

constexpr std::array colourChoices = {
    std::pair(CurvePalette::Standard, "standard"),
    std::pair(CurvePalette::ColorBlind, "for people who see no red or green")};

std::int16_t countOf(float number, std::string_view where = {})
{
    return roundToInteger16(static_cast<double>(number), moduleName, where);
}

/// Runs an action on a list. If it fails, the focus moves to the input after the report.
void at(ListInput& list, const std::function<void()>& action)
{
    try {
        action();
    } catch (const RunTimeError&) {
        list.goTo();
        throw;
    }
}

} // namespace

dlgOptions::dlgOptions(Document& document, UserInterface& user, OptionsStore store, QWidget* parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::dlgOptions>()), m_document(document), m_user(user),
      m_store(std::move(store))
{
    m_ui->setupUi(this);
    m_missingFile = std::make_unique<InputMessage>(*m_ui->txtAcInfo);
    m_scaleInput = std::make_unique<ListInput>(*m_ui->txtVgfScale, 6, QStringLiteral("six"));
    m_thicksInput = std::make_unique<ListInput>(*m_ui->txtVgfThicks, 3, QStringLiteral("three"));
    for (const auto& [palette, caption] : colourChoices)
        m_ui->cboColours->addItem(QString::fromLatin1(caption),
                                  QString::fromStdString(std::string(nameOf(palette))));
    connect(m_ui->chkLineStyles, &QCheckBox::toggled, m_ui->cboColours, &QWidget::setDisabled);
    connect(m_ui->txtAcInfo, &QLineEdit::textChanged, this, &dlgOptions::showWhetherFileIsThere);
    connect(m_ui->btnAcInfo, &QPushButton::clicked, this, &dlgOptions::btnAcInfo_Click);
    connect(m_ui->btnOK, &QPushButton::clicked, this, &dlgOptions::btnOK_Click);
    connect(m_ui->btnApply, &QPushButton::clicked, this, &dlgOptions::btnApply_Click);
    connect(m_ui->btnCancel, &QPushButton::clicked, this, &QDialog::reject);
}

dlgOptions::~dlgOptions() = default;

/// Faulty lists take effect for this run only: the path of the aircraft information file is kept,
/// even if they prevented reading it, and new curves get their look.
void dlgOptions::GetOptReg()
{
    OptionTexts stored;
    guarded(m_user, moduleName, [&] { stored = m_store.read(); });
    m_ui->txtAcInfo->setText(stored.acInfoDataFile);
    m_ui->txtVgfScale->setText(stored.vgfScale);
    m_ui->txtVgfThicks->setText(stored.vgfThicks);
    showLook(stored);
    if (!ApplyOpt()) {
        applyLook();
        AirplaneInfo airplane = m_document.airplane();
        airplane.Filename = stored.acInfoDataFile.toStdString();
        m_document.setAirplane(std::move(airplane));
    }
    m_before = textsToKeep();
}

void dlgOptions::SetOptReg() const
{
    m_store.write(textsToKeep(), m_before);
}

OptionTexts dlgOptions::textsToKeep() const
{
    return {QString::fromStdString(m_document.airplane().Filename),
            m_ui->txtVgfScale->text(),
            m_ui->txtVgfThicks->text(),
            m_ui->cboColours->currentData().toString(),
            m_ui->chkLineStyles->isChecked() ? lineStylesOn : lineStylesOff,
            m_ui->chkDashLines->isChecked() ? dashLines : dashPens};
}

/// An unknown text means the default.
void dlgOptions::showLook(const OptionTexts& stored)
{
    m_ui->cboColours->setCurrentIndex(std::max(m_ui->cboColours->findData(stored.curveColours), 0));
    m_ui->chkLineStyles->setChecked(stored.curveLineStyles == lineStylesOn);
    m_ui->chkDashLines->setChecked(stored.metafileDashes == dashLines);
}

CurvePalette dlgOptions::palette() const
{
    const std::string colours = m_ui->cboColours->currentData().toString().toStdString();
    return m_ui->chkLineStyles->isChecked()
        ? CurvePalette::LineStyles
        : paletteNamed(colours).value_or(CurvePalette::Standard);
}

void dlgOptions::applyLook()
{
    m_document.plots().setNewSeriesPalette(palette());
    PictureSettings settings;
    if (m_ui->chkDashLines->isChecked())
        settings.dashes = MetafileDashes::Lines;
    m_document.plots().setPictureSettings(settings);
}

void dlgOptions::UpDateOpt()
{
    std::vector<float> scale;
    std::vector<float> thicks;
    at(*m_scaleInput, [&] { scale = m_scaleInput->numbers(moduleName); });
    at(*m_thicksInput, [&] {
        thicks = m_thicksInput->numbers(moduleName);
        for (std::size_t i = 0; i < thicks.size(); ++i)
            countOf(thicks[i], m_thicksInput->nameOf(i)); // refuses values that no axis accepts
    });
    std::copy(scale.begin(), scale.end(), m_entries.begin());
    std::copy(thicks.begin(), thicks.end(), m_entries.begin() + firstTicks);
}

bool dlgOptions::ApplyOpt()
{
    return guarded(m_user, moduleName, [this] {
        UpDateOpt();
        readAircraftFile();
        applyAxes();
        applyLook();
    });
}

void dlgOptions::useAircraftFile(const std::string& path)
{
    m_ui->txtAcInfo->setText(QString::fromStdString(path));
    readAircraftFile();
}

void dlgOptions::readAircraftFile()
{
    const std::string file = m_ui->txtAcInfo->text().toStdString();
    if (file.empty())
        return;
    AirplaneInfo airplane = m_document.airplane();
    airplane.Filename = file;
    if (fileExists(file))
        guarded(m_user, ClassName {"AirplaneInfo"}, [&airplane] { airplane.Create(); });
    m_document.setAirplane(std::move(airplane));
}

void dlgOptions::applyAxes()
{
    PlotAxes ofNewPlots = m_document.plots().newPlotAxes();
    if (m_scaleInput->isEmpty())
        ofNewPlots.setBounds(PlotAxes().bounds());
    if (m_thicksInput->isEmpty())
        ofNewPlots.setTicks(PlotAxes().ticks());
    m_document.plots().setNewPlotAxes(withEntries(ofNewPlots));
    if (!m_scaleInput->fits() && !m_thicksInput->fits())
        return;
    EvmPlot& plot = vgfPlot();
    plot.setAxes(withEntries(plot.axes()));
}

EvmPlot& dlgOptions::vgfPlot() const
{
    EvmPlot* const active = m_document.plots().active();
    return active != nullptr ? *active : m_document.plots().first();
}

/// The axes with the numbers of those lists that fit.
PlotAxes dlgOptions::withEntries(PlotAxes axes) const
{
    const auto& [vmin, vmax, gmin, gmax, fmin, fmax, v, g, f] = m_entries;
    if (m_scaleInput->fits())
        axes.setBounds({vmin, vmax, fmin, fmax, gmin, gmax});
    if (m_thicksInput->fits())
        axes.setTicks({countOf(v), countOf(g), countOf(f)});
    return axes;
}

/// The file may have been created or deleted while the dialog was hidden.
void dlgOptions::showEvent(QShowEvent* event)
{
    showWhetherFileIsThere();
    QDialog::showEvent(event);
}

void dlgOptions::showWhetherFileIsThere()
{
    const QString file = m_ui->txtAcInfo->text();
    const bool isMissing = !file.isEmpty() && !fileExists(file.toStdString());
    m_missingFile->show(isMissing ? QStringLiteral("There is no such file") : QString());
}

void dlgOptions::btnAcInfo_Click()
{
    guarded(m_user, moduleName, [this] {
        const std::vector<std::string> chosen =
            m_user.askOpenFiles({std::string(aircraftFilter), 1, false, {}});
        if (!chosen.empty())
            m_ui->txtAcInfo->setText(QString::fromStdString(chosen.front()));
    });
}

void dlgOptions::btnApply_Click()
{
    m_user.beginCommand();
    ApplyOpt();
    m_document.history().note(tr("Options"));
}

/// A list that could not be applied was reported. It stays in its input for correction when the
/// dialog is next shown.
void dlgOptions::btnOK_Click()
{
    btnApply_Click();
    accept();
}

} // namespace tarsil
