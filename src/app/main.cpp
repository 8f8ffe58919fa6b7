#include "app/PlotWindow.h"

#include <QApplication>
#include <QCommandLineParser>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("tarsil"));
    QApplication::setApplicationDisplayName(QStringLiteral("Tarsil"));
    QApplication::setDesktopFileName(QStringLiteral("tarsil"));
    QApplication::setApplicationVersion(QStringLiteral(TARSIL_VERSION));
    QCommandLineParser commandLine;
    commandLine.setApplicationDescription(
        QStringLiteral("Shows the V-g-f plot of modal evolutions (.evm and .ev2 files)."));
    commandLine.addHelpOption();
    commandLine.addVersionOption();
    commandLine.addPositionalArgument(QStringLiteral("FILE"), QStringLiteral("A modal evolution."),
                                      QStringLiteral("[FILE...]"));
    commandLine.process(application);
    tarsil::PlotWindow window;
    window.open(commandLine.positionalArguments());
    window.show();
    return QApplication::exec();
}
