// SPDX-License-Identifier: Apache-2.0
#include "stability/TrendWindow.h"

#include "ui_TrendWindow.h"

#include "aircraft/AirplaneInfo.h"
#include "analysis/SheetWriter.h"
#include "analysis/TrendSheet.h"
#include "base/files/PathNames.h"
#include "base/numbers/Numbers.h"
#include "base/user/ErrorGuard.h"
#include "base/user/RunTimeError.h"
#include "base/user/UserInterface.h"
#include "document/Document.h"
#include "stability/PlotStability.h"
#include "vgfplot/PictureWriter.h"

#include <QClipboard>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QHeaderView>
#include <QMimeData>

#include <set>
#include <utility>

namespace tarsil {

namespace {

constexpr std::string_view trendModule = "TrendWindow";
constexpr std::string_view trendPictures = "Scalable Vector Graphics (*.svg)|*.svg|"
                                           "Portable Network Graphics (*.png)|*.png|"
                                           "Portable Document Format (*.pdf)|*.pdf|"
                                           "Enhanced Windows Metafile (*.emf)|*.emf|";
constexpr std::string_view trendTables = "Workbook (*.xlsx)|*.xlsx|Text with commas (*.csv)|*.csv|";

} // namespace

TrendWindow::TrendWindow(Document& document, UserInterface& user, QWidget* parent)
    : QDialog(parent), m_ui([this] {
          auto ui = std::make_unique<Ui::TrendWindow>();
          ui->setupUi(this);
          return ui;
      }()),
      m_levelsMessage(*m_ui->levelsInp), m_factorMessage(*m_ui->factorInp), m_document(document),
      m_user(user)
{
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    m_ui->trendGrid->setModel(&m_table);
    m_ui->trendGrid->verticalHeader()->hide();
    m_ui->trendGrid->verticalHeader()->setDefaultSectionSize(m_ui->trendGrid->fontMetrics().height()
                                                             + 6);
    m_ui->splitter->setSizes({560, 170});
    connectInputs();
    connect(&m_document, &Document::airplaneChanged, this, &TrendWindow::compare);
    connect(&m_document.evolutions(), &EvolutionList::parametersChanged, this,
            &TrendWindow::compare);
    connect(&m_document.evolutions(), &EvolutionList::pointsChanged, this, &TrendWindow::compare);
    connect(&m_document.evolutions(), &EvolutionList::aboutToBeRemoved, this,
            [this](const std::vector<EVM*>& leaving) {
                const std::set<const EVM*> gone(leaving.begin(), leaving.end());
                std::erase_if(m_evolutions,
                              [&gone](const EVM* one) { return gone.count(one) > 0; });
                compare();
            });
    takeSettings();
}

TrendWindow::~TrendWindow() = default;

void TrendWindow::connectInputs()
{
    for (QLineEdit* input : {m_ui->levelsInp, m_ui->factorInp})
        connect(input, &QLineEdit::textChanged, this, &TrendWindow::takeSettings);
    for (QComboBox* input : {m_ui->againstCmb, m_ui->rootsCmb})
        connect(input, &QComboBox::currentIndexChanged, this, &TrendWindow::takeSettings);
    connect(m_ui->pictureBtn, &QPushButton::clicked, this,
            [this] { run([this] { savePicture(); }); });
    connect(m_ui->tableBtn, &QPushButton::clicked, this, [this] { run([this] { saveTable(); }); });
    connect(m_ui->copyBtn, &QPushButton::clicked, this, [this] {
        run([this] {
            QGuiApplication::clipboard()->setMimeData(
                pictureMimeData(m_ui->trendView->picture()).release());
        });
    });
}

void TrendWindow::run(const std::function<void()>& action)
{
    m_user.beginCommand();
    guarded(m_user, trendModule, action);
}

void TrendWindow::showEvolutions(std::vector<const EVM*> evolutions)
{
    if (evolutions == m_evolutions)
        return;
    m_evolutions = std::move(evolutions);
    compare();
}

void TrendWindow::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    compare();
}

void TrendWindow::takeSettings()
{
    try {
        m_settings.levels = levelsOf(m_ui->levelsInp->text().toStdString());
        m_levelsMessage.show({});
    } catch (const RunTimeError&) {
        m_levelsMessage.show(
            tr("Numbers with commas between them are needed; the last ones count."));
    }
    double factor = 0;
    const bool isFactor =
        parseDouble(m_ui->factorInp->text().toStdString(), factor) == NumberStatus::Ok
        && factor > 0;
    if (isFactor)
        m_requirement.factor = factor;
    m_factorMessage.show(isFactor ? QString()
                                  : tr("A number greater than 0 is needed; the last one counts."));
    m_settings.isTracked = m_ui->rootsCmb->currentIndex() == 1;
    compare();
}

void TrendWindow::compare()
{
    if (!isVisible())
        return;
    const AirplaneInfo& airplane = m_document.airplane();
    const auto requirement =
        airplane.FlutterEnvs.empty() ? std::nullopt : std::optional(m_requirement);
    const PlotStability stability =
        stabilityOfAll(m_evolutions, m_settings, airplane, m_requirement);
    const auto abscissa = static_cast<TrendAbscissa>(m_ui->againstCmb->currentIndex());
    m_trend = trendOf(stability.evolutions, m_settings, abscissa, airplane, requirement);
    m_ui->trendView->setTrend(m_trend);
    m_table.setSheet(table());
    m_ui->trendGrid->resizeColumnsToContents();
    m_ui->hintLabel->setText(m_evolutions.empty()
                                 ? tr("Tick modal evolutions in the explorer to compare them.")
                                 : tr("Ticked modal evolutions: %1").arg(m_evolutions.size()));
}

Sheet TrendWindow::table() const
{
    Sheet sheet(trendSheetTitle);
    writeTrend(m_trend, sheet);
    return sheet;
}

void TrendWindow::savePicture()
{
    const auto path =
        m_user.askSaveFile({std::string(trendPictures), 1, false, "flutter trend.svg", true});
    if (!path)
        return;
    writePicture(m_ui->trendView->picture(), *path);
    m_user.showNote("The picture is in " + wholePath(*path));
}

void TrendWindow::saveTable()
{
    const auto path =
        m_user.askSaveFile({std::string(trendTables), 1, false, "flutter trend.xlsx", true});
    if (!path)
        return;
    Sheet sheet = table();
    writeTrendOrigin(m_trend, "Tarsil " + QCoreApplication::applicationVersion().toStdString(),
                     sheet);
    writeSheet(sheet, *path);
    m_user.showNote("The table is in " + wholePath(*path));
}

} // namespace tarsil
