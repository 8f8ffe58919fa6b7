// SPDX-License-Identifier: Apache-2.0

// Actions of a user in the main window with 1000 evolutions and 500 curves: the time until all
// windows are painted again.

#include "GeneratedFiles.h"
#include "RatioTable.h"
#include "app/WndMain.h"
#include "document/Document.h"
#include "support/SilentUser.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QItemSelectionModel>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <string>
#include <vector>

namespace {

using namespace tarsil;
using namespace tarsil::benchmarks;

constexpr int fileCount = 1000;
constexpr int modeCount = 4;
constexpr int speedCount = 40;
constexpr int removedCount = 900;

/// A user who is told that not all evolutions are drawn.
class InformedUser : public test::SilentUser
{
public:
    void showMessage(const std::string& /*text*/, const std::string& /*title*/,
                     MessageIcon /*icon*/) override
    { }
};

/// Does something and waits until it is painted.
void measure(const char* action, const std::function<void()>& work)
{
    const double time = seconds([&] {
        work();
        QApplication::processEvents();
    });
    std::array<char, 32> text;
    std::snprintf(text.data(), text.size(), "%.3f s", time);
    printRow(action, "", text.data(), "<= 0.3 s");
}

template <class Type>
Type& child(wndMain& window, const char* name)
{
    auto* const found = window.findChild<Type*>(QString::fromLatin1(name));
    if (found == nullptr) {
        std::fprintf(stderr, "%s is missing\n", name);
        std::exit(EXIT_FAILURE);
    }
    return *found;
}

std::vector<std::string> writeFiles(const QTemporaryDir& folder)
{
    std::vector<std::string> files;
    for (int i = 0; i < fileCount; ++i) {
        files.push_back(folder.filePath(QStringLiteral("case%1.ev2").arg(i)).toStdString());
        writeEvolution(files.back(), Layout::Sections, modeCount, speedCount);
    }
    return files;
}

void measureCurves(wndMain& window)
{
    auto& grid = child<QAbstractItemView>(window, "flxSerieViewer");
    constexpr int modeColumn = 3;
    measure("select all of 500 curves", [&] {
        grid.selectionModel()->select(
            {grid.model()->index(0, modeColumn),
             grid.model()->index(grid.model()->rowCount() - 1, modeColumn)},
            QItemSelectionModel::ClearAndSelect);
    });
    measure("Mode + for all", [&] { child<QPushButton>(window, "cmdIncMode").click(); });
    measure("undo it", [&] { child<QAction>(window, "mnuUndo").trigger(); });
    measure("filter the curves",
            [&] { child<QLineEdit>(window, "txtRowFilter").setText(QStringLiteral("case10")); });
    child<QLineEdit>(window, "txtRowFilter").clear();
}

void measureEvolutions(wndMain& window)
{
    measure("tick all of 1000 evolutions", [&] { child<QAction>(window, "popTickAll").trigger(); });
    measure("filter the evolutions", [&] {
        child<QLineEdit>(window, "txtEvolutionFilter").setText(QStringLiteral("case10"));
    });
    measure("remove the filter", [&] { child<QLineEdit>(window, "txtEvolutionFilter").clear(); });
    std::vector<EVM*> leaving;
    for (const auto& evolution : window.document().evolutions().all()) {
        if (leaving.size() < removedCount)
            leaving.push_back(evolution.get());
    }
    measure("remove 900 of 1000 evolutions, with their curves", [&] {
        window.document().remove(leaving);
        window.document().history().note(QStringLiteral("Remove Modal Evolution"));
    });
    measure("undo it", [&] { child<QAction>(window, "mnuUndo").trigger(); });
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    const QTemporaryDir folder;
    const std::vector<std::string> files = writeFiles(folder);
    InformedUser user;
    wndMain window(
        user, [](const QString&) { return true; },
        OptionsStore(folder.filePath(QStringLiteral("tarsil.ini")).toStdString()));
    window.resize(1400, 900);
    window.show();
    QApplication::processEvents();
    measure("open 1000 evolutions and draw 500 curves", [&] { window.MDIForm_Load(files); });
    measureCurves(window);
    measureEvolutions(window);
}
