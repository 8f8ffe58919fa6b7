#pragma once

#include "VirtualDisplay.h"

#include <QProcess>

namespace tarsil::test {

/// The program on a display, with a home folder of its own; it is asked to end with the object.
class Program
{
public:
    Program(const VirtualDisplay& display, const QStringList& arguments);
    ~Program();
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    bool isRunning();

    /// Waits for the end; the exit status, or -1 when the program goes on or crashed.
    int exitStatus();

    /// The user's folder.
    const TemporaryFolder& home() const { return m_home; }

private:
    TemporaryFolder m_home;
    QProcess m_process;
};

/// Whether the full colours of the first three curves are there: a line along the pixels shows them
/// unmixed.
bool showsCurves(const QImage& screen);

} // namespace tarsil::test
