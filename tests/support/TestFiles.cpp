// SPDX-License-Identifier: Apache-2.0
#include "support/TestFiles.h"

#include <cstdlib>
#include <fstream>
#include <random>
#include <sstream>
#include <utility>

namespace tarsil::test {

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
    std::filesystem::remove_all(m_path, ignored);
}

std::string TemporaryFolder::file(std::string_view name) const
{
    return (m_path / name).string();
}

std::string TemporaryFolder::write(std::string_view name, std::string_view bytes) const
{
    std::ofstream(m_path / name, std::ios::binary) << bytes;
    return file(name);
}

std::string fileBytes(const std::filesystem::path& path)
{
    std::ifstream stream(path, std::ios::binary);
    std::ostringstream bytes;
    bytes << stream.rdbuf();
    return std::move(bytes).str();
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
