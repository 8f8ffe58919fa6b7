// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tarsil {

/// The source of errors of the workspace file.
inline constexpr std::string_view workspaceModule = "mdlWorkSpace";

/// The length of the longest field of a value in bytes.
std::size_t longestField(std::string_view value);

/// The fields of a value of a workspace, separated by NUL. A field that is not a number of the
/// requested type is error 13 "Type mismatch" or 6 "Overflow", with the location of the value, the
/// field and the text.
class ValueFields
{
public:
    /// `location` names the value in errors. Error 9 "Subscript out of range" when there are fewer
    /// than `least` fields; more are ignored.
    ValueFields(std::string_view value, std::size_t least, std::string location);

    // `index` counts from 0 and is less than `least`; `content` names the field in errors.

    const std::string& text(std::size_t index) const { return m_fields[index]; }
    std::int16_t integer16(std::size_t index, std::string_view content) const;
    std::int32_t integer32(std::size_t index, std::string_view content) const;
    float single(std::size_t index, std::string_view content) const;
    double number(std::size_t index, std::string_view content) const;

private:
    std::string where(std::size_t index, std::string_view content) const;

    std::vector<std::string> m_fields;
    std::string m_location;
};

} // namespace tarsil
