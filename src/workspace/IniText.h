#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

namespace tarsil {

/// A value in its whole length, as it is in the text.
struct IniEntry
{
    std::size_t line; ///< counted from 1
    std::string_view value; ///< without blanks and quotes around it; not decoded
};

/// A text of bracketed section lines and lines "key=value", read by section and key in any order.
///
/// Names compare without case. The first of two equal keys of a section wins, and a section that
/// comes again goes on where it ended. Blanks around a name and a value do not belong to it, nor
/// does one pair of double quotes around the whole value. A NUL is a character like any other.
/// Lines that are neither section nor key are passed over, and so is what nobody asks for.
class IniText
{
public:
    /// The bytes must outlive the object. Its size is in proportion to them.
    explicit IniText(std::string_view bytes);

    /// The first `mostStoredBytes` of a value; nothing when the key is absent.
    std::optional<std::string_view> bytes(std::string_view section, std::string_view key) const;

    /// The same decoded: UTF-8 when the bytes of the value are UTF-8, else Windows-1252. No
    /// character of a UTF-8 value is cut in two.
    std::optional<std::string> text(std::string_view section, std::string_view key) const;

    /// A value of several fields with NUL between them, in its whole length: only a field that is
    /// longer than `mostStoredBytes` is cut, so that those after it are not lost. Decoded like a
    /// text.
    std::optional<std::string> fields(std::string_view section, std::string_view key) const;

    /// The value that `bytes` may cut; nothing when the key is absent.
    std::optional<IniEntry> entry(std::string_view section, std::string_view key) const;

    /// How many lines there are.
    std::size_t lines() const { return m_lines; }

    /// The line on which a section begins first; nothing when there is no such section.
    std::optional<std::size_t> lineOfSection(std::string_view section) const;

private:
    struct Section
    {
        std::size_t line;
        std::unordered_map<std::string, IniEntry> entries {};
    };

    void addLine(std::string_view text, std::size_t line, Section*& current);

    std::size_t m_lines = 0;
    std::unordered_map<std::string, Section> m_sections; ///< by names in small letters
};

} // namespace tarsil
