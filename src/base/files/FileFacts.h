// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tarsil {

/// The identification of a file's contents.
struct FileFacts
{
    std::uint64_t size = 0; ///< bytes
    std::string modified; ///< last modification, UTC: "2024-05-31 08:15:02"
    std::string sha256; ///< 64 hexadecimal digits
};

/// The facts about a file now; `path` in stored or native form. Errors: those of `InputFile`.
FileFacts factsOf(std::string_view path);

} // namespace tarsil
