#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tarsil {

/// What identifies the contents of a file years later.
struct FileFacts
{
    std::uint64_t size = 0; ///< bytes
    std::string modified; ///< time of its last change, UTC: "2024-05-31 08:15:02"
    std::string sha256; ///< 64 hexadecimal digits
};

/// The facts about a file as it is now; `path` in stored or native form. Errors: those of
/// `InputFile`.
FileFacts factsOf(std::string_view path);

} // namespace tarsil
