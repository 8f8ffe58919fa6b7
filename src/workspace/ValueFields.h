#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tarsil {

/// What errors of the workspace file are raised by.
inline constexpr std::string_view workspaceModule = "mdlWorkSpace";

/// The length of the longest field of a value, in bytes.
std::size_t longestField(std::string_view value);

/// The fields of one value of a workspace, separated by NUL. A field that is no number of the kind
/// asked for is error 13 "Type mismatch" or 6 "Overflow", which names the value's place, the field
/// and the text found.
class ValueFields
{
public:
    /// `place` says where the value is. Error 9 "Subscript out of range" when there are fewer
    /// than `least` fields; more are passed over.
    ValueFields(std::string_view value, std::size_t least, std::string place);

    // `index` counts from 0 and is less than `least`; `content` says what the field is.

    const std::string& text(std::size_t index) const { return m_fields[index]; }
    std::int16_t integer16(std::size_t index, std::string_view content) const;
    std::int32_t integer32(std::size_t index, std::string_view content) const;
    float single(std::size_t index, std::string_view content) const;
    double number(std::size_t index, std::string_view content) const;

private:
    std::string where(std::size_t index, std::string_view content) const;

    std::vector<std::string> m_fields;
    std::string m_place;
};

} // namespace tarsil
