// SPDX-License-Identifier: Apache-2.0
#include "vgfplot/PictureFiles.h"

#include <QSet>
#include <QString>

#include <cstddef>

namespace tarsil {

namespace {

constexpr qsizetype longestName = 200; ///< bytes; file systems accept 255

/// A caption as the stem of a file name on every system.
QString stemOf(const std::string& caption)
{
    QString stem = QString::fromStdString(caption);
    for (QChar& unit : stem) {
        if (QStringView(u"/\\:*?\"<>|").contains(unit) || unit.category() == QChar::Other_Control)
            unit = u'_';
    }
    while (stem.toUtf8().size() > longestName)
        stem.chop(stem.back().isLowSurrogate() ? 2 : 1);
    stem = stem.trimmed();
    if (stem.startsWith(u'.')) // such a file would be hidden
        stem.front() = u'_';
    return stem.isEmpty() ? QStringLiteral("Plot") : stem;
}

} // namespace

std::vector<std::string> pictureFileNames(const std::vector<std::string>& captions,
                                          PictureFormat format)
{
    std::vector<std::string> names;
    QSet<QString> used;
    for (const std::string& caption : captions) {
        const QString stem = stemOf(caption);
        QString name = stem;
        for (int number = 2; used.contains(name.toCaseFolded()); ++number)
            name = stem + u'_' + QString::number(number);
        used.insert(name.toCaseFolded());
        names.push_back(name.toStdString() + std::string(pictureTraitsOf(format).extension));
    }
    return names;
}

void PictureFiles::add(const DrawnPicture& picture, const std::string& path, PictureFormat format,
                       const PictureSettings& settings)
{
    const QByteArray bytes = pictureBytes(picture, format, settings);
    m_files.emplace_back(path).write({bytes.constData(), static_cast<std::size_t>(bytes.size())});
}

void PictureFiles::commit()
{
    for (AtomicFile& file : m_files)
        file.commit();
    m_files.clear();
}

} // namespace tarsil
