#include "options/OptionsStore.h"

#include "base/files/AtomicFile.h"
#include "base/files/InputFile.h"
#include "base/files/PathNames.h"
#include "base/user/RunTimeError.h"
#include "options/SettingsText.h"

#include <QStandardPaths>

#include <array>
#include <filesystem>
#include <string_view>
#include <system_error>
#include <utility>

namespace tarsil {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view source = "OptionsStore";
constexpr std::string_view section = "Options";

struct Key
{
    std::string_view name;
    QString OptionTexts::*text;
};

constexpr std::array<Key, 3> keys = {{{"AcInfoDataFile", &OptionTexts::acInfoDataFile},
                                      {"vgfScale", &OptionTexts::vgfScale},
                                      {"vgfThicks", &OptionTexts::vgfThicks}}};

/// What the file holds; no bytes where there is none.
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

OptionTexts OptionsStore::read() const
{
    const SettingsText file(bytesOf(m_path));
    if (!file.isWhole())
        throw RunTimeError(ErrorNumber::TypeMismatch, std::string(source),
                           "damaged settings in " + shownPath(m_path) + ", which will be kept as "
                               + resolvePath(keptPath(m_path)).name + " when options are changed");
    OptionTexts texts;
    for (const Key& key : keys)
        texts.*key.text = file.value(section, key.name).value_or(QString());
    return texts;
}

/// What the file says now may be newer than what was read: another program has written it.
void OptionsStore::write(const OptionTexts& texts, const OptionTexts& before) const
{
    if (texts == before)
        return;
    SettingsText file(bytesOf(m_path));
    makeFolderOf(m_path);
    if (!file.isWhole()) { // one bad line must not cost the user what the others say
        writeFile(keptPath(m_path), file.bytes());
        file = SettingsText({});
    }
    for (const Key& key : keys) {
        if (texts.*key.text != before.*key.text)
            file.setValue(section, key.name, texts.*key.text);
        else if (!file.value(section, key.name))
            file.setValue(section, key.name, QString()); // a person finds every key to fill in
    }
    writeFile(m_path, file.bytes());
}

} // namespace tarsil
