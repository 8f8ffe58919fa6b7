// SPDX-License-Identifier: Apache-2.0
#include "importing/DlgImport.h"

#include "ui_DlgImport.h"

#include "base/files/PathNames.h"
#include "base/numbers/Numbers.h"
#include "base/text/ShortList.h"
#include "base/user/BusyStatus.h"
#include "base/user/ErrorGuard.h"
#include "base/user/Progress.h"
#include "base/user/RunTimeError.h"
#include "base/user/UserInterface.h"
#include "document/Document.h"
#include "importing/DroppedFiles.h"
#include "importing/ImportPreview.h"
#include "model/EVM.h"
#include "plotwindow/InputMessage.h"
#include "plotwindow/ScreenSize.h"
#include "plotwindow/ToolTipText.h"
#include "plotwindow/WarningColor.h"

#include <QColor>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QEvent>
#include <QPalette>
#include <QSignalBlocker>

#include <cstddef>
#include <set>
#include <string_view>
#include <utility>

namespace tarsil {

namespace {

using solver::AnalysisIndex;
using solver::SolverRun;

constexpr std::string_view moduleName = "dlgImport";
constexpr std::string_view reading = "Read Solver Results. Please Wait ...";
constexpr std::string_view writing = "Import Solver Results. Please Wait ...";

enum Role { OutputRole = Qt::UserRole, RunRole };

QString textOf(const std::optional<double>& value)
{
    return value ? QString::fromStdString(shortestText(*value)) : QString();
}

QString machText(const SolverRun& run)
{
    return run.key.mach || !printsDensities(run) ? textOf(run.key.mach) : dlgImport::tr("in rows");
}

QString densityText(const SolverRun& run)
{
    if (printsDensities(run))
        return dlgImport::tr("in rows");
    return run.key.densityRatio ? textOf(run.key.densityRatio) : dlgImport::tr("none");
}

QStringList columnsOf(const SolverRun& run, std::size_t index)
{
    const QString name = run.key.subcase
        ? dlgImport::tr("Subcase %1").arg(QString::fromStdString(*run.key.subcase))
        : dlgImport::tr("Analysis %1").arg(index + 1);
    const QString angle = run.key.sigmaValue
        ? dlgImport::tr(", sigma %1").arg(textOf(run.key.sigmaValue))
        : QString();
    return {name + angle,
            QString::fromStdString(run.key.method),
            machText(run),
            densityText(run),
            QString::number(run.roots.size()),
            QString::number(run.roots.front().rows.size()),
            QString::number(run.cycle)};
}

QTreeWidgetItem* newNode(const QStringList& columns, const std::string& toolTip)
{
    auto* const node = new QTreeWidgetItem(columns);
    node->setCheckState(0, Qt::Checked);
    for (int column = 0; column < columns.size(); ++column)
        node->setToolTip(column, toolTipText(QString::fromStdString(toolTip)));
    return node;
}

std::string whereIs(const SolverRun& run)
{
    std::string text =
        "lines " + std::to_string(run.firstLine) + " to " + std::to_string(run.lastLine);
    for (const std::string& line : {run.title, run.subtitle, run.label})
        text += line.empty() ? "" : "\n" + line;
    return text;
}

} // namespace

dlgImport::dlgImport(Document& document, UserInterface& user, OptionsStore store, QWidget* parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::dlgImport>()), m_document(document), m_user(user),
      m_store(std::move(store))
{
    m_ui->setupUi(this);
    setAcceptDrops(true);
    m_preview = new ImportPreview(document.plots().newSeriesPalette(), this);
    m_ui->previewLayout->insertWidget(0, m_preview, 1);
    m_ui->fraFindings->hide();
    colorDoubts();
    fillUnitInputs();
    connectInputs();
    resize(sizeOnScreen(*this, {960, 660}));
}

dlgImport::~dlgImport() = default;

void dlgImport::colorDoubts()
{
    QPalette warning;
    warning.setColor(QPalette::WindowText, warningColor(palette()));
    m_ui->lblDoubts->setPalette(warning);
}

/// The user may change the colours of the desktop while the dialog is open.
void dlgImport::changeEvent(QEvent* event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        colorDoubts();
}

void dlgImport::connectInputs()
{
    connect(m_ui->btnAdd, &QPushButton::clicked, this, &dlgImport::btnAdd_Click);
    connect(m_ui->btnFolder, &QPushButton::clicked, this, &dlgImport::btnFolder_Click);
    connect(m_ui->btnImport, &QPushButton::clicked, this, &dlgImport::btnImport_Click);
    connect(m_ui->btnCancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(m_ui->cboPreset, &QComboBox::activated, this, &dlgImport::presetChosen);
    for (QComboBox* const list : {m_ui->cboSpeed, m_ui->cboDensity})
        connect(list, &QComboBox::currentIndexChanged, this, &dlgImport::refresh);
    for (QLineEdit* const input :
         {m_ui->txtVref, m_ui->txtAirplane, m_ui->txtMass, m_ui->txtFolder})
        connect(input, &QLineEdit::textChanged, this, &dlgImport::refresh);
    connect(m_ui->chkEquivalent, &QCheckBox::toggled, this, &dlgImport::refresh);
    connect(m_ui->treAnalyses, &QTreeWidget::currentItemChanged, this, &dlgImport::showPreview);
    connect(m_ui->treAnalyses, &QTreeWidget::itemChanged, this,
            [this](QTreeWidgetItem* node) { chooseOf(*node); });
}

bool dlgImport::addFiles(const std::vector<std::string>& paths)
{
    const std::size_t known = m_plan.outputs().size();
    const std::size_t refused = m_plan.refusals().size();
    read(paths);
    for (std::size_t output = known; output < m_plan.outputs().size(); ++output)
        listOutput(output);
    const std::vector<std::string>& refusals = m_plan.refusals();
    if (refusals.size() > refused)
        m_user.showMessage(
            shortList({refusals.begin() + static_cast<std::ptrdiff_t>(refused), refusals.end()},
                      mostReports),
            "Tarsil", MessageIcon::Exclamation);
    if (m_plan.outputs().empty())
        return false;
    listFindings();
    showEvidence();
    if (known == 0)
        showRememberedUnits();
    refresh();
    return true;
}

/// The files read before a stop are in the plan, and nothing of the one that is being read.
void dlgImport::read(const std::vector<std::string>& paths)
{
    const BusyStatus status(m_user, reading);
    const std::size_t count = paths.size();
    const Progress progress = [this](std::size_t done, std::size_t total) {
        return m_user.showProgress(done, total);
    };
    for (std::size_t i = 0; i < count; ++i) {
        const bool isRead = m_plan.add(paths[i], partOf(progress, i, count));
        const std::size_t read = isRead ? i + 1 : i;
        if (isRead && (m_user.showProgress(read, count) || read == count))
            continue;
        m_user.showNote("Stopped: " + std::to_string(read) + " of " + std::to_string(count)
                        + " files were read");
        return;
    }
}

void dlgImport::listOutput(std::size_t output)
{
    const QSignalBlocker noSignals(m_ui->treAnalyses);
    const solver::SolverOutput& source = m_plan.outputs()[output];
    QTreeWidgetItem* const file =
        newNode({QString::fromStdString(resolvePath(source.path).name)}, shownPath(source.path));
    file->setFlags(file->flags() | Qt::ItemIsAutoTristate);
    for (std::size_t run = 0; run < source.runs.size(); ++run) {
        QTreeWidgetItem* const node =
            newNode(columnsOf(source.runs[run], run), whereIs(source.runs[run]));
        node->setData(0, OutputRole, QVariant::fromValue<qulonglong>(output));
        node->setData(0, RunRole, QVariant::fromValue<qulonglong>(run));
        file->addChild(node);
    }
    m_ui->treAnalyses->addTopLevelItem(file);
    file->setFirstColumnSpanned(true);
    file->setExpanded(true);
    if (m_ui->treAnalyses->currentItem() == nullptr)
        m_ui->treAnalyses->setCurrentItem(file->child(0));
    for (int column = 0; column < m_ui->treAnalyses->columnCount(); ++column)
        m_ui->treAnalyses->resizeColumnToContents(column);
}

void dlgImport::listFindings()
{
    const std::vector<std::string> findings = m_plan.findings();
    m_ui->lstFindings->clear();
    for (const std::string& finding : findings)
        m_ui->lstFindings->addItem(QString::fromStdString(finding));
    m_ui->fraFindings->setVisible(!findings.empty());
}

/// The node of a file has no analysis; its check box sets those of its children.
void dlgImport::chooseOf(QTreeWidgetItem& node)
{
    if (node.parent() == nullptr)
        return;
    const AnalysisIndex analysis {node.data(0, OutputRole).toULongLong(),
                                  node.data(0, RunRole).toULongLong()};
    m_plan.choose(analysis, node.checkState(0) == Qt::Checked);
    showConsequences();
}

std::optional<AnalysisIndex> dlgImport::currentAnalysis() const
{
    const QTreeWidgetItem* node = m_ui->treAnalyses->currentItem();
    if (node != nullptr && node->parent() == nullptr)
        node = node->child(0);
    if (node == nullptr)
        return std::nullopt;
    return AnalysisIndex {node->data(0, OutputRole).toULongLong(),
                          node->data(0, RunRole).toULongLong()};
}

void dlgImport::refresh()
{
    m_plan.setUnits(chosenUnits());
    m_plan.setTexts({"tarsil " TARSIL_VERSION, m_ui->txtAirplane->text().toStdString(),
                     m_ui->txtMass->text().toStdString()});
    m_plan.setFolder(m_ui->txtFolder->text().trimmed().toStdString());
    showPreset();
    showConsequences();
    showPreview();
}

void dlgImport::showConsequences()
{
    constexpr std::size_t mostDoubts = 4;
    const std::vector<std::string> doubts = m_plan.doubts();
    m_ui->lblDoubts->setText(QString::fromStdString(shortList(doubts, mostDoubts)));
    m_ui->lblDoubts->setVisible(!doubts.empty());
    const std::size_t count = m_plan.files().size();
    m_ui->btnImport->setEnabled(m_plan.units() && count > 0);
    m_ui->lblCount->setText(!m_plan.units() ? tr("Choose the units of the printed numbers.")
                                : count == 1
                                ? tr("1 modal evolution will be written.")
                                : tr("%1 modal evolutions will be written.").arg(count));
}

/// Shows the error instead of the speeds when an analysis cannot be converted.
void dlgImport::showPreview()
{
    const auto analysis = currentAnalysis();
    std::unique_ptr<EVM> evolution;
    QString text = tr("The plot is shown when the units are chosen.");
    if (analysis && m_plan.units()) {
        try {
            evolution = m_plan.evolution(*analysis);
            text = QString::fromStdString(solver::firstSpeedsText(*evolution));
        } catch (const RunTimeError& error) {
            text = QString::fromStdString(error.description());
        }
    }
    m_ui->lblSpeeds->setText(text);
    m_preview->showEvolution(std::move(evolution));
}

void dlgImport::btnAdd_Click()
{
    guarded(m_user, moduleName, [this] {
        addFiles(m_user.askOpenFiles({fileFilter, 1, true, {}, true}));
    });
}

void dlgImport::btnFolder_Click()
{
    guarded(m_user, moduleName, [this] {
        const std::string first = resolvePath(m_plan.outputs().front().path).folder;
        const std::string now = m_ui->txtFolder->text().toStdString();
        if (const auto folder = m_user.askFolder(now.empty() ? first : now))
            m_ui->txtFolder->setText(QString::fromStdString(*folder));
    });
}

void dlgImport::btnImport_Click()
{
    guarded(m_user, moduleName, [this] {
        const std::vector<std::string> existing = existingFiles();
        if (!existing.empty() && !mayReplace(existing))
            return;
        const solver::WrittenFiles written = write();
        if (!written.failures.empty())
            m_user.showMessage(shortList(written.failures, mostReports), "Error",
                               MessageIcon::Critical);
        if (written.paths.empty())
            return;
        keepUnits();
        accept();
        load(written);
        if (existing.empty())
            m_document.history().note(tr("Import Solver Results"));
        else
            m_document.history().clear(); // its steps may hold curves that are in no file any more
    });
}

/// Writes the planned files while the busy status is shown.
solver::WrittenFiles dlgImport::write()
{
    const BusyStatus status(m_user, writing);
    return m_plan.write(
        [this](std::size_t done, std::size_t total) { return m_user.showProgress(done, total); });
}

std::vector<std::string> dlgImport::existingFiles() const
{
    std::vector<std::string> existing;
    for (const solver::PlannedFile& file : m_plan.files()) {
        if (fileExists(file.path))
            existing.push_back(shownPath(file.path));
    }
    return existing;
}

/// Asks once for all files that exist already.
bool dlgImport::mayReplace(const std::vector<std::string>& existing) const
{
    return m_user.confirm(
        (existing.size() == 1 ? "This file exists already:\n" : "These files exist already:\n")
            + shortList(existing, mostReports) + "\nDo you want to replace "
            + (existing.size() == 1 ? "it?" : "them all?")
            + " Open evolutions of these files are read again, and their curves are removed from "
              "the plots.",
        "Tarsil");
}

/// Removes evolutions whose files were replaced, then loads the new ones. The note of a stopped
/// loading stays.
void dlgImport::load(const solver::WrittenFiles& files)
{
    std::set<std::optional<std::string>> written;
    for (const std::string& path : files.paths)
        written.insert(fileIdentity(path));
    std::vector<EVM*> replaced;
    for (const auto& evolution : m_document.evolutions().all()) {
        if (written.contains(fileIdentity(evolution->path())) && fileExists(evolution->path()))
            replaced.push_back(evolution.get());
    }
    m_document.remove(replaced);
    const std::size_t count = m_document.load(files.paths, m_user).size();
    if (count < files.paths.size())
        return;
    m_user.showNote((files.isStopped ? "Stopped: " : "") + std::to_string(count)
                    + (count == 1 ? " modal evolution is" : " modal evolutions are")
                    + " imported: they are listed in the explorer.");
}

void dlgImport::dragEnterEvent(QDragEnterEvent* event)
{
    if (!droppedFiles(*event->mimeData()).empty())
        event->acceptProposedAction();
}

void dlgImport::dropEvent(QDropEvent* event)
{
    guarded(m_user, moduleName, [&] { addFiles(droppedFiles(*event->mimeData())); });
    event->acceptProposedAction();
}

} // namespace tarsil
