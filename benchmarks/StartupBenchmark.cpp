// SPDX-License-Identifier: Apache-2.0

// From the start of the process to the first painted frame of the program with a sample, compared
// with an empty window with three sub-windows: once where menu bar and sub-windows have the titles
// of the program's, in the same font, and once without any text, because the first text of a
// process loads the fonts of the system. The benchmark starts itself as each of them.

#include "RatioTable.h"
#include "app/QtUserInterface.h"
#include "app/WndMain.h"
#include "plotwindow/EvmPlotView.h"
#include "plotwindow/WndEvolPlot.h"

#include <QApplication>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QProcess>
#include <QTemporaryDir>

#include <cstdlib>

namespace {

using namespace tarsil;

/// Ends the process when the watched widget has been painted. Closing the windows and freeing
/// memory is no part of the start.
class FirstFrame : public QObject
{
public:
    explicit FirstFrame(QWidget* watched) { watched->installEventFilter(this); }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint)
            QMetaObject::invokeMethod(
                qApp, [] { std::_Exit(EXIT_SUCCESS); }, Qt::QueuedConnection);
        return QObject::eventFilter(watched, event);
    }
};

/// Options of which none is set.
OptionsStore optionsIn(const QString& folder)
{
    return OptionsStore((folder + QStringLiteral("/tarsil.ini")).toStdString());
}

bool withoutSpreadsheet(const QString& /*file*/)
{
    return false;
}

/// The titles of the main window's menus and child windows.
struct Titles
{
    QStringList menus;
    QStringList windows;
};

/// A window without a file; `folder` is for its options.
Titles titlesOfProgram(const QString& folder)
{
    QtUserInterface user;
    const wndMain window(user, withoutSpreadsheet, optionsIn(folder));
    Titles titles;
    for (const QAction* menu : window.menuBar()->actions())
        titles.menus << menu->text();
    for (const QMdiSubWindow* child : window.findChildren<QMdiSubWindow*>())
        titles.windows << child->windowTitle();
    return titles;
}

int showEmptyWindow(const Titles& titles)
{
    QMainWindow window;
    for (const QString& title : titles.menus)
        window.menuBar()->addMenu(title);
    auto* const area = new QMdiArea(&window);
    window.setCentralWidget(area);
    QWidget* last = nullptr;
    for (int i = 0; i < 3; ++i) {
        last = new QWidget;
        last->setWindowTitle(titles.windows.value(i));
        area->addSubWindow(last)->resize(300, 200);
        last->show();
    }
    const FirstFrame frame(last);
    window.resize(960, 720);
    window.show();
    return QApplication::exec();
}

int showProgram(const QString& file, const QString& folder)
{
    QtUserInterface user;
    wndMain window(user, withoutSpreadsheet, optionsIn(folder));
    user.attach(&window, &window.stBar());
    const FirstFrame frame(window.evolPlot().viewOf(*window.evolPlot().plots().front()));
    window.resize(960, 720);
    window.show();
    window.MDIForm_Load({file.toStdString()});
    return QApplication::exec();
}

void start(const QString& program, const QStringList& arguments)
{
    if (QProcess::execute(program, arguments) != 0)
        std::exit(EXIT_FAILURE);
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    const QString mode = arguments.value(1);
    if (mode == QStringLiteral("--bare"))
        return showEmptyWindow({});
    if (mode == QStringLiteral("--empty"))
        return showEmptyWindow({arguments.mid(5), arguments.mid(2, 3)});
    if (mode == QStringLiteral("--program"))
        return showProgram(arguments.value(2), arguments.value(3));

    const QTemporaryDir folder;
    const Titles titles = titlesOfProgram(folder.path());
    const QStringList program {QStringLiteral("--program"),
                               QStringLiteral(TARSIL_SAMPLES "/goland_clean_m040.ev2"),
                               folder.path()};
    const auto compare = [&](const QStringList& reference, const char* text, const char* aim) {
        const auto times = benchmarks::bestOfTurns(
            50, [&] { start(arguments.first(), program); },
            [&] { start(arguments.first(), reference); });
        benchmarks::printRow("start to first painted frame, one sample", text, times, aim);
    };
    compare(QStringList(QStringLiteral("--empty")) + titles.windows + titles.menus,
            "an empty window with three sub-windows and the same titles", "<= 1.6");
    compare({QStringLiteral("--bare")}, "an empty window with three sub-windows, no text", "");
    return 0;
}
