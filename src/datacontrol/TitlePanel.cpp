// SPDX-License-Identifier: Apache-2.0
#include "datacontrol/TitlePanel.h"

#include "ui_TitlePanel.h"

#include "aircraft/AirplaneInfo.h"
#include "datacontrol/DataCommands.h"
#include "document/Document.h"
#include "document/PlotTitles.h"
#include "model/EVM.h"
#include "vgfplot/EvmPlot.h"

#include <QSignalBlocker>

namespace tarsil {

TitlePanel::TitlePanel(const DataCommands& commands, QWidget* parent)
    : QGroupBox(parent), m_commands(commands), m_ui(std::make_unique<Ui::TitlePanel>())
{
    m_ui->setupUi(this);
    connect(m_ui->btnAutoRef, &QPushButton::clicked, this,
            commands.command([this] { btnAutoRef_Click(); }));
    connect(m_ui->btnMakHead, &QPushButton::clicked, this,
            commands.command([this] { btnMakHead_Click(); }));
    const auto showMechanism = commands.command([this] { cmbFlutMech_Click(); });
    connect(m_ui->cmbFlutMech, &QComboBox::activated, this, showMechanism);
    for (QRadioButton* option : {m_ui->optFlutMecLong, m_ui->optFlutMecShort})
        connect(option, &QRadioButton::clicked, this, showMechanism);
    fillMechanisms();
    connect(&commands.document(), &Document::airplaneChanged, this, &TitlePanel::fillMechanisms);
}

TitlePanel::~TitlePanel() = default;

/// Leaves no mechanism selected.
void TitlePanel::fillMechanisms()
{
    const QSignalBlocker quiet(m_ui->cmbFlutMech);
    m_ui->cmbFlutMech->clear();
    for (const FlutterMechanism& mechanism : m_commands.document().airplane().FlutterMechs)
        m_ui->cmbFlutMech->addItem(QString::fromStdString(mechanism.ShortName));
    m_ui->cmbFlutMech->setCurrentIndex(-1);
}

void TitlePanel::btnMakHead_Click()
{
    const EVM* const evolution = m_commands.reference();
    if (evolution == nullptr)
        return;
    const AirplaneInfo& airplane = m_commands.document().airplane();
    if (airplane.massConf(evolution->Param.Mass) == nullptr) {
        const std::string missing = missingAircraftText(airplane);
        return m_commands.warn("Please type a valid mass configurarion in ref. modal evolution."
                               + (missing.empty() ? missing : "\n" + missing));
    }
    if (m_commands.activePlot() == nullptr)
        return;
    m_commands.change(tr("Header"), [&](EvmPlot& plot) {
        plot.texts().setText(TextBox::Header, headerText(*evolution, m_ui->txtTitle->text()));
    });
}

void TitlePanel::btnAutoRef_Click()
{
    const EVM* const evolution = m_commands.reference();
    if (evolution == nullptr)
        return;
    if (evolution->Param.Mach == 0)
        return m_commands.warn("This reference modal evolution does not have mach number info.");
    if (m_commands.activePlot() == nullptr)
        return;
    m_commands.change(tr("Reference Speeds"), [&](EvmPlot& plot) {
        markEnvelope(plot, *evolution, m_commands.document().airplane());
    });
}

void TitlePanel::cmbFlutMech_Click()
{
    const QString name = m_ui->cmbFlutMech->currentText();
    if (name.isEmpty() || m_commands.activePlot() == nullptr)
        return;
    m_commands.change(tr("Flutter Mechanism"), [&](EvmPlot& plot) {
        showMechanism(plot, m_commands.document().airplane(), name,
                      !m_ui->optFlutMecShort->isChecked());
    });
}

} // namespace tarsil
