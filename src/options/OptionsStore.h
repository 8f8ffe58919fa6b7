#pragma once

#include <QString>

#include <cstddef>
#include <optional>
#include <string>

namespace tarsil {

class SettingsText;

/// The options as they are kept from run to run: texts, empty where nothing is set.
struct OptionTexts
{
    QString acInfoDataFile; ///< path of the aircraft information file
    QString vgfScale; ///< vmin|vmax|gmin|gmax|fmin|fmax; KEAS, dimensionless, Hz
    QString vgfThicks; ///< ticks of the speed, damping and frequency axis

    bool operator==(const OptionTexts&) const = default;
};

/// The settings of one user, a text file with the sections "Options" and "Import".
///
///     [Options]
///     AcInfoDataFile=/home/me/wing.inp
///     vgfScale=0|700|0|-0.25|0|50
///     vgfThicks=7|5|5
///     [Import]
///     Folder1=/home/me/runs
///     Units1=ft/s|1|ratio|
class OptionsStore
{
public:
    explicit OptionsStore(std::string path);

    /// The file below the folder that the desktop has for the user's settings.
    static std::string defaultPath();

    const std::string& path() const { return m_path; }

    /// What the file says; a file or key that is not there says nothing. Errors: 75 or another one
    /// of reading when the file cannot be read, 13 when it is damaged; its description says under
    /// which name `write` will keep it.
    OptionTexts read() const;

    /// Changes in the file what differs from the texts `before`, which were read (none where they
    /// could not be); what else is in it stays, also what another program has written since. Where
    /// nothing differs, or the file cannot be read, nothing is written. The file is replaced whole
    /// or not at all; a damaged one is kept beside the new one with ".damaged" after its name, in
    /// place of an older such file, and when it cannot be kept, nothing is written. Makes its
    /// folder. Errors: those of `read` but 13, and those of `AtomicFile`.
    void write(const OptionTexts& texts, const OptionTexts& before) const;

    /// The units that were last kept for solver outputs of a folder. Errors: those of `read`.
    std::optional<QString> importUnits(const QString& folder) const;

    /// Keeps the units for a folder, in the section "Import", and forgets the oldest of more than
    /// `mostFolders` folders. Errors: those of `write`.
    void keepImportUnits(const QString& folder, const QString& units) const;

    static constexpr std::size_t mostFolders = 50;

private:
    SettingsText readWhole() const;
    SettingsText readToWrite() const;

    std::string m_path;
};

} // namespace tarsil
