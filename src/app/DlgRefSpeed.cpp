// SPDX-License-Identifier: Apache-2.0
#include "app/DlgRefSpeed.h"

#include "ui_DlgRefSpeed.h"

#include "vgfplot/EvmPlot.h"

namespace tarsil {

dlgRefSpeed::dlgRefSpeed(Document& document, UserInterface& userInterface, QWidget* parent)
    : ReferenceDialog(document, userInterface, parent), m_ui(std::make_unique<Ui::dlgRefSpeed>())
{
    m_ui->setupUi(this);
    dlgRefSpeed::fillDefaults();
    connect(m_ui->AddRefBtn, &QPushButton::clicked, this, &dlgRefSpeed::AddRefBtn_Click);
}

dlgRefSpeed::~dlgRefSpeed() = default;

void dlgRefSpeed::fillDefaults()
{
    m_ui->posInp->setText(QStringLiteral("352.1"));
    m_ui->capInp->setText(QStringLiteral("Vd"));
}

void dlgRefSpeed::AddRefBtn_Click()
{
    addNumber(*m_ui->posInp, tr("Add Reference Speed"), "dlgRefSpeed",
              [this](EvmPlot& plot, float speed) {
                  plot.references().AddRef(speed, m_ui->capInp->text());
              });
}

} // namespace tarsil
