#include "Program.h"

#include <QProcessEnvironment>
#include <QSet>

namespace tarsil::test {

Program::Program(const VirtualDisplay& display, const QStringList& arguments)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DISPLAY"), display.name());
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
    environment.insert(QStringLiteral("HOME"), QString::fromStdString(m_home.path().string()));
    environment.remove(QStringLiteral("XDG_CONFIG_HOME")); // settings are below HOME
    // With an empty PATH no other program opens the workbook over the test.
    environment.insert(QStringLiteral("PATH"), QString());
    m_process.setProcessEnvironment(environment);
    m_process.setProcessChannelMode(QProcess::ForwardedChannels);
    m_process.start(QStringLiteral(TARSIL_PROGRAM), arguments);
}

Program::~Program()
{
    m_process.terminate();
    if (!m_process.waitForFinished())
        m_process.kill();
}

bool Program::isRunning()
{
    return !m_process.waitForFinished(0) && m_process.state() != QProcess::NotRunning;
}

int Program::exitStatus()
{
    const bool hasEnded = m_process.state() == QProcess::NotRunning || m_process.waitForFinished();
    return hasEnded && m_process.exitStatus() == QProcess::NormalExit ? m_process.exitCode() : -1;
}

bool showsCurves(const QImage& screen)
{
    QSet<QRgb> colors;
    for (int row = 0; row < screen.height(); ++row) {
        for (int column = 0; column < screen.width(); ++column)
            colors.insert(screen.pixel(column, row) | 0xFF000000U);
    }
    return colors.contains(qRgb(128, 128, 128)) && colors.contains(qRgb(0, 0, 255))
        && colors.contains(qRgb(0, 128, 0));
}

} // namespace tarsil::test
