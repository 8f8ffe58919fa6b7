#include "app/PlotWindow.h"

#include <QApplication>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("tarsil"));
    QApplication::setApplicationDisplayName(QStringLiteral("Tarsil"));
    QApplication::setDesktopFileName(QStringLiteral("tarsil"));
    tarsil::PlotWindow window;
    window.open(QApplication::arguments().mid(1));
    window.show();
    return QApplication::exec();
}
