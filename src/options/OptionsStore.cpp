#include "options/OptionsStore.h"

#include "runtime/AtomicFile.h"
#include "runtime/MappedFile.h"
#include "runtime/PathNames.h"
#include "runtime/RunTimeError.h"

#include <QSettings>
#include <QStandardPaths>
#include <QStringList>

#include <filesystem>
#include <string_view>
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

[[noreturn]] void fail(ErrorNumber number, const std::string& what)
{
    throw RunTimeError(number, "OptionsStore", what);
}

enum class FileState {
    Whole, ///< or not there
    Damaged,
    Unreadable
};

/// A value with commas, as a person may write it without quotes, comes as a list. Nothing else is
/// written by a person or by `write`.
bool isText(const QVariant& value)
{
    return !value.isValid() || value.typeId() == QMetaType::QString
        || value.typeId() == QMetaType::QStringList;
}

/// A section is looked through when one of its keys is asked for; only then is its state known.
FileState stateOf(const QSettings& file)
{
    static_cast<void>(file.allKeys());
    if (file.status() == QSettings::AccessError)
        return FileState::Unreadable;
    const bool isWhole = file.status() == QSettings::NoError
        && isText(file.value(acInfoDataFileKey)) && isText(file.value(vgfScaleKey))
        && isText(file.value(vgfThicksKey));
    return isWhole ? FileState::Whole : FileState::Damaged;
}

/// A value that is not in the file is the empty text.
QString textIn(const QSettings& file, const QString& key)
{
    return file.value(key).toStringList().join(u',');
}

std::string keptPath(const std::string& path)
{
    return path + ".damaged";
}

/// In the folder of the file that is meant, where the name is a symbolic link to it.
fs::path temporaryFor(const std::string& path)
{
    std::error_code failed;
    const fs::path named = nativePath(path);
    const fs::path real = fs::weakly_canonical(named, failed);
    return temporaryName(failed ? named : real);
}

/// The toolkit keeps what it has read of a file in this run, but not that the file is damaged. So
/// it gets a copy, which is new to it.
bool isDamaged(std::string_view bytes, const fs::path& copy)
{
    writeFile(pathText(copy), bytes);
    const FileState state = stateOf(QSettings(settingsName(copy), QSettings::IniFormat));
    std::error_code ignored;
    fs::remove(copy, ignored);
    return state == FileState::Damaged;
}

/// One bad line must not cost the user what the others say.
void keepDamaged(const std::string& path)
{
    if (!fileExists(path))
        return;
    const MappedFile file(path);
    if (isDamaged(file.bytes(), temporaryFor(path)))
        writeFile(keptPath(path), file.bytes());
}

} // namespace

OptionsStore::OptionsStore(std::string path) : m_path(std::move(path)) { }

std::string OptionsStore::defaultPath()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation).toStdString()
        + "/tarsil/tarsil.ini";
}

OptionTexts OptionsStore::read() const
{
    const QSettings file(settingsName(nativePath(m_path)), QSettings::IniFormat);
    switch (stateOf(file)) {
    case FileState::Unreadable:
        fail(ErrorNumber::PathFileAccess, "cannot read the settings in " + shownPath(m_path));
    case FileState::Damaged:
        fail(ErrorNumber::TypeMismatch,
             "damaged settings in " + shownPath(m_path) + ", which will be kept as "
                 + resolvePath(keptPath(m_path)).name);
    case FileState::Whole:
        break;
    }
    return {textIn(file, acInfoDataFileKey), textIn(file, vgfScaleKey), textIn(file, vgfThicksKey)};
}

/// A new file takes the place of the old one: written into a damaged file, the settings would be
/// there, but the state of the file would hide whether they are.
void OptionsStore::write(const OptionTexts& texts) const
{
    keepDamaged(m_path);
    const fs::path temporary = temporaryFor(m_path);
    QSettings file(settingsName(temporary), QSettings::IniFormat);
    file.setValue(acInfoDataFileKey, texts.acInfoDataFile);
    file.setValue(vgfScaleKey, texts.vgfScale);
    file.setValue(vgfThicksKey, texts.vgfThicks);
    file.sync();
    if (file.status() != QSettings::NoError)
        fail(ErrorNumber::PathFileAccess, "cannot write the settings in " + shownPath(m_path));
    replaceFile(temporary, m_path);
}

} // namespace tarsil
