// SPDX-License-Identifier: Apache-2.0
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

struct Key
{
    std::string_view name;
    QString OptionTexts::*text;
    bool isShown; ///< written even when it is not set, so that people see that it exists
};

constexpr std::array<Key, 6> keys = {{{"AcInfoDataFile", &OptionTexts::acInfoDataFile, true},
                                      {"vgfScale", &OptionTexts::vgfScale, true},
                                      {"vgfThicks", &OptionTexts::vgfThicks, true},
                                      {"curveColours", &OptionTexts::curveColours, false},
                                      {"curveLineStyles", &OptionTexts::curveLineStyles, false},
                                      {"metafileDashes", &OptionTexts::metafileDashes, false}}};

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

std::string numbered(std::string_view key, std::size_t index)
{
    return std::string(key) + std::to_string(index + 1);
}

/// Ends at the first pair without a key; older pairs after it are what a longer list has left.
std::vector<RememberedPair> pairsOf(const SettingsText& file, const RememberedList& list)
{
    std::vector<RememberedPair> pairs;
    while (pairs.size() < list.most) {
        const auto key = file.value(list.section, numbered(list.key, pairs.size()));
        if (!key || key->isEmpty())
            break;
        const auto value = file.value(list.section, numbered(list.value, pairs.size()));
        pairs.push_back({*key, value.value_or(QString())});
    }
    return pairs;
}

/// `pairs` and, after them, what else the list contains.
std::vector<RememberedPair> withNewest(const std::vector<RememberedPair>& pairs,
                                       const std::vector<RememberedPair>& known,
                                       const RememberedList& list)
{
    std::vector<RememberedPair> result;
    const auto add = [&result](const RememberedPair& pair) {
        const auto isSame = [&pair](const RememberedPair& other) { return other.key == pair.key; };
        if (std::none_of(result.begin(), result.end(), isSame))
            result.push_back(pair);
    };
    std::for_each(pairs.begin(), pairs.end(), add);
    std::for_each(known.begin(), known.end(), add);
    result.resize(std::min(result.size(), list.most));
    return result;
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

OptionsStore OptionsStore::memory() const
{
    return OptionsStore(shownPath(joinPath(resolvePath(m_path).folder, "windows.ini")));
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
        else if (key.isShown && !file.value(section, key.name))
            file.setValue(section, key.name, QString());
    }
    writeFile(m_path, file.bytes());
}

std::vector<RememberedPair> OptionsStore::pairs(const RememberedList& list) const
{
    return pairsOf(readWhole(), list);
}

std::optional<QString> OptionsStore::value(const RememberedList& list, const QString& key) const
{
    for (const RememberedPair& pair : pairs(list)) {
        if (pair.key == key)
            return pair.value;
    }
    return std::nullopt;
}

void OptionsStore::remember(const RememberedList& list,
                            const std::vector<RememberedPair>& pairs) const
{
    SettingsText file = readToWrite();
    write(file, list, pairs);
}

std::vector<RememberedPair> OptionsStore::pairsIfReadable(const RememberedList& list) const
{
    try {
        return pairs(list);
    } catch (const RunTimeError&) {
        return {};
    }
}

void OptionsStore::rememberQuietly(const RememberedList& list,
                                   const std::vector<RememberedPair>& pairs) const
{
    try {
        SettingsText file = readWhole();
        if (withNewest(pairs, pairsOf(file, list), list) == pairsOf(file, list))
            return;
        makeFolderOf(m_path);
        write(file, list, pairs);
    } catch (const RunTimeError&) {
        // the next start finds what it found last time
    }
}

void OptionsStore::write(SettingsText& file, const RememberedList& list,
                         const std::vector<RememberedPair>& pairs) const
{
    const std::vector<RememberedPair> entries = withNewest(pairs, pairsOf(file, list), list);
    for (std::size_t i = 0; i < entries.size(); ++i) {
        file.setValue(list.section, numbered(list.key, i), entries[i].key);
        file.setValue(list.section, numbered(list.value, i), entries[i].value);
    }
    writeFile(m_path, file.bytes());
}

} // namespace tarsil
