// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarsil {

/// The text of a settings file in Qt's format (QSettings::IniFormat), in memory: sections with
/// lines "key=value", comments after ";", UTF-8, backslash escapes. Setting a value leaves all
/// other bytes unchanged.
class SettingsText
{
public:
    explicit SettingsText(std::string bytes);

    /// Whether every line is a section, a comment or a value, and all values are texts.
    bool isWhole() const { return m_isWhole; }

    /// Empty when the key does not exist. If a key occurs twice, the last one counts. A value with
    /// commas and without quotes, as a person may write it, is one text.
    std::optional<QString> value(std::string_view section, std::string_view key) const;

    /// Requires `isWhole`.
    void setValue(std::string_view section, std::string_view key, const QString& value);

    const std::string& bytes() const { return m_bytes; }

private:
    /// The heading of a section, which has no key, or a value. Positions count bytes from the
    /// start.
    struct Line
    {
        std::string section;
        std::optional<std::string> key;
        std::size_t begin;
        std::size_t equals;
        std::size_t end;
    };

    void split();
    void addLine(std::size_t begin, std::size_t equals, std::size_t end);
    const Line* find(std::string_view section, std::string_view key) const;
    const Line* lastOf(std::string_view section) const;
    std::optional<QString> textOf(const Line& line) const;

    std::string m_bytes;
    std::vector<Line> m_lines;
    bool m_isWhole = true;
};

} // namespace tarsil
