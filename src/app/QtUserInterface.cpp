// SPDX-License-Identifier: Apache-2.0
#include "app/QtUserInterface.h"

#include "app/OperationInput.h"
#include "app/StatusPanels.h"
#include "base/files/PathNames.h"
#include "base/user/BusyStatus.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QToolButton>

#include <algorithm>

namespace tarsil {

namespace {

QString textOf(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

/// Sets the filters of a dialog and selects the requested one.
void prepare(QFileDialog& dialog, const FileQuestion& question)
{
    const QStringList filters = nameFilters(question.filter);
    dialog.setOption(QFileDialog::HideNameFilterDetails);
    dialog.setNameFilters(filters);
    const auto index = static_cast<qsizetype>(std::max<std::size_t>(question.filterIndex, 1)) - 1;
    if (index < filters.size())
        dialog.selectNameFilter(filters[index]);
    if (!question.fileName.empty())
        dialog.selectFile(QString::fromStdString(question.fileName));
}

/// The extension that the chosen entry of the filter appends to names, with the dot; empty for
/// none.
QString extensionOf(const QFileDialog& dialog, const FileQuestion& question)
{
    const QStringList filters = nameFilters(question.filter);
    const QString chosen = dialog.selectedNameFilter(); // with or without the hidden details
    qsizetype entry = 1;
    while (entry <= filters.size() && !filters[entry - 1].startsWith(chosen))
        ++entry;
    const auto first = static_cast<qsizetype>(question.firstExtending);
    if (first == 0 || entry < first || entry > filters.size())
        return {};
    const QString pattern = QString::fromStdString(question.filter).split(u'|').at(2 * entry - 1);
    return pattern.mid(1); // without the asterisk
}

/// Appends the extension when another entry of the filter is chosen. Qt itself replaces the
/// extension of an entry chosen before.
void followFilter(QFileDialog& dialog, const FileQuestion& question)
{
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog,
                     [&dialog, question](const QString& /*filter*/) {
                         const QFileInfo file(dialog.selectedFiles().value(0));
                         const QString extension = extensionOf(dialog, question);
                         const QString name = file.fileName();
                         if (!file.isDir() && !name.endsWith(extension, Qt::CaseInsensitive))
                             dialog.selectFile(name + extension);
                     });
}

/// The nearest widget around a field that can have the focus, such as the tree of a label that is
/// edited; null when there is none.
QWidget* holderOf(const QWidget* field)
{
    QWidget* holder = field != nullptr ? field->parentWidget() : nullptr;
    while (holder != nullptr && holder->focusPolicy() == Qt::NoFocus)
        holder = holder->parentWidget();
    return holder;
}

/// Runs a dialog and then restores the focus. A message can close the field that has it; what
/// contains the field gets the focus then. Not every window manager activates the parent of the
/// dialog again; the main window would then receive keys that were meant for a number field.
int execOver(QWidget* asker, QDialog& dialog)
{
    const QPointer<QWidget> window(asker);
    const QPointer<QWidget> field(QApplication::focusWidget());
    const QPointer<QWidget> holder(holderOf(field));
    const int result = dialog.exec();
    if (window == nullptr || !window->isVisible())
        return result;
    window->activateWindow();
    for (QWidget* const widget : {field.data(), holder.data()}) {
        if (widget != nullptr && widget->window() == window && widget->isVisible()) {
            widget->setFocus();
            break;
        }
    }
    return result;
}

/// The button that the user presses. Save is the default, and has a key like Yes and No.
int askWithButtons(QWidget* asker, const std::string& question, const std::string& title,
                   QMessageBox::StandardButtons buttons)
{
    QMessageBox box(QMessageBox::Question, QString::fromStdString(title),
                    QString::fromStdString(question), buttons, asker);
    box.setTextFormat(Qt::PlainText);
    if (buttons.testFlag(QMessageBox::Save)) {
        box.setDefaultButton(QMessageBox::Save);
        box.button(QMessageBox::Save)->setText(QObject::tr("&Save"));
        box.button(QMessageBox::Discard)->setText(QObject::tr("&Discard"));
    }
    return execOver(asker, box);
}

} // namespace

QStringList nameFilters(const std::string& filter)
{
    const QStringList pieces = QString::fromStdString(filter).split(u'|');
    QStringList filters;
    for (qsizetype i = 0; i + 1 < pieces.size(); i += 2) {
        QString pattern = pieces[i + 1];
        pattern.replace(u';', u' ');
        if (pattern == QStringLiteral("*.*"))
            pattern = QStringLiteral("*"); // also files without an extension
        filters.append(pieces[i] + QStringLiteral(" (") + pattern + u')');
    }
    return filters;
}

QtUserInterface::QtUserInterface(const ProgressTimes& times) : m_times(times) { }

QtUserInterface::~QtUserInterface() = default;

void QtUserInterface::attach(QWidget* window, StatusPanels* panels)
{
    m_window = window;
    m_panels = panels;
    m_input = panels != nullptr ? std::make_unique<OperationInput>(panels->stopButton()) : nullptr;
}

/// A name with a folder, such as that of the workspace that is saved again, decides itself.
void QtUserInterface::goToLastFolder(QFileDialog& dialog, const FileQuestion& question) const
{
    if (!m_store || QFileInfo(QString::fromStdString(question.fileName)).isAbsolute())
        return;
    for (const RememberedPair& pair : m_store->pairsIfReadable(remembered::folders)) {
        if (pair.key == QString::fromStdString(question.filter) && QFileInfo(pair.value).isDir())
            dialog.setDirectory(pair.value);
    }
}

std::vector<std::string> QtUserInterface::chosenFiles(QWidget* asker, QFileDialog& dialog,
                                                      const FileQuestion& question)
{
    goToLastFolder(dialog, question);
    prepare(dialog, question);
    if (execOver(asker, dialog) != QDialog::Accepted)
        return {};
    if (m_store)
        m_store->rememberQuietly(
            remembered::folders,
            {{QString::fromStdString(question.filter), dialog.directory().absolutePath()}});
    std::vector<std::string> files;
    for (const QString& file : dialog.selectedFiles())
        files.push_back(QDir::toNativeSeparators(file).toStdString());
    return files;
}

QWidget* QtUserInterface::asker() const
{
    if (QWidget* const modal = QApplication::activeModalWidget())
        return modal;
    QWidget* const active = QApplication::activeWindow();
    return active != nullptr ? active : m_window;
}

void QtUserInterface::showMessage(const std::string& text, const std::string& title,
                                  MessageIcon icon)
{
    QString lines = QString::fromStdString(text);
    lines.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\r', u'\n');
    const QMessageBox::Icon shown = icon == MessageIcon::Critical ? QMessageBox::Critical
        : icon == MessageIcon::Exclamation                        ? QMessageBox::Warning
                                                                  : QMessageBox::NoIcon;
    QWidget* const window = asker();
    QMessageBox box(shown, QString::fromStdString(title), lines, QMessageBox::Ok, window);
    box.setTextFormat(Qt::PlainText);
    box.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    execOver(window, box);
}

bool QtUserInterface::confirm(const std::string& question, const std::string& title)
{
    return askWithButtons(asker(), question, title, QMessageBox::Yes | QMessageBox::No)
        == QMessageBox::Yes;
}

Unsaved QtUserInterface::askToSave(const std::string& question, const std::string& title)
{
    const int answer = askWithButtons(
        asker(), question, title, QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel);
    if (answer == QMessageBox::Save)
        return Unsaved::Save;
    return answer == QMessageBox::Discard ? Unsaved::Discard : Unsaved::Cancel;
}

std::optional<std::string> QtUserInterface::askText(const std::string& prompt,
                                                    const std::string& title,
                                                    const std::string& initial)
{
    QWidget* const window = asker();
    QInputDialog dialog(window);
    dialog.setWindowTitle(QString::fromStdString(title));
    dialog.setLabelText(QString::fromStdString(prompt));
    dialog.setTextValue(QString::fromStdString(initial));
    const bool isAnswered = execOver(window, dialog) == QDialog::Accepted;
    return isAnswered ? std::optional(dialog.textValue().toStdString()) : std::nullopt;
}

std::optional<std::size_t> QtUserInterface::askChoice(const std::string& prompt,
                                                      const std::string& title,
                                                      const std::vector<std::string>& choices)
{
    QStringList items;
    for (const std::string& choice : choices)
        items.append(QString::fromStdString(choice));
    QWidget* const window = asker();
    QInputDialog dialog(window);
    dialog.setWindowTitle(QString::fromStdString(title));
    dialog.setLabelText(QString::fromStdString(prompt));
    dialog.setComboBoxItems(items);
    if (execOver(window, dialog) != QDialog::Accepted)
        return std::nullopt;
    return static_cast<std::size_t>(items.indexOf(dialog.textValue()));
}

std::vector<std::string> QtUserInterface::askOpenFiles(const FileQuestion& question)
{
    QWidget* const window = asker();
    QFileDialog dialog(window);
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    dialog.setFileMode(question.takesSeveral ? QFileDialog::ExistingFiles
                                             : QFileDialog::ExistingFile);
    return chosenFiles(window, dialog, question);
}

std::optional<std::string> QtUserInterface::askSaveFile(const FileQuestion& question)
{
    QWidget* const window = asker();
    QFileDialog dialog(window);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setOption(QFileDialog::DontConfirmOverwrite, !question.confirmsReplacing);
    followFilter(dialog, question);
    const std::vector<std::string> files = chosenFiles(window, dialog, question);
    if (files.empty())
        return std::nullopt;
    const QString extension = extensionOf(dialog, question);
    if (QString::fromStdString(files.front()).endsWith(extension, Qt::CaseInsensitive))
        return files.front();
    const std::string extended = files.front() + extension.toStdString();
    const bool mayWrite = !question.confirmsReplacing || !fileExists(extended)
        || confirm("The file '" + extended + "' already exists. Do you want to replace it?",
                   "Tarsil");
    return mayWrite ? std::optional(extended) : std::nullopt;
}

std::optional<std::string> QtUserInterface::askFolder(const std::string& initial)
{
    QWidget* const window = asker();
    QFileDialog dialog(window);
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setOption(QFileDialog::ShowDirsOnly);
    dialog.setDirectory(QString::fromStdString(initial));
    if (execOver(window, dialog) != QDialog::Accepted)
        return std::nullopt;
    return QDir::toNativeSeparators(dialog.selectedFiles().front()).toStdString();
}

void QtUserInterface::showStatus(std::string_view text)
{
    endProgress();
    if (text == readyStatus)
        m_sinceReady.start();
    else if (!m_sinceReady.isValid() || m_sinceReady.elapsed() > m_times.interval.count())
        m_sinceStatus.start(); // otherwise the operation continues that before
    if (m_panels == nullptr)
        return;
    m_panels->setText(textOf(text));
    m_input->paintWindows();
}

void QtUserInterface::showNote(std::string_view text)
{
    if (m_panels != nullptr)
        m_panels->setNote(textOf(text));
}

void QtUserInterface::beginCommand()
{
    if (m_panels == nullptr)
        return;
    m_panels->setText(textOf(readyStatus));
    m_panels->setNote(QString());
}

bool QtUserInterface::showProgress(std::size_t done, std::size_t total)
{
    if (done == total) {
        endProgress();
        return true;
    }
    if (!m_sinceStatus.isValid())
        m_sinceStatus.start();
    if (m_sinceUpdate.isValid() && m_sinceUpdate.elapsed() < m_times.interval.count())
        return true;
    m_sinceUpdate.start();
    const bool isStopped = m_panels != nullptr && isStoppedMeanwhile(done, total);
    if (isStopped)
        endProgress();
    return !isStopped;
}

/// What arrives before the bar is painted is no answer to it.
bool QtUserInterface::isStoppedMeanwhile(std::size_t done, std::size_t total)
{
    const bool wasShown = m_panels->stopButton().isVisible();
    if (m_sinceStatus.elapsed() >= m_times.delay.count())
        m_panels->setProgress(done, total);
    if (wasShown)
        return m_input->paintStoppable();
    m_input->paintWindows();
    return false;
}

void QtUserInterface::endProgress()
{
    m_sinceUpdate.invalidate();
    if (m_panels != nullptr)
        m_panels->setProgress(1, 1);
}

} // namespace tarsil
