// SPDX-License-Identifier: Apache-2.0
#include "Hands.h"

#include <QDeadlineTimer>
#include <QProcess>
#include <QProcessEnvironment>
#include <QThread>

namespace tarsil::test {

bool waitUntil(const std::function<bool()>& condition)
{
    constexpr int patience = 30000; // milliseconds; reached only if a program hangs
    const QDeadlineTimer deadline(patience);
    while (!condition()) {
        if (deadline.hasExpired())
            return false;
        QThread::msleep(20);
    }
    return true;
}

QString Hands::run(const QStringList& arguments, QString* failure) const
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DISPLAY"), m_display);
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral("xdotool"), arguments);
    constexpr int patience = 10000; // milliseconds; reached only if a window does not answer
    if (!process.waitForFinished(patience))
        process.kill();
    if (failure != nullptr)
        *failure = QString::fromLatin1(process.readAllStandardError());
    return QString::fromLatin1(process.readAllStandardOutput());
}

/// A search fails, with an incomplete result, when a window closes meanwhile.
QStringList Hands::windows(const QString& title) const
{
    QString found;
    waitUntil([&] {
        QString failure;
        found = run({QStringLiteral("search"), QStringLiteral("--onlyvisible"),
                     QStringLiteral("--name"), title},
                    &failure);
        return !failure.contains(QStringLiteral("X Error"));
    });
    return found.split(u'\n', Qt::SkipEmptyParts);
}

bool Hands::isShown(const QString& title) const
{
    return !windows(title).isEmpty();
}

bool Hands::isFocused(const QString& name) const
{
    return run({QStringLiteral("getwindowfocus"), QStringLiteral("getwindowname")}).trimmed()
        == name;
}

bool Hands::focusNew(const QString& title)
{
    QString found;
    const bool isThere = waitUntil([&] {
        for (const QString& window : windows(title)) {
            if (!m_known.contains(window))
                found = window;
        }
        return !found.isEmpty();
    });
    if (isThere) {
        m_known.append(found);
        run({QStringLiteral("windowfocus"), QStringLiteral("--sync"), found});
    }
    return isThere;
}

bool Hands::focus(const QString& title)
{
    const QStringList found = windows(title);
    if (found.isEmpty())
        return false;
    run({QStringLiteral("windowfocus"), QStringLiteral("--sync"), found.first()});
    return true;
}

void Hands::press(const QStringList& keys) const
{
    run(QStringList({QStringLiteral("key")}) + keys);
}

void Hands::type(const QString& text) const
{
    run({QStringLiteral("type"), text});
}

void Hands::click(QPoint position, int button) const
{
    run({QStringLiteral("mousemove"), QString::number(position.x()), QString::number(position.y()),
         QStringLiteral("mousedown"), QString::number(button), QStringLiteral("mouseup"),
         QString::number(button)});
}

/// Sends both clicks at once, so that they are a double click even on a busy machine.
void Hands::doubleClick(QPoint position) const
{
    run({QStringLiteral("mousemove"), QString::number(position.x()), QString::number(position.y()),
         QStringLiteral("click"), QStringLiteral("--repeat"), QStringLiteral("2"),
         QStringLiteral("--delay"), QStringLiteral("1"), QStringLiteral("1")});
}

void Hands::drag(QPoint from, QPoint to, int button) const
{
    constexpr int steps = 8;
    const auto moveTo = [](QPoint point) {
        return QStringList {QStringLiteral("mousemove"), QString::number(point.x()),
                            QString::number(point.y())};
    };
    QStringList script =
        moveTo(from) + QStringList {QStringLiteral("mousedown"), QString::number(button)};
    for (int step = 1; step <= steps; ++step)
        script += moveTo(from + (to - from) * step / steps)
            + QStringList {QStringLiteral("sleep"), QStringLiteral("0.05")};
    run(script + QStringList {QStringLiteral("mouseup"), QString::number(button)});
}

void Hands::point(QPoint position) const
{
    run({QStringLiteral("mousemove"), QString::number(position.x()),
         QString::number(position.y())});
}

} // namespace tarsil::test
