#include "app/QtUserInterface.h"

#include "app/StatusPanels.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QInputDialog>
#include <QMessageBox>

#include <algorithm>

namespace tarsil {

namespace {

/// A dialog over the filters, the wanted one chosen.
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

std::vector<std::string> chosenFiles(QFileDialog& dialog)
{
    std::vector<std::string> files;
    if (dialog.exec() == QDialog::Accepted) {
        for (const QString& file : dialog.selectedFiles())
            files.push_back(QDir::toNativeSeparators(file).toStdString());
    }
    return files;
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

void QtUserInterface::attach(QWidget* window, StatusPanels* panels)
{
    m_window = window;
    m_panels = panels;
}

void QtUserInterface::showMessage(const std::string& text, const std::string& title,
                                  MessageIcon icon)
{
    QString lines = QString::fromStdString(text);
    lines.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\r', u'\n');
    const QMessageBox::Icon shown = icon == MessageIcon::Critical ? QMessageBox::Critical
        : icon == MessageIcon::Exclamation                        ? QMessageBox::Warning
                                                                  : QMessageBox::NoIcon;
    QMessageBox box(shown, QString::fromStdString(title), lines, QMessageBox::Ok,
                    QApplication::activeModalWidget() ? QApplication::activeModalWidget()
                                                      : m_window);
    box.setTextFormat(Qt::PlainText);
    box.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    box.exec();
}

bool QtUserInterface::confirm(const std::string& question, const std::string& title)
{
    QMessageBox box(QMessageBox::Question, QString::fromStdString(title),
                    QString::fromStdString(question), QMessageBox::Yes | QMessageBox::No, m_window);
    box.setTextFormat(Qt::PlainText);
    return box.exec() == QMessageBox::Yes;
}

std::optional<std::string> QtUserInterface::askText(const std::string& prompt,
                                                    const std::string& initial)
{
    bool isAnswered = false;
    const QString text =
        QInputDialog::getText(m_window, QStringLiteral("Tarsil"), QString::fromStdString(prompt),
                              QLineEdit::Normal, QString::fromStdString(initial), &isAnswered);
    return isAnswered ? std::optional(text.toStdString()) : std::nullopt;
}

std::vector<std::string> QtUserInterface::askOpenFiles(const FileQuestion& question)
{
    QFileDialog dialog(m_window);
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    dialog.setFileMode(question.takesSeveral ? QFileDialog::ExistingFiles
                                             : QFileDialog::ExistingFile);
    prepare(dialog, question);
    return chosenFiles(dialog);
}

std::optional<std::string> QtUserInterface::askSaveFile(const FileQuestion& question)
{
    QFileDialog dialog(m_window);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setOption(QFileDialog::DontConfirmOverwrite, !question.confirmsReplacing);
    prepare(dialog, question);
    const std::vector<std::string> files = chosenFiles(dialog);
    return files.empty() ? std::nullopt : std::optional(files.front());
}

void QtUserInterface::showStatus(std::string_view text)
{
    if (m_panels != nullptr)
        m_panels->setText(QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())));
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void QtUserInterface::showProgress(std::size_t done, std::size_t total)
{
    if (m_panels != nullptr)
        m_panels->setProgress(done, total);
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

} // namespace tarsil
