// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "VirtualDisplay.h"

#include <QProcess>
#include <QRect>
#include <QStringList>

namespace tarsil::test {

/// The program on a display, with its own home folder. A plug-in of the tests answers where things
/// are on its screen. Destruction ends it.
class Program
{
public:
    Program(const VirtualDisplay& display, const QStringList& arguments);
    ~Program();
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    bool isRunning();

    /// Waits for the end. Returns the exit status, or -1 when the program still runs or crashed.
    int exitStatus();

    /// Where something is on the screen at the moment (see probe/ScreenSearch.h for requests);
    /// empty when it is not there, or the program does not answer.
    QRect find(const QStringList& request) const;

    /// The home folder.
    const TemporaryFolder& home() const { return m_home; }

private:
    std::string socketPath() const { return m_home.file("probe"); }

    TemporaryFolder m_home;
    QProcess m_process;
};

/// Whether the full colours of the first three curves are visible: horizontal and vertical lines
/// show them unmixed.
bool showsCurves(const QImage& screen);

} // namespace tarsil::test
