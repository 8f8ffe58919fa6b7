// SPDX-License-Identifier: Apache-2.0
#include "printing/PrintDialog.h"

#include "base/files/AtomicFile.h"
#include "base/files/PathNames.h"
#include "base/user/BusyStatus.h"
#include "base/user/ErrorGuard.h"
#include "base/user/UserInterface.h"
#include "document/DateText.h"
#include "document/Document.h"
#include "printing/PlotPrinter.h"
#include "printing/PrintLayout.h"
#include "vgfplot/EvmPlot.h"

#include <QBuffer>
#include <QComboBox>
#include <QDateTime>
#include <QFormLayout>
#include <QGridLayout>
#include <QLabel>
#include <QListWidget>
#include <QPageSetupDialog>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QPushButton>
#include <QVBoxLayout>

namespace tarsil {

namespace {

constexpr std::string_view printModule = "PrintDialog";
constexpr std::string_view printing = "Print Plots. Please Wait ...";
constexpr std::string_view pdfFilter = "PDF (*.pdf)|*.pdf|";

QPushButton* buttonOf(QWidget* parent, const char* name, const QString& caption)
{
    auto* const button = new QPushButton(caption, parent);
    button->setObjectName(QString::fromLatin1(name));
    button->setAutoDefault(false);
    return button;
}

std::string withPdfExtension(const std::string& path)
{
    const bool hasIt =
        QString::fromStdString(path).endsWith(QStringLiteral(".pdf"), Qt::CaseInsensitive);
    return hasIt ? path : path + ".pdf";
}

} // namespace

PrintDialog::PrintDialog(Document& document, UserInterface& user, QWidget* parent)
    : QDialog(parent), m_document(document), m_user(user), m_plots(new QListWidget(this)),
      m_plotsPerPage(new QComboBox(this)),
      m_printer(std::make_unique<QPrinter>(QPrinter::HighResolution))
{
    setObjectName(QStringLiteral("printDialog"));
    setWindowTitle(tr("Print Plots"));
    setAccessibleName(windowTitle());
    m_printer->setPageOrientation(QPageLayout::Landscape);
    m_plots->setObjectName(QStringLiteral("plots"));
    m_plots->setAccessibleName(tr("Plots to print"));
    m_plotsPerPage->setObjectName(QStringLiteral("plotsPerPage"));
    m_plotsPerPage->setAccessibleName(tr("Plots on a page"));
    for (const std::size_t count : plotsPerPageChoices)
        m_plotsPerPage->addItem(QString::number(count), static_cast<int>(count));
    auto* const plotsLabel = new QLabel(tr("P&lots:"), this);
    plotsLabel->setBuddy(m_plots);
    auto* const countLabel = new QLabel(tr("Plots &on a page:"), this);
    countLabel->setBuddy(m_plotsPerPage);
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(plotsLabel);
    layout->addWidget(m_plots);
    auto* const form = new QFormLayout;
    form->addRow(countLabel, m_plotsPerPage);
    layout->addLayout(form);
    makeButtons();
    connect(m_plots, &QListWidget::itemChanged, this, &PrintDialog::enableButtons);
}

PrintDialog::~PrintDialog() = default;

void PrintDialog::makeButtons()
{
    auto* const setUp = buttonOf(this, "pageSetup", tr("Page &Setup ..."));
    m_preview = buttonOf(this, "preview", tr("Pre&view ..."));
    m_print = buttonOf(this, "print", tr("&Print ..."));
    m_pdf = buttonOf(this, "pdf", tr("Write P&DF ..."));
    auto* const close = buttonOf(this, "close", tr("&Close"));
    m_print->setDefault(true);
    auto* const row = new QHBoxLayout;
    for (QPushButton* button : {setUp, m_preview, m_print, m_pdf, close})
        row->addWidget(button);
    static_cast<QVBoxLayout*>(layout())->addLayout(row);
    connect(setUp, &QPushButton::clicked, this, &PrintDialog::setUpPage);
    connect(m_preview, &QPushButton::clicked, this, &PrintDialog::preview);
    connect(m_print, &QPushButton::clicked, this, &PrintDialog::print);
    connect(m_pdf, &QPushButton::clicked, this, &PrintDialog::writePdf);
    connect(close, &QPushButton::clicked, this, &QDialog::accept);
}

void PrintDialog::showEvent(QShowEvent* event)
{
    listPlots();
    QDialog::showEvent(event);
}

void PrintDialog::listPlots()
{
    m_plots->clear();
    for (const EvmPlot* plot : m_document.plots().all()) {
        auto* const item = new QListWidgetItem(plot->properties().Caption(), m_plots);
        item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
        item->setCheckState(Qt::Checked);
    }
    m_plots->setCurrentRow(0);
    enableButtons();
}

void PrintDialog::enableButtons()
{
    const bool hasPlots = !job().plots.empty();
    for (QPushButton* button : {m_preview, m_print, m_pdf})
        button->setEnabled(hasPlots);
}

/// The dialog is modal, so that the items are the plots of the document.
PrintJob PrintDialog::job() const
{
    PrintJob job;
    const std::vector<EvmPlot*> plots = m_document.plots().all();
    for (int i = 0; i < m_plots->count(); ++i) {
        if (m_plots->item(i)->checkState() == Qt::Checked)
            job.plots.push_back(plots.at(static_cast<std::size_t>(i)));
    }
    job.plotsPerPage = static_cast<std::size_t>(m_plotsPerPage->currentData().toInt());
    job.workspace = m_document.texts().name;
    job.file = QString::fromStdString(m_document.path());
    job.date = dateText(QDateTime::currentDateTime());
    return job;
}

void PrintDialog::setUpPage()
{
    QPageSetupDialog dialog(m_printer.get(), this);
    dialog.setAccessibleName(dialog.windowTitle());
    dialog.exec();
}

void PrintDialog::preview()
{
    QPrintPreviewDialog dialog(m_printer.get(), this);
    dialog.setObjectName(QStringLiteral("printPreview"));
    dialog.setWindowTitle(tr("Print Preview"));
    dialog.setAccessibleName(dialog.windowTitle());
    connect(&dialog, &QPrintPreviewDialog::paintRequested, this, [this](QPrinter* printer) {
        guarded(m_user, printModule, [&] { printPlots(job(), *printer); });
    });
    dialog.exec();
}

/// The dialog stays open after a stop. The printer gets the pages drawn before.
void PrintDialog::print()
{
    QPrintDialog dialog(m_printer.get(), this);
    dialog.setAccessibleName(dialog.windowTitle());
    if (dialog.exec() != QDialog::Accepted)
        return;
    bool isStopped = false;
    guarded(m_user, printModule, [&] {
        const BusyStatus status(m_user, printing);
        isStopped = !printPlots(job(), *m_printer, shownProgress());
        if (isStopped)
            m_user.showNote("Stopped: only the first pages were printed");
    });
    if (!isStopped)
        accept();
}

Progress PrintDialog::shownProgress()
{
    return [this](std::size_t done, std::size_t total) { return m_user.showProgress(done, total); };
}

/// The file is written whole or not at all.
void PrintDialog::writePdf()
{
    guarded(m_user, printModule, [this] {
        const std::string name = m_document.texts().name.toStdString() + ".pdf";
        const auto answer = m_user.askSaveFile({std::string(pdfFilter), 1, false, name, false});
        if (!answer)
            return;
        const std::string path = withPdfExtension(*answer);
        if (fileExists(path)
            && !m_user.confirm("The file '" + resolvePath(path).name
                                   + "' already exists. Do you want to replace it?",
                               "Tarsil"))
            return;
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        QPdfWriter writer(&buffer);
        writer.setTitle(m_document.texts().name);
        writer.setPageLayout(m_printer->pageLayout());
        const BusyStatus status(m_user, printing);
        if (!printPlots(job(), writer, shownProgress())) {
            m_user.showNote("Stopped: no file was written");
            return;
        }
        const QByteArray& bytes = buffer.data();
        writeFile(path, {bytes.constData(), static_cast<std::size_t>(bytes.size())});
        m_user.showNote("The plots are in " + wholePath(path));
    });
}

} // namespace tarsil
