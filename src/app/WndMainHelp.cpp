// SPDX-License-Identifier: Apache-2.0

// The menu "Help" of the main window.

#include "app/SharedFiles.h"
#include "app/WndGuide.h"
#include "app/WndMain.h"

#include <QCoreApplication>

namespace tarsil {

/// The guide that was installed with the program, so that it needs no network.
void wndMain::showGuide()
{
    if (!m_guide)
        m_guide =
            std::make_unique<wndGuide>(sharedFile(guideFolder, QStringLiteral("guide.md")), this);
    m_guide->show();
    m_guide->raise();
    m_guide->activateWindow();
}

void wndMain::openSamples()
{
    const QString samples = sharedFile(samplesFolder, QStringLiteral("goland.tsw"));
    openWorkspace(samples.toStdString());
}

void wndMain::showAbout()
{
    m_userInterface.showMessage(
        "Tarsil " + QCoreApplication::applicationVersion().toStdString()
            + ": post-processing of flutter analyses.\n\n"
              "Licensed under the Apache License, Version 2.0.\n\n"
              "Built with Qt "
            + qVersion()
            + " (GNU Lesser General Public License 3), libzip (BSD licence) and libacl (GNU Lesser "
              "General Public License 2.1).",
        "About Tarsil", MessageIcon::None);
}

void wndMain::showHelp()
{
    m_userInterface.showMessage(
        "Ctrl+N, Ctrl+O, Ctrl+S  start, open and save a workspace\n"
        "Ctrl+Shift+O  adds modal evolutions\n"
        "Ctrl+P  prints plots\n"
        "Files dropped on the window are opened, those of solvers imported\n"
        "Ctrl+Z, Ctrl+Shift+Z  undo the last change, and make it again\n"
        "Ctrl+C  on a plot copies its picture\n"
        "Ctrl+Q  quits the program\n\n"
        "Texts of a plot: double click, or Tab and F2, to edit one, Ctrl+Return to accept it; "
        "click and drag legend or subtitle, or use the arrow keys, to move it (Shift for ten "
        "pixels).\n"
        "Grid of Data Control: + and - in the column \"Mode\" raise and lower modes, Alt+Up and "
        "Alt+Down move rows, Del removes them; Ctrl+C copies cells for a spreadsheet, Ctrl+V "
        "pastes "
        "them, Ctrl+D fills down. The pop-up sorts the rows.\n"
        "Plot: drag a rectangle or turn the wheel to zoom (Ctrl: speeds, Shift: values), drag with "
        "the middle button to move the curves, double click an axis to edit it; Home fits all "
        "axes.\n"
        "Curves: click one, or walk along with the arrow keys; Del removes it, the right button "
        "offers its line, tag, mode and legend. Ctrl+H hides the selected curves, Ctrl+Shift+H "
        "shows the selected rows of Data Control again; the menu Edit shows all hidden ones.\n"
        "Right button on a plot: its scales, reference speeds, damping lines and flutter speeds.\n"
        "Reference speeds are measured from the left end of the speed axis: their position is "
        "right when the axis begins at 0. Otherwise the status bar shows how far they are off.\n"
        "Rest the pointer on a plot to read the nearest curve.",
        "Tarsil", MessageIcon::None);
}

} // namespace tarsil
