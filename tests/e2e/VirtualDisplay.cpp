// SPDX-License-Identifier: Apache-2.0
#include "VirtualDisplay.h"

#include <QDeadlineTimer>
#include <QThread>
#include <QtEndian>

#include <cstring>

namespace tarsil::test {

namespace {

constexpr int startTimeout = 30000; // milliseconds; reached only if the server hangs
constexpr int screenTimeout = 30000;

/// The required fields of an X window dump (X11/XWDFile.h), 32 bits each, big-endian.
enum DumpField {
    HeaderSize = 0,
    PixmapWidth = 4,
    PixmapHeight = 5,
    BytesPerLine = 12,
    ColorCount = 19
};

quint32 dumpField(const std::string& dump, DumpField field)
{
    return qFromBigEndian<quint32>(dump.data() + field * sizeof(quint32));
}

} // namespace

/// Without "-noreset" the server restarts when a program ends, and refuses the next one meanwhile.
VirtualDisplay::VirtualDisplay()
{
    m_server.start(QStringLiteral("Xvfb"),
                   {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"),
                    QStringLiteral("0"), QStringLiteral("1000x800x24"), QStringLiteral("-fbdir"),
                    QString::fromStdString(m_folder.path().string()), QStringLiteral("-noreset"),
                    QStringLiteral("-nolisten"), QStringLiteral("tcp")});
    QByteArray number;
    while (!number.endsWith('\n') && m_server.waitForReadyRead(startTimeout))
        number += m_server.readAllStandardOutput();
    if (number.endsWith('\n'))
        m_name = QStringLiteral(":") + QString::fromLatin1(number.trimmed());
}

VirtualDisplay::~VirtualDisplay()
{
    m_server.terminate();
    m_server.waitForFinished(startTimeout);
}

QImage VirtualDisplay::screen() const
{
    const std::string dump = fileBytes(m_folder.path() / "Xvfb_screen0");
    const quint32 colors = dumpField(dump, ColorCount) * 12; // bytes of the colour table
    const std::size_t start = dumpField(dump, HeaderSize) + colors;
    const int width = static_cast<int>(dumpField(dump, PixmapWidth));
    const int height = static_cast<int>(dumpField(dump, PixmapHeight));
    const auto* const pixels = reinterpret_cast<const uchar*>(dump.data() + start);
    return QImage(pixels, width, height, static_cast<int>(dumpField(dump, BytesPerLine)),
                  QImage::Format_RGB32)
        .copy();
}

bool VirtualDisplay::waitForScreen(const std::function<bool(const QImage&)>& condition) const
{
    const QDeadlineTimer deadline(screenTimeout);
    while (!condition(screen())) {
        if (deadline.hasExpired())
            return false;
        QThread::msleep(20);
    }
    return true;
}

} // namespace tarsil::test
