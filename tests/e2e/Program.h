#pragma once

#include "VirtualDisplay.h"

#include <QProcess>

namespace tarsil::test {

/// The program on a display, with its own home folder. Destruction asks it to end.
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

    /// The home folder.
    const TemporaryFolder& home() const { return m_home; }

private:
    TemporaryFolder m_home;
    QProcess m_process;
};

/// Whether the full colours of the first three curves are visible: horizontal and vertical lines
/// show them unmixed.
bool showsCurves(const QImage& screen);

} // namespace tarsil::test
