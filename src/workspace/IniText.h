// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

namespace tarsil {

/// A value in full length, as it is in the text.
struct IniEntry
{
    std::size_t line; ///< counted from 1
    std::string_view value; ///< without surrounding blanks and quotes; not decoded
};

/// A text of section lines in brackets and lines "key=value", read by section and key in any order.
///
/// Names are compared without case. Of equal keys in a section the first one wins; a repeated
/// section continues the first. Blanks around names and values are removed, and one pair of double
/// quotes around a whole value. NUL is a character like any other. Lines that are neither section
/// nor key are ignored.
class IniText
{
public:
    /// The bytes must outlive the object, whose size is linear in theirs.
    explicit IniText(std::string_view bytes);

    /// The first `mostStoredBytes` bytes of a value; empty when the key is absent.
    std::optional<std::string_view> bytes(std::string_view section, std::string_view key) const;

    /// The same, decoded: UTF-8 if the bytes of the value are UTF-8, otherwise Windows-1252. No
    /// UTF-8 character is split.
    std::optional<std::string> text(std::string_view section, std::string_view key) const;

    /// A value of several fields separated by NUL. Each field is cut at `mostStoredBytes`, so that
    /// a long one does not cost the others. Decoded like a text.
    std::optional<std::string> fields(std::string_view section, std::string_view key) const;

    /// The value in full length, which `bytes` may cut; empty when the key is absent.
    std::optional<IniEntry> entry(std::string_view section, std::string_view key) const;

    /// The number of lines.
    std::size_t lines() const { return m_lines; }

    /// The first line of a section; empty when there is none.
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
