#pragma once

#include <QString>

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarsil {

/// The bytes of a settings file as the toolkit writes and reads it (QSettings::IniFormat), in
/// memory: sections with lines "key=value", comments behind ";", UTF-8, escapes with a backslash.
/// Setting a value leaves all other bytes as they are.
class SettingsText
{
public:
    explicit SettingsText(std::string bytes);

    /// Whether every line is a section, a comment or a value, and all values are texts.
    bool isWhole() const { return m_isWhole; }

    /// Nothing when the key is not there. Of a key that comes twice the last one counts, and a
    /// value that a person wrote with commas and without quotes is one text.
    std::optional<QString> value(std::string_view section, std::string_view key) const;

    /// Only for a text that is whole.
    void setValue(std::string_view section, std::string_view key, const QString& value);

    const std::string& bytes() const { return m_bytes; }

private:
    /// A section's head, which has no key, or a value; positions count from the first byte.
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
