// SPDX-License-Identifier: Apache-2.0
#include "Program.h"

#include <QProcessEnvironment>
#include <QSet>

#include <array>
#include <cstring>

#include <sys/socket.h>
#include <sys/time.h>
#include <sys/un.h>
#include <unistd.h>

namespace tarsil::test {

namespace {

constexpr int endTimeout = 30000; // milliseconds; reached only if the program hangs

/// Sends a line to a socket and returns the answer; empty on a failure.
QByteArray ask(const std::string& path, const QByteArray& line)
{
    const int connection = socket(AF_UNIX, SOCK_STREAM, 0);
    const timeval patience {10, 0};
    setsockopt(connection, SOL_SOCKET, SO_RCVTIMEO, &patience, sizeof patience);
    sockaddr_un address {};
    address.sun_family = AF_UNIX;
    std::strncpy(address.sun_path, path.c_str(), sizeof address.sun_path - 1);
    QByteArray answer;
    if (connect(connection, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0
        && send(connection, line.constData(), static_cast<std::size_t>(line.size()), MSG_NOSIGNAL)
            == line.size()) {
        std::array<char, 64> piece {};
        ssize_t size = 0;
        while ((size = read(connection, piece.data(), piece.size())) > 0)
            answer.append(piece.data(), size);
    }
    close(connection);
    return answer;
}

} // namespace

Program::Program(const VirtualDisplay& display, const QStringList& arguments)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DISPLAY"), display.name());
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
    environment.insert(QStringLiteral("HOME"), QString::fromStdString(m_home.path().string()));
    environment.remove(QStringLiteral("XDG_CONFIG_HOME")); // settings are below HOME
    // With an empty PATH no other program opens the workbook over the test.
    environment.insert(QStringLiteral("PATH"), QString());
    environment.insert(QStringLiteral("QT_PLUGIN_PATH"), QStringLiteral(TARSIL_PROBE));
    environment.insert(QStringLiteral("QT_QPA_GENERIC_PLUGINS"),
                       QStringLiteral("tarsilprobe:") + QString::fromStdString(socketPath()));
    m_process.setProcessEnvironment(environment);
    m_process.setProcessChannelMode(QProcess::ForwardedChannels);
    m_process.start(QStringLiteral(TARSIL_PROGRAM), arguments);
}

Program::~Program()
{
    constexpr int patience = 2000; // milliseconds
    m_process.terminate();
    if (m_process.state() != QProcess::NotRunning && !m_process.waitForFinished(patience))
        m_process.kill();
    m_process.waitForFinished(endTimeout);
}

QRect Program::find(const QStringList& request) const
{
    const QList<QByteArray> numbers =
        ask(socketPath(), request.join(u'\t').toUtf8() + '\n').split(' ');
    constexpr int count = 4;
    return numbers.size() == count
        ? QRect(numbers[0].toInt(), numbers[1].toInt(), numbers[2].toInt(), numbers[3].toInt())
        : QRect();
}

bool Program::isRunning()
{
    return !m_process.waitForFinished(0) && m_process.state() != QProcess::NotRunning;
}

int Program::exitStatus()
{
    const bool hasEnded =
        m_process.state() == QProcess::NotRunning || m_process.waitForFinished(endTimeout);
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
