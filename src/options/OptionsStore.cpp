#include "options/OptionsStore.h"

#include "base/files/AtomicFile.h"
#include "base/files/InputFile.h"
#include "base/files/PathNames.h"
#include "base/user/RunTimeError.h"
#include "options/SettingsText.h"

#include <QStandardPaths>

#include <algorithm>
#include <array>
#include <filesystem>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

namespace tarsil {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view source = "OptionsStore";
constexpr std::string_view section = "Options";
constexpr std::string_view importSection = "Import";

struct Key
{
    std::string_view name;
    QString OptionTexts::*text;
};

constexpr std::array<Key, 3> keys = {{{"AcInfoDataFile", &OptionTexts::acInfoDataFile},
                                      {"vgfScale", &OptionTexts::vgfScale},
                                      {"vgfThicks", &OptionTexts::vgfThicks}}};

/// The bytes of the file; empty when it does not exist.
std::string bytesOf(const std::string& path)
{
    try {
        return std::string(FileBytes(path).bytes());
    } catch (const RunTimeError& error) {
        if (error.number() == ErrorNumber::FileNotFound
            || error.number() == ErrorNumber::PathNotFound)
            return {};
        throw RunTimeError(error.number(), std::string(source),
                           "cannot read the settings in " + shownPath(path));
    }
}

struct FolderUnits
{
    QString folder;
    QString units;
};

std::string numbered(std::string_view key, std::size_t index)
{
    return std::string(key) + std::to_string(index + 1);
}

/// The units of all folders, newest first.
std::vector<FolderUnits> importsOf(const SettingsText& file)
{
    std::vector<FolderUnits> entries;
    while (const auto folder = file.value(importSection, numbered("Folder", entries.size()))) {
        const auto units = file.value(importSection, numbered("Units", entries.size()));
        entries.push_back({*folder, units.value_or(QString())});
    }
    return entries;
}

std::string keptPath(const std::string& path)
{
    return path + ".damaged";
}

void makeFolderOf(const std::string& path)
{
    std::error_code failed;
    const fs::path folder = nativePath(path).parent_path();
    if (!folder.empty() && !fs::is_directory(folder, failed))
        fs::create_directories(folder, failed);
    if (failed)
        throw fileError(failed.value(), std::string(source), path);
}

} // namespace

OptionsStore::OptionsStore(std::string path) : m_path(std::move(path)) { }

std::string OptionsStore::defaultPath()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation).toStdString()
        + "/tarsil/tarsil.ini";
}

SettingsText OptionsStore::readWhole() const
{
    SettingsText file(bytesOf(m_path));
    if (!file.isWhole())
        throw RunTimeError(ErrorNumber::TypeMismatch, std::string(source),
                           "damaged settings in " + shownPath(m_path) + ", which will be kept as "
                               + resolvePath(keptPath(m_path)).name + " when options are changed");
    return file;
}

OptionTexts OptionsStore::read() const
{
    const SettingsText file = readWhole();
    OptionTexts texts;
    for (const Key& key : keys)
        texts.*key.text = file.value(section, key.name).value_or(QString());
    return texts;
}

/// The present contents of the file, which another program may have changed since `read`.
SettingsText OptionsStore::readToWrite() const
{
    SettingsText file(bytesOf(m_path));
    makeFolderOf(m_path);
    if (!file.isWhole()) { // a bad line must not cost the user the others
        writeFile(keptPath(m_path), file.bytes());
        file = SettingsText({});
    }
    return file;
}

void OptionsStore::write(const OptionTexts& texts, const OptionTexts& before) const
{
    if (texts == before)
        return;
    SettingsText file = readToWrite();
    for (const Key& key : keys) {
        if (texts.*key.text != before.*key.text)
            file.setValue(section, key.name, texts.*key.text);
        else if (!file.value(section, key.name))
            file.setValue(section, key.name, QString()); // shows people which keys exist
    }
    writeFile(m_path, file.bytes());
}

std::optional<QString> OptionsStore::importUnits(const QString& folder) const
{
    for (const FolderUnits& entry : importsOf(readWhole())) {
        if (entry.folder == folder)
            return entry.units;
    }
    return std::nullopt;
}

void OptionsStore::keepImportUnits(const QString& folder, const QString& units) const
{
    SettingsText file = readToWrite();
    std::vector<FolderUnits> entries = importsOf(file);
    std::erase_if(entries, [&folder](const FolderUnits& entry) { return entry.folder == folder; });
    entries.insert(entries.begin(), {folder, units});
    entries.resize(std::min(entries.size(), mostFolders));
    for (std::size_t i = 0; i < entries.size(); ++i) {
        file.setValue(importSection, numbered("Folder", i), entries[i].folder);
        file.setValue(importSection, numbered("Units", i), entries[i].units);
    }
    writeFile(m_path, file.bytes());
}

} // namespace tarsil
