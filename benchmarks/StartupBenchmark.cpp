// SPDX-License-Identifier: Apache-2.0

// From the start of the process to the first painted frame: the program with a sample, compared
// with an empty window with three sub-windows. The benchmark starts itself as either of them.

#include "RatioTable.h"
#include "app/QtUserInterface.h"
#include "app/WndMain.h"
#include "plotwindow/EvmPlotView.h"
#include "plotwindow/WndEvolPlot.h"

#include <QApplication>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QProcess>
#include <QTemporaryDir>

#include <cstdlib>

namespace {

using namespace tarsil;

/// Quits the program when the watched widget has been painted.
class FirstFrame : public QObject
{
public:
    explicit FirstFrame(QWidget* watched) { watched->installEventFilter(this); }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint)
            QMetaObject::invokeMethod(qApp, &QCoreApplication::quit, Qt::QueuedConnection);
        return QObject::eventFilter(watched, event);
    }
};

int showEmptyWindow()
{
    QMainWindow window;
    auto* const area = new QMdiArea(&window);
    window.setCentralWidget(area);
    QWidget* last = nullptr;
    for (int i = 0; i < 3; ++i) {
        last = new QWidget;
        area->addSubWindow(last)->resize(300, 200);
        last->show();
    }
    const FirstFrame frame(last);
    window.resize(960, 720);
    window.show();
    return QApplication::exec();
}

int showProgram(const QString& file)
{
    QtUserInterface user;
    const QTemporaryDir folder; // options: none set
    wndMain window(
        user, [](const QString&) { return false; },
        OptionsStore(folder.filePath(QStringLiteral("tarsil.ini")).toStdString()));
    const FirstFrame frame(window.evolPlot().viewOf(*window.evolPlot().plots().front()));
    window.resize(960, 720);
    window.show();
    window.MDIForm_Load({file.toStdString()});
    return QApplication::exec();
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.value(1) == QStringLiteral("--empty"))
        return showEmptyWindow();
    if (arguments.value(1) == QStringLiteral("--program"))
        return showProgram(arguments.value(2));
    const QString sample = QStringLiteral(TARSIL_SAMPLES "/goland_clean_m040.ev2");
    const auto start = [&](const QStringList& mode) {
        if (QProcess::execute(arguments.first(), mode) != 0)
            std::exit(EXIT_FAILURE);
    };
    const auto times = benchmarks::bestOfTurns(
        15,
        [&] {
            start({QStringLiteral("--program"), sample});
        },
        [&] { start({QStringLiteral("--empty")}); });
    benchmarks::printRow("start to first painted frame, one sample",
                         "an empty window with three sub-windows", times, "<= 2");
    return 0;
}
