// SPDX-License-Identifier: Apache-2.0
#include "base/files/FileFacts.h"

#include "base/files/InputFile.h"
#include "base/files/PathNames.h"
#include "base/files/Sha256.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <ctime>
#include <sys/stat.h>
#include <vector>

namespace tarsil {

namespace {

std::string timeOf(std::string_view path)
{
    struct stat status
    { };
    if (stat(nativePath(path).c_str(), &status) != 0)
        throw fileError(errno, "FileFacts", path);
    std::tm parts {};
    gmtime_r(&status.st_mtime, &parts);
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
    facts.modified = timeOf(path);
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
