#include "datacontrol/WndData.h"

#include "ui_WndData.h"

#include "aircraft/AirplaneInfo.h"
#include "base/user/ErrorGuard.h"
#include "base/user/ErrorReport.h"
#include "base/user/UserInterface.h"
#include "datacontrol/LineSample.h"
#include "document/Document.h"
#include "vgfplot/EvmPlot.h"

#include <QMenu>
#include <QPersistentModelIndex>
#include <QSignalBlocker>

#include <utility>

namespace tarsil {

namespace {

constexpr std::string_view module = "wndData";

int columnNumber(SeriesColumn column)
{
    return static_cast<int>(column);
}

std::unique_ptr<Ui::wndData> makeForm(wndData& window)
{
    auto form = std::make_unique<Ui::wndData>();
    form->setupUi(&window);
    return form;
}

} // namespace

wndData::wndData(Document& document, UserInterface& user, QWidget* parent)
    : QWidget(parent), m_ui(makeForm(*this)), m_markers(*m_ui), m_model(document.history()),
      m_document(document), m_user(user)
{
    m_ui->txtLegIdx->home(false); // shows the start of the explanation
    setFocusProxy(m_ui->flxSerieViewer);
    connectGrid();
    connectButtons();
    connectOptions();
    readMarkers();
    makeMoveMenu();
    fillMechanisms();
    connect(&m_document, &Document::airplaneChanged, this, &wndData::fillMechanisms);
    connect(&m_document.plots(), &PlotList::activeChanged, this,
            [this](EvmPlot* /*before*/, EvmPlot* now) {
                commitEdits(); // typed for the former plot
                m_model.setPlot(now);
            });
    m_model.setPlot(m_document.plots().active());
}

wndData::~wndData() = default;

QSize wndData::sizeHint() const
{
    return {620, 480};
}

void wndData::connectGrid()
{
    SeriesGridView& grid = *m_ui->flxSerieViewer;
    grid.setModel(&m_model);
    grid.setItemDelegateForColumn(columnNumber(SeriesColumn::Line), new LineSampleDelegate(&grid));
    grid.setPlaceholder(tr("Tick modal evolutions in the explorer and press \"Select Modal "
                           "Evolution\", or pick modes with the right button there."));
    QHeaderView& header = *grid.horizontalHeader();
    header.setHighlightSections(false);
    constexpr std::array widths = {
        std::pair(SeriesColumn::Index, 36), std::pair(SeriesColumn::Tag, 44),
        std::pair(SeriesColumn::Mode, 52), std::pair(SeriesColumn::Line, 44),
        std::pair(SeriesColumn::Legend, 80)};
    for (const auto& [column, width] : widths)
        header.resizeSection(columnNumber(column), width);
    header.setStretchLastSection(true); // from now on its width is a minimum
    connect(&grid, &SeriesGridView::removeWanted, this, runs(&wndData::cmdRemove_Click));
    connect(&grid, &SeriesGridView::raiseWanted, this, runs(&wndData::cmdIncMode_Click));
    connect(&grid, &SeriesGridView::lowerWanted, this, runs(&wndData::cmdDecMode_Click));
    connect(&grid, &SeriesGridView::moveUpWanted, this, runs(&wndData::moveUp));
    connect(&grid, &SeriesGridView::moveDownWanted, this, runs(&wndData::moveDown));
    connect(&grid, &SeriesGridView::styleWanted, this, runs(&wndData::chooseLine));
    connect(&grid, &SeriesGridView::rowsDropped, this, [this](int target) {
        run([=, this] { moveSelectedTo(static_cast<std::size_t>(target)); });
    });
    connect(&m_model, &SeriesGridModel::rowsReplaced, this, &wndData::showMarkers);
    connect(&m_model, &SeriesGridModel::edited, this,
            [this](SeriesColumn column) { run([=, this] { afterEdit(column); }); });
    connect(&m_model, &SeriesGridModel::refused, this, &wndData::askAgain);
}

/// The keys that follow are meant for the wrong text, not for the row.
void wndData::askAgain(const QModelIndex& cell, const QString& text, const RunTimeError& error)
{
    const QPersistentModelIndex refused(cell);
    m_user.showMessage(errorReport(error, module), "Error", MessageIcon::Critical);
    m_ui->flxSerieViewer->editAgain(refused, text);
}

void wndData::connectButtons()
{
    const std::pair<QPushButton*, Handler> buttons[] = {
        {m_ui->cmdDrawPlot, &wndData::cmdDrawPlot_Click},
        {m_ui->btnFitFreq, &wndData::btnFitFreq_Click},
        {m_ui->cmdIncMode, &wndData::cmdIncMode_Click},
        {m_ui->cmdDecMode, &wndData::cmdDecMode_Click},
        {m_ui->cmdRemove, &wndData::cmdRemove_Click},
        {m_ui->btnResColor, &wndData::btnResColor_Click},
        {m_ui->SavePic, &wndData::SavePic_Click},
        {m_ui->btnAutoRef, &wndData::btnAutoRef_Click},
        {m_ui->btnMakHead, &wndData::btnMakHead_Click},
        {m_ui->btnFilltLeg, &wndData::btnFilltLeg_Click},
        {m_ui->btnPlotLeg, &wndData::btnPlotLeg_Click}};
    for (const auto& [button, handler] : buttons)
        connect(button, &QPushButton::clicked, this, runs(handler));
    connect(m_ui->btnSerieMove, &QToolButton::clicked, this, runs(&wndData::btnSerieMove_Click));
}

void wndData::connectOptions()
{
    connect(m_ui->cmbFlutMech, &QComboBox::activated, this, runs(&wndData::cmbFlutMech_Click));
    for (QRadioButton* option : {m_ui->optFlutMecLong, m_ui->optFlutMecShort})
        connect(option, &QRadioButton::clicked, this, runs(&wndData::cmbFlutMech_Click));
    connect(m_ui->tagBtn, &QRadioButton::clicked, this, runs(&wndData::tagBtn_Click));
    for (QRadioButton* style : {m_ui->womkBtn, m_ui->aemodeBtn, m_ui->ithmpfBtn})
        connect(style, &QRadioButton::clicked, this, runs(&wndData::applyMarkers));
    for (QLineEdit* input : {m_ui->mksizeInp, m_ui->mkspaceInp, m_ui->ithmpfInp})
        connect(input, &QLineEdit::textChanged, this, runs(&wndData::applyMarkers));
    connect(m_ui->mkspaceInp, &QLineEdit::editingFinished, this,
            runs(&wndData::mkspaceInp_LostFocus));
}

/// A click moves up; the menu has the other commands.
void wndData::makeMoveMenu()
{
    auto* const menu = new QMenu(this);
    const auto add = [&](const QString& text, const std::function<void()>& action) {
        connect(menu->addAction(text), &QAction::triggered, this, [this, action] {
            commitEdits();
            run(action);
        });
    };
    add(tr("Up\tAlt+Up"), [this] { moveUp(); });
    add(tr("Down\tAlt+Down"), [this] { moveDown(); });
    add(tr("To the Top"), [this] { moveSelectedTo(0); });
    add(tr("To the Bottom"),
        [this] { moveSelectedTo(static_cast<std::size_t>(m_model.rowCount())); });
    m_ui->btnSerieMove->setMenu(menu);
}

void wndData::run(const std::function<void()>& action)
{
    m_user.beginCommand();
    guarded(m_user, module, action);
}

std::function<void()> wndData::runs(Handler handler)
{
    return [this, handler] {
        commitEdits();
        run([this, handler] { (this->*handler)(); });
    };
}

void wndData::commitEdits()
{
    m_ui->flxSerieViewer->commitEditor();
}

void wndData::warn(const std::string& text)
{
    m_user.showMessage(text, "Tarsil", MessageIcon::Exclamation);
}

/// The plot whose rows the grid shows. Null, after a message, when no plot is active.
EvmPlot* wndData::activePlot()
{
    if (m_model.plot() == nullptr)
        warn("Please select activate a plot.");
    return m_model.plot();
}

/// The reference evolution. Null, after a message, when there is none.
const EVM* wndData::reference()
{
    const EVM* const evolution = m_document.evolutions().reference();
    if (evolution == nullptr)
        warn("Please select a reference modal evolution.");
    return evolution;
}

/// Leaves no mechanism selected.
void wndData::fillMechanisms()
{
    const QSignalBlocker quiet(m_ui->cmbFlutMech);
    m_ui->cmbFlutMech->clear();
    for (const FlutterMechanism& mechanism : m_document.airplane().FlutterMechs)
        m_ui->cmbFlutMech->addItem(QString::fromStdString(mechanism.ShortName));
    m_ui->cmbFlutMech->setCurrentIndex(-1);
}

} // namespace tarsil
