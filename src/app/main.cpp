// SPDX-License-Identifier: Apache-2.0
#include "app/FileOpener.h"
#include "app/GuardedApplication.h"
#include "app/QtUserInterface.h"
#include "app/WndMain.h"
#include "base/files/TemporaryFile.h"
#include "formats/FormatTable.h"

#include <QCommandLineParser>
#include <QIcon>
#include <QScreen>

namespace {

std::vector<std::string> filesOf(const QApplication& application)
{
    QCommandLineParser commandLine;
    commandLine.setApplicationDescription(
        QStringLiteral("Shows the V-g-f plots of modal evolutions (%1 files) and finds "
                       "their flutter speeds. Opens workspaces (.tsw files), which keep plots.")
            .arg(QString::fromStdString(tarsil::formatExtensions("and"))));
    commandLine.addHelpOption();
    commandLine.addVersionOption();
    commandLine.addPositionalArgument(QStringLiteral("FILE"),
                                      QStringLiteral("A modal evolution, or one workspace."),
                                      QStringLiteral("[FILE...]"));
    commandLine.process(application);
    std::vector<std::string> files;
    for (const QString& file : commandLine.positionalArguments())
        files.push_back(file.toStdString());
    return files;
}

} // namespace

int main(int argc, char** argv)
{
    tarsil::removeTemporariesOnSignals();
    tarsil::QtUserInterface userInterface;
    const tarsil::GuardedApplication application(argc, argv, userInterface);
    QApplication::setApplicationName(QStringLiteral("tarsil"));
    QApplication::setDesktopFileName(QStringLiteral("tarsil"));
    QApplication::setApplicationVersion(QStringLiteral(TARSIL_VERSION));
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/tarsil.svg")));
    const std::vector<std::string> files = filesOf(application);
    const tarsil::OptionsStore store(tarsil::OptionsStore::defaultPath());
    tarsil::wndMain window(userInterface, tarsil::openSpreadsheet, store);
    userInterface.attach(&window, &window.stBar());
    userInterface.rememberFolders(store.memory());
    window.resize(QSize(1280, 800).boundedTo(window.screen()->availableSize()));
    window.restoreSize();
    window.show();
    window.MDIForm_Load(files);
    return QApplication::exec();
}
