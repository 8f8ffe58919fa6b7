// SPDX-License-Identifier: Apache-2.0

// The inputs of the units and the notes about them.

#include "importing/DlgImport.h"

#include "ui_DlgImport.h"

#include "base/files/PathNames.h"
#include "base/numbers/Numbers.h"
#include "base/user/ErrorGuard.h"
#include "plotwindow/InputMessage.h"
#include "plotwindow/NumberInput.h"
#include "solver/SolverUnits.h"
#include "solver/UnitEvidence.h"

#include <QSignalBlocker>

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace tarsil {

namespace {

using solver::UnitChoice;
using solver::UnitPreset;
using solver::unitPresets;

constexpr int choose = 0; ///< first entry of the lists: nothing selected

QString unitText(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

template <typename Units>
void addNames(QComboBox& list, const Units& units)
{
    for (const auto& unit : units)
        list.addItem(unitText(unit.name));
}

/// The folder for which the units of a file are stored.
QString folderOf(const std::string& path)
{
    return QString::fromStdString(resolvePath(path).folder);
}

bool isPreset(const UnitPreset& preset, const UnitChoice& units)
{
    return units.speed.name == preset.speed
        && (units.density.name == preset.density || units.density.name == "ratio");
}

} // namespace

void dlgImport::fillUnitInputs()
{
    m_ui->cboPreset->addItem(tr("Choose ..."));
    addNames(*m_ui->cboPreset, unitPresets);
    m_ui->cboPreset->addItem(tr("Other"));
    m_ui->cboSpeed->addItem(tr("Choose ..."));
    addNames(*m_ui->cboSpeed, solver::speedUnits);
    addNames(*m_ui->cboDensity, solver::densityUnits);
    m_wrongVref = std::make_unique<InputMessage>(*m_ui->txtVref);
}

void dlgImport::presetChosen(int index)
{
    const auto preset = static_cast<std::size_t>(index) - 1;
    if (index == choose || preset >= unitPresets.size())
        return;
    UnitChoice units = m_plan.unitsOf(unitPresets[preset]);
    units.vref = vref().value_or(1);
    units.isEquivalent = m_ui->chkEquivalent->isChecked();
    showUnits(units);
}

/// Selects the units last used for the folder of the first output.
void dlgImport::showRememberedUnits()
{
    guarded(m_user, "dlgImport", [this] {
        const auto kept =
            m_store.value(remembered::importUnits, folderOf(m_plan.outputs().front().path));
        const auto units = kept ? solver::unitsFromText(kept->toStdString()) : std::nullopt;
        if (!units)
            return;
        showUnits(*units);
        m_ui->lblRemembered->setText(tr("These are the units last chosen for this folder."));
        m_ui->lblRemembered->show();
    });
}

void dlgImport::keepUnits()
{
    guarded(m_user, "dlgImport", [this] {
        const QString units = QString::fromStdString(solver::unitText(m_plan.units().value()));
        for (const solver::SolverOutput& output : m_plan.outputs())
            m_store.remember(remembered::importUnits, {{folderOf(output.path), units}});
    });
}

void dlgImport::showUnits(const UnitChoice& units)
{
    const QSignalBlocker noSpeed(m_ui->cboSpeed);
    const QSignalBlocker noDensity(m_ui->cboDensity);
    const QSignalBlocker noVref(m_ui->txtVref);
    const QSignalBlocker noEquivalent(m_ui->chkEquivalent);
    m_ui->cboSpeed->setCurrentText(unitText(units.speed.name));
    m_ui->cboDensity->setCurrentText(unitText(units.density.name));
    m_ui->txtVref->setText(QString::fromStdString(shortestText(units.vref)));
    m_ui->chkEquivalent->setChecked(units.isEquivalent);
    refresh();
}

/// Selects the preset that matches the units.
void dlgImport::showPreset()
{
    const QSignalBlocker noPreset(m_ui->cboPreset);
    const auto units = chosenUnits();
    if (!units) {
        m_ui->cboPreset->setCurrentIndex(choose);
        return;
    }
    const auto* const preset =
        std::find_if(unitPresets.begin(), unitPresets.end(),
                     [&units](const UnitPreset& one) { return isPreset(one, *units); });
    m_ui->cboPreset->setCurrentIndex(1 + static_cast<int>(preset - unitPresets.begin()));
}

std::optional<double> dlgImport::vref() const
{
    const auto value = NumberInput(*m_ui->txtVref, "dlgImport").numberIfAny();
    return value > 0 ? value : std::nullopt; // no number is less than any
}

std::optional<UnitChoice> dlgImport::chosenUnits() const
{
    const int speed = m_ui->cboSpeed->currentIndex();
    const auto factor = vref();
    m_wrongVref->show(factor ? QString() : tr("A number above 0 is needed."));
    if (speed == choose || !factor)
        return std::nullopt;
    UnitChoice units;
    units.speed = solver::speedUnits.at(static_cast<std::size_t>(speed) - 1);
    units.density =
        solver::densityUnits.at(static_cast<std::size_t>(m_ui->cboDensity->currentIndex()));
    units.vref = *factor;
    units.isEquivalent = m_ui->chkEquivalent->isChecked();
    return units;
}

/// The evidence in every output, with the name of the output if there are several.
void dlgImport::showEvidence()
{
    QStringList lines;
    for (const solver::SolverOutput& output : m_plan.outputs()) {
        const QString name = m_plan.outputs().size() == 1
            ? QString()
            : QString::fromStdString(resolvePath(output.path).name + ": ");
        for (const std::string& line : solver::evidenceText(output.evidence, output.file))
            lines.append(name + QString::fromStdString(line));
    }
    if (lines.isEmpty())
        lines.append(tr("Nothing: look into the solver's input."));
    m_ui->txtEvidence->setPlainText(lines.join(u'\n'));
}

} // namespace tarsil
