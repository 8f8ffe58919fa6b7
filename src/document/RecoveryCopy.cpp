// SPDX-License-Identifier: Apache-2.0
#include "document/RecoveryCopy.h"

#include "base/files/AtomicFile.h"
#include "document/Document.h"
#include "workspace/WorkspaceWriter.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QUuid>

#include <utility>

namespace tarsil {

namespace {

constexpr std::chrono::minutes leastAge(1);

QString nameOf(const QUuid& id)
{
    return QStringLiteral("unsaved-") + id.toString(QUuid::WithoutBraces) + QStringLiteral(".tsw");
}

QString lockOf(const QString& copy)
{
    return copy + QStringLiteral(".lock");
}

} // namespace

RecoveryCopy::RecoveryCopy(std::string folder, Clock now)
    : m_folder(std::move(folder)), m_now(std::move(now))
{ }

/// A lock is stale when its program has ended, however old it is.
bool RecoveryCopy::lock(const std::string& path)
{
    auto lock = std::make_unique<QLockFile>(lockOf(QString::fromStdString(path)));
    lock->setStaleLockTime(0);
    if (!lock->tryLock(0))
        return false;
    m_lock = std::move(lock);
    m_path = path;
    return true;
}

std::optional<std::string> RecoveryCopy::takeOver()
{
    const QDir folder(QString::fromStdString(m_folder));
    const QStringList filters {QStringLiteral("unsaved-*.tsw")};
    for (const QFileInfo& copy : folder.entryInfoList(filters, QDir::Files, QDir::Time)) {
        if (lock(copy.absoluteFilePath().toStdString()))
            return m_path;
    }
    return std::nullopt;
}

void RecoveryCopy::follow(const Document& document)
{
    if (document.isSaved())
        return remove();
    const Time now = m_now();
    if (m_written && now - *m_written < leastAge)
        return;
    if (m_path.empty()) {
        const QDir folder(QString::fromStdString(m_folder));
        folder.mkpath(QStringLiteral("."));
        if (!lock(folder.absoluteFilePath(nameOf(QUuid::createUuid())).toStdString()))
            return; // a folder that cannot be written keeps nothing
    }
    m_written = now;
    writeFile(m_path, writeWorkspace(document.record(), {}).bytes);
}

void RecoveryCopy::remove()
{
    if (!m_path.empty())
        QFile::remove(QString::fromStdString(m_path));
    release();
}

void RecoveryCopy::release()
{
    m_path.clear();
    m_lock.reset(); // removes its file
    m_written.reset();
}

} // namespace tarsil
