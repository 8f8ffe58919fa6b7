// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarsil {

class SettingsText;

/// The saved options; a text is empty when it is not set.
struct OptionTexts
{
    QString acInfoDataFile; ///< path of the aircraft information file
    QString vgfScale; ///< vmin|vmax|gmin|gmax|fmin|fmax; KEAS, dimensionless, Hz
    QString vgfThicks; ///< ticks of the speed, damping and frequency axis
    QString curveColours; ///< colours of new curves: the name of a `CurvePalette` of colours
    QString curveLineStyles; ///< "on": line styles instead of colours
    QString metafileDashes; ///< "lines": dashes of metafiles as short lines instead of pens

    bool operator==(const OptionTexts&) const = default;
};

/// A list of pairs that the settings file keeps in a section of its own, newest first: the lines
/// KEY1, VALUE1, KEY2, VALUE2 ... A key occurs once. Pairs beyond `most` are dropped.
struct RememberedList
{
    std::string_view section;
    std::string_view key;
    std::string_view value;
    std::size_t most;
};

namespace remembered {
/// In the settings: the units of solver outputs by the folder of the outputs.
inline constexpr RememberedList importUnits {"Import", "Folder", "Units", 50};
/// In the memory of windows: the folder in which files were last chosen, by the filter of the file
/// dialog.
inline constexpr RememberedList folders {"Folders", "Filter", "Folder", 20};
/// The workspaces and evolutions last opened: path, and date.
inline constexpr RememberedList workspaces {"RecentWorkspaces", "File", "Opened", 10};
inline constexpr RememberedList evolutions {"RecentEvolutions", "File", "Opened", 10};
/// Sizes and positions by the name of the window or table.
inline constexpr RememberedList windows {"Windows", "Name", "Layout", 50};
} // namespace remembered

struct RememberedPair
{
    QString key;
    QString value;

    bool operator==(const RememberedPair&) const = default;
};

/// The settings file of a user: the section "Options", and a section for each remembered list.
///
///     [Options]
///     AcInfoDataFile=/home/me/wing.inp
///     vgfScale=0|700|0|-0.25|0|50
///     vgfThicks=7|5|5
///     curveColours=colour-blind
///     curveLineStyles=off
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

    /// The file "windows.ini" beside this one, for what windows remember: it is written without
    /// being asked, and this one only when the user has changed something.
    OptionsStore memory() const;

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

    /// The pairs of a list, newest first. Errors: those of `read`.
    std::vector<RememberedPair> pairs(const RememberedList& list) const;

    /// The value of a key of a list. Errors: those of `read`.
    std::optional<QString> value(const RememberedList& list, const QString& key) const;

    /// Puts the pairs at the start of a list, the first one first, as the user's choice. Errors:
    /// those of `write`.
    void remember(const RememberedList& list, const std::vector<RememberedPair>& pairs) const;

    /// The pairs of a list, for what the user has not asked for, such as the size of a window:
    /// empty instead of an error.
    std::vector<RememberedPair> pairsIfReadable(const RememberedList& list) const;

    /// As `remember`, for the same: leaves a file that is damaged or cannot be written as it is,
    /// without an error. Writes nothing when the list stays the same.
    void rememberQuietly(const RememberedList& list,
                         const std::vector<RememberedPair>& pairs) const;

private:
    SettingsText readWhole() const;
    SettingsText readToWrite() const;
    void write(SettingsText& file, const RememberedList& list,
               const std::vector<RememberedPair>& pairs) const;

    std::string m_path;
};

} // namespace tarsil
