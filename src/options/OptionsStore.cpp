#include "options/OptionsStore.h"

#include "runtime/AtomicFile.h"
#include "runtime/PathNames.h"
#include "runtime/RunTimeError.h"

#include <QSettings>
#include <QStandardPaths>
#include <QStringList>

#include <filesystem>
#include <system_error>
#include <utility>

namespace tarsil {

namespace {

namespace fs = std::filesystem;

const QString acInfoDataFileKey = QStringLiteral("Options/AcInfoDataFile");
const QString vgfScaleKey = QStringLiteral("Options/vgfScale");
const QString vgfThicksKey = QStringLiteral("Options/vgfThicks");

QString settingsName(const fs::path& path)
{
    return QString::fromStdString(pathText(path));
}

[[noreturn]] void fail(ErrorNumber number, const std::string& what, const std::string& path)
{
    throw RunTimeError(number, "OptionsStore", what + " " + shownPath(path));
}

/// A value that is not in the file is the empty text. One with commas, as a person may write it
/// without quotes, comes as a list. Nothing else is written by a person or by `write`.
QString textOf(const QVariant& value, const std::string& path)
{
    if (value.isValid() && value.typeId() != QMetaType::QString
        && value.typeId() != QMetaType::QStringList)
        fail(ErrorNumber::TypeMismatch, "damaged settings in", path);
    return value.toStringList().join(u',');
}

} // namespace

OptionsStore::OptionsStore(std::string path) : m_path(std::move(path)) { }

std::string OptionsStore::defaultPath()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation).toStdString()
        + "/tarsil/tarsil.ini";
}

/// A section is looked through when one of its keys is asked for; only then is its state known.
OptionTexts OptionsStore::read() const
{
    const QSettings file(settingsName(nativePath(m_path)), QSettings::IniFormat);
    static_cast<void>(file.allKeys());
    if (file.status() == QSettings::AccessError)
        fail(ErrorNumber::PathFileAccess, "cannot read the settings in", m_path);
    if (file.status() != QSettings::NoError)
        fail(ErrorNumber::TypeMismatch, "damaged settings in", m_path);
    return {textOf(file.value(acInfoDataFileKey), m_path), textOf(file.value(vgfScaleKey), m_path),
            textOf(file.value(vgfThicksKey), m_path)};
}

/// A new file takes the place of the old one: written into a damaged file, the settings would be
/// there, but the state of the file would hide whether they are.
void OptionsStore::write(const OptionTexts& texts) const
{
    std::error_code failed;
    const fs::path named = nativePath(m_path);
    const fs::path real = fs::weakly_canonical(named, failed);
    const fs::path temporary = temporaryName(failed ? named : real);
    QSettings file(settingsName(temporary), QSettings::IniFormat);
    file.setValue(acInfoDataFileKey, texts.acInfoDataFile);
    file.setValue(vgfScaleKey, texts.vgfScale);
    file.setValue(vgfThicksKey, texts.vgfThicks);
    file.sync();
    if (file.status() != QSettings::NoError)
        fail(ErrorNumber::PathFileAccess, "cannot write the settings in", m_path);
    replaceFile(temporary, m_path);
}

} // namespace tarsil
