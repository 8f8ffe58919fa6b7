// SPDX-License-Identifier: Apache-2.0
#include "explorer/WndSelModes.h"

#include "ui_WndSelModes.h"

#include "base/numbers/NumberFormat.h"
#include "base/user/ErrorGuard.h"
#include "base/user/RunTimeError.h"
#include "explorer/CurveAdder.h"
#include "explorer/WndEvolExplorer.h"
#include "model/EVM.h"

#include <QShowEvent>

#include <algorithm>
#include <string>

namespace tarsil {

namespace {

/// Describes a mode so that it can be recognised: "Mode 3: 12.1 to 14.9 Hz".
QString modeText(const AeMode& mode)
{
    const QString number = QStringLiteral("Mode %1: ").arg(mode.Id);
    if (mode.Points.empty())
        return number + QStringLiteral("no points");
    const auto isLower = [](const Point& a, const Point& b) { return a.f < b.f; };
    const auto [lowest, highest] =
        std::minmax_element(mode.Points.begin(), mode.Points.end(), isLower);
    const auto text = [](float f) { return QString::fromStdString(formatNumber(f, "0.0#")); };
    return number + QStringLiteral("%1 to %2 Hz").arg(text(lowest->f), text(highest->f));
}

} // namespace

wndSelModes::wndSelModes(wndEvolExplorer& explorer, wndEvolPlot& plots, UserInterface& user,
                         QWidget* parent)
    : QDialog(parent), m_explorer(explorer), m_plots(plots), m_user(user),
      m_ui(std::make_unique<Ui::wndSelModes>())
{
    m_ui->setupUi(this);
    connect(m_ui->cmd_Add, &QPushButton::clicked, this, &wndSelModes::cmd_Add_Click);
    connect(m_ui->cmd_Ok, &QPushButton::clicked, this, &wndSelModes::cmd_Ok_Click);
    Form_Load();
}

wndSelModes::~wndSelModes() = default;

void wndSelModes::showEvent(QShowEvent* event)
{
    if (!event->spontaneous()) // spontaneous: restored from the task bar
        Form_Load();
    QDialog::showEvent(event);
}

void wndSelModes::Form_Load()
{
    m_ui->lst_AllModes->clear();
    m_ui->lst_SelModes->clear();
    const EVM* const evolution = m_explorer.evolutionOfSelectedNode();
    if (evolution == nullptr)
        return;
    for (std::size_t i = 0; i < evolution->Modes.size(); ++i) {
        auto* const entry = new QListWidgetItem(QString::number(i + 1), m_ui->lst_AllModes);
        entry->setToolTip(modeText(*evolution->Modes[i]));
    }
}

/// In list order, whatever the order of selection.
void wndSelModes::cmd_Add_Click()
{
    for (int row = 0; row < m_ui->lst_AllModes->count(); ++row) {
        const QListWidgetItem* const entry = m_ui->lst_AllModes->item(row);
        if (entry->isSelected())
            m_ui->lst_SelModes->addItem(entry->clone());
    }
}

void wndSelModes::cmd_Ok_Click()
{
    const EVM* const evolution = m_explorer.evolutionOfSelectedNode();
    std::vector<AeMode*> modes;
    if (evolution != nullptr
        && !guarded(m_user, "wndSelModes", [&] { modes = chosenModes(*evolution); }))
        return; // nothing is added, and the user can choose again
    guarded(m_user, "wndSelModes", [&] { addCurves(m_plots, modes); });
    accept();
}

/// Another evolution with fewer modes may be selected by now: error 9 "Subscript out of range".
std::vector<AeMode*> wndSelModes::chosenModes(const EVM& evolution) const
{
    std::vector<AeMode*> modes;
    for (int row = 0; row < m_ui->lst_SelModes->count(); ++row) {
        const auto position = m_ui->lst_SelModes->item(row)->text().toULongLong();
        if (position > evolution.Modes.size())
            throw RunTimeError(ErrorNumber::SubscriptOutOfRange, "wndSelModes",
                               "mode " + std::to_string(position) + " of \"" + evolution.FileName
                                   + "\"");
        modes.push_back(evolution.Modes[position - 1].get());
    }
    return modes;
}

} // namespace tarsil
