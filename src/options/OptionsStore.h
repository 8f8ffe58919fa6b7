#pragma once

#include <QString>

#include <cstddef>
#include <optional>
#include <string>

namespace tarsil {

class SettingsText;

/// The saved options; a text is empty when it is not set.
struct OptionTexts
{
    QString acInfoDataFile; ///< path of the aircraft information file
    QString vgfScale; ///< vmin|vmax|gmin|gmax|fmin|fmax; KEAS, dimensionless, Hz
    QString vgfThicks; ///< ticks of the speed, damping and frequency axis

    bool operator==(const OptionTexts&) const = default;
};

/// The settings file of a user, with the sections "Options" and "Import".
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

    /// The default file in the user's configuration folder.
    static std::string defaultPath();

    const std::string& path() const { return m_path; }

    /// Reads the options. A missing file or key gives an empty text. Errors: 75 or another read
    /// error when the file cannot be read; 13 when it is damaged, with the name under which `write`
    /// will keep it.
    OptionTexts read() const;

    /// Writes the texts that differ from `before`, the texts once read (empty if they could not be
    /// read). Everything else in the file stays, also what another program has written meanwhile.
    /// Writes nothing when nothing differs or the file cannot be read. The file is replaced whole
    /// or not at all. A damaged file is kept with ".damaged" after its name, replacing an older one
    /// of that name; if that fails, nothing is written. Creates the folder. Errors: those of `read`
    /// except 13, and those of `AtomicFile`.
    void write(const OptionTexts& texts, const OptionTexts& before) const;

    /// The units last stored for solver outputs of a folder. Errors: those of `read`.
    std::optional<QString> importUnits(const QString& folder) const;

    /// Stores the units for a folder in the section "Import". Removes the oldest folders beyond
    /// `mostFolders`. Errors: those of `write`.
    void keepImportUnits(const QString& folder, const QString& units) const;

    static constexpr std::size_t mostFolders = 50;

private:
    SettingsText readWhole() const;
    SettingsText readToWrite() const;

    std::string m_path;
};

} // namespace tarsil
