// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <string_view>

namespace tarsil::test {

/// A temporary folder for one test, removed with its contents.
class TemporaryFolder
{
public:
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::filesystem::path& path() const { return m_path; }

    /// The path of a file of this name in the folder, with "/" as separator.
    std::string file(std::string_view name) const;

    /// Writes such a file and returns its path.
    std::string write(std::string_view name, std::string_view bytes) const;

private:
    std::filesystem::path m_path;
};

/// Makes a symbolic link if the system permits it; returns whether it did.
bool makeLink(const std::filesystem::path& target, const std::filesystem::path& link);

/// All bytes of a file; the path as text is UTF-8.
std::string fileBytes(const std::filesystem::path& path);
std::string fileBytes(const std::string& path);

/// The path of a file of the samples.
std::string sample(std::string_view name);

/// All bytes of a file of the repository, given by its path in it.
std::string projectFile(std::string_view path);

/// The folder of published results of other programs, which are not in the repository; may be
/// missing.
std::string realResults();

} // namespace tarsil::test
