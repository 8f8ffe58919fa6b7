// SPDX-License-Identifier: Apache-2.0

// A plug-in that answers the tests where something is on the screen of the real program. Input goes
// through the display, as a user's. It is built with the tests and never installed.

#include "ScreenSearch.h"

#include <QGenericPlugin>
#include <QSocketNotifier>

#include <array>
#include <cstring>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace tarsil::test {

/// Listens on a socket. Each connection sends a request, its parts separated by tabs, up to a line
/// feed, and gets "x y width height".
class ProbeServer : public QObject
{
public:
    explicit ProbeServer(const QString& path) : m_socket(socket(AF_UNIX, SOCK_STREAM, 0))
    {
        sockaddr_un address {};
        address.sun_family = AF_UNIX;
        const QByteArray name = path.toLocal8Bit();
        std::strncpy(address.sun_path, name.constData(), sizeof address.sun_path - 1);
        const auto* const where = reinterpret_cast<const sockaddr*>(&address);
        constexpr int waiting = 4;
        if (bind(m_socket, where, sizeof address) != 0 || listen(m_socket, waiting) != 0)
            qFatal("the probe cannot listen");
        auto* const notifier = new QSocketNotifier(m_socket, QSocketNotifier::Read, this);
        connect(notifier, &QSocketNotifier::activated, this, &ProbeServer::answer);
    }
    ~ProbeServer() override { close(m_socket); }

private:
    void answer()
    {
        const int connection = accept(m_socket, nullptr, nullptr);
        QByteArray request;
        std::array<char, 256> piece {};
        while (!request.endsWith('\n')) {
            const ssize_t size = read(connection, piece.data(), piece.size());
            if (size <= 0)
                break;
            request.append(piece.data(), size);
        }
        const QRect found = findOnScreen(QString::fromUtf8(request.trimmed()).split(u'\t'));
        const QByteArray text = QStringLiteral("%1 %2 %3 %4")
                                    .arg(found.x())
                                    .arg(found.y())
                                    .arg(found.width())
                                    .arg(found.height())
                                    .toUtf8();
        if (write(connection, text.constData(), static_cast<std::size_t>(text.size())) < 0)
            qWarning("the probe cannot answer");
        close(connection);
    }

    int m_socket;
};

class ProbePlugin : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "probe.json")

public:
    /// `path` is that of the socket.
    QObject* create(const QString& /*name*/, const QString& path) override
    {
        return new ProbeServer(path);
    }
};

} // namespace tarsil::test

#include "ProbePlugin.moc"
