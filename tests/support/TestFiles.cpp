// SPDX-License-Identifier: Apache-2.0
#include "support/TestFiles.h"

#include <cstdlib>
#include <fstream>
#include <random>
#include <sstream>
#include <system_error>
#include <utility>

#ifdef _WIN32
#include <windows.h>
#endif

namespace tarsil::test {

namespace {

/// A path whose contents may have paths of any length.
std::filesystem::path withoutLimit(const std::filesystem::path& path)
{
#ifdef _WIN32
    return L"\\\\?\\" + path.native();
#else
    return path;
#endif
}

std::filesystem::path pathOf(std::string_view utf8)
{
    return std::u8string(utf8.begin(), utf8.end());
}

} // namespace

TemporaryFolder::TemporaryFolder()
{
    std::random_device random;
    m_path = std::filesystem::temp_directory_path()
        / ("tarsil-test-" + std::to_string(random()) + std::to_string(random()));
    std::filesystem::create_directory(m_path);
}

TemporaryFolder::~TemporaryFolder()
{
    std::error_code ignored;
    std::filesystem::permissions(m_path, std::filesystem::perms::owner_all, ignored);
    std::filesystem::remove_all(withoutLimit(m_path), ignored);
}

std::string TemporaryFolder::file(std::string_view name) const
{
    const std::u8string text = (m_path / pathOf(name)).generic_u8string();
    return {text.begin(), text.end()};
}

std::string TemporaryFolder::write(std::string_view name, std::string_view bytes) const
{
    std::ofstream(m_path / pathOf(name), std::ios::binary) << bytes;
    return file(name);
}

bool makeLink(const std::filesystem::path& target, const std::filesystem::path& link)
{
#ifdef _WIN32
    const DWORD flags = SYMBOLIC_LINK_FLAG_ALLOW_UNPRIVILEGED_CREATE
        | (std::filesystem::is_directory(target) ? SYMBOLIC_LINK_FLAG_DIRECTORY : 0);
    return CreateSymbolicLinkW(link.c_str(), target.c_str(), flags)
        && std::filesystem::exists(link);
#else
    std::error_code failed;
    std::filesystem::create_symlink(target, link, failed);
    return !failed;
#endif
}

std::string fileBytes(const std::filesystem::path& path)
{
    std::ifstream stream(path, std::ios::binary);
    std::ostringstream bytes;
    bytes << stream.rdbuf();
    return std::move(bytes).str();
}

std::string fileBytes(const std::string& path)
{
    return fileBytes(pathOf(path));
}

std::string sample(std::string_view name)
{
    return std::string(TARSIL_SAMPLES) + "/" + std::string(name);
}

std::string projectFile(std::string_view path)
{
    return fileBytes(std::filesystem::path(TARSIL_PROJECT) / path);
}

std::string realResults()
{
    return TARSIL_REAL_RESULTS;
}

} // namespace tarsil::test
