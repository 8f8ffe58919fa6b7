// SPDX-License-Identifier: Apache-2.0
#include "base/files/FileFacts.h"

#include "base/files/InputFile.h"
#include "base/files/Sha256.h"

#include <algorithm>
#include <array>
#include <ctime>
#include <vector>

namespace tarsil {

namespace {

/// Empty for a time that the system cannot convert.
std::string timeText(std::time_t time)
{
    std::tm parts {};
#ifdef _WIN32
    if (gmtime_s(&parts, &time) != 0)
        return {};
#else
    gmtime_r(&time, &parts);
#endif
    std::array<char, 32> text {};
    const std::size_t length = std::strftime(text.data(), text.size(), "%Y-%m-%d %H:%M:%S", &parts);
    return {text.data(), length};
}

} // namespace

FileFacts factsOf(std::string_view path)
{
    constexpr std::size_t pieceSize = 65536;
    FileFacts facts;
    InputFile file(path);
    facts.size = file.bytesLeft();
    facts.modified = timeText(file.modified());
    Sha256 digest;
    std::vector<char> piece(pieceSize);
    while (file.bytesLeft() > 0) {
        const std::size_t count = std::min(file.bytesLeft(), piece.size());
        file.read(piece.data(), count);
        digest.add({piece.data(), count});
    }
    facts.sha256 = digest.finish();
    file.requireUnchanged();
    return facts;
}

} // namespace tarsil
