// SPDX-License-Identifier: Apache-2.0
#include "base/files/PathNames.h"

#include "base/files/WindowsFiles.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <utility>

#include <windows.h>

namespace tarsil {

namespace {

constexpr std::wstring_view longPrefix = L"\\\\?\\";
constexpr std::wstring_view longNetworkPrefix = L"\\\\?\\UNC\\";

bool isAbsolute(std::wstring_view path)
{
    const bool hasDrive = path.size() > 2 && path[1] == L':' && path[2] == L'\\';
    return hasDrive || path.starts_with(L"\\\\");
}

/// The absolute path without "." and ".."; unchanged on failure.
std::wstring fullPath(const std::wstring& path)
{
    const DWORD size = GetFullPathNameW(path.c_str(), 0, nullptr, nullptr);
    std::wstring whole(size, L'\0');
    const DWORD length = GetFullPathNameW(path.c_str(), size, whole.data(), nullptr);
    if (length == 0 || length >= size)
        return path;
    whole.resize(length);
    return whole;
}

/// "." and ".." would be names after the prefix.
std::wstring withPrefix(const std::wstring& path)
{
    const std::wstring plain = fullPath(path);
    if (plain.starts_with(L"\\\\"))
        return std::wstring(longNetworkPrefix) + plain.substr(2);
    return std::wstring(longPrefix) + plain;
}

std::wstring withoutPrefix(std::wstring path)
{
    std::replace(path.begin(), path.end(), L'/', L'\\');
    if (path.starts_with(longNetworkPrefix))
        return L"\\\\" + path.substr(longNetworkPrefix.size());
    return path.starts_with(longPrefix) ? path.substr(longPrefix.size()) : path;
}

} // namespace

std::filesystem::path nativePath(std::string_view path)
{
    constexpr std::size_t nearlyTooLong = 200; // a temporary name in the same folder must fit
    std::wstring text = wideText(path);
    std::replace(text.begin(), text.end(), L'/', L'\\');
    const bool needsPrefix = text.size() >= nearlyTooLong && isAbsolute(text)
        && !text.starts_with(longPrefix) && !text.starts_with(L"\\\\.\\");
    return needsPrefix ? withPrefix(text) : std::move(text);
}

std::string pathText(const std::filesystem::path& path)
{
    std::string text = systemText(path);
    std::replace(text.begin(), text.end(), '\\', '/');
    return text;
}

std::string systemText(const std::filesystem::path& path)
{
    return utf8Text(withoutPrefix(path.native()));
}

FilePath resolvePath(std::string_view path)
{
    const std::string whole = pathText(fullPath(withoutPrefix(wideText(path))));
    const std::size_t end = whole.rfind('/');
    if (end == std::string::npos)
        return {{}, whole};
    return {whole.substr(0, end), whole.substr(end + 1)};
}

bool fileExists(std::string_view path)
{
    const DWORD attributes = GetFileAttributesW(nativePath(path).c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

/// Volume and number of the file. Numbers of ReFS have 128 bits, which not every network folder
/// reports.
std::optional<std::string> fileIdentity(std::string_view path)
{
    const WindowsHandle file = openHandle(nativePath(path), 0, OPEN_EXISTING);
    if (!file)
        return std::nullopt;
    FILE_ID_INFO wide = {};
    std::array<std::uint64_t, 2> number = {};
    static_assert(sizeof number == sizeof wide.FileId);
    if (GetFileInformationByHandleEx(file.get(), FileIdInfo, &wide, sizeof wide)) {
        std::copy_n(std::begin(wide.FileId.Identifier), sizeof number,
                    reinterpret_cast<unsigned char*>(number.data()));
        return std::to_string(wide.VolumeSerialNumber) + ":" + std::to_string(number[0]) + ":"
            + std::to_string(number[1]);
    }
    BY_HANDLE_FILE_INFORMATION facts = {};
    if (!GetFileInformationByHandle(file.get(), &facts))
        return std::nullopt;
    return std::to_string(facts.dwVolumeSerialNumber) + ":" + std::to_string(facts.nFileIndexHigh)
        + ":" + std::to_string(facts.nFileIndexLow);
}

std::optional<std::filesystem::path> realPath(const std::filesystem::path& path)
{
    const WindowsHandle file = openHandle(path, 0, OPEN_EXISTING);
    if (!file)
        return std::nullopt;
    const DWORD size = GetFinalPathNameByHandleW(file.get(), nullptr, 0, FILE_NAME_NORMALIZED);
    std::wstring real(size, L'\0');
    const DWORD length =
        GetFinalPathNameByHandleW(file.get(), real.data(), size, FILE_NAME_NORMALIZED);
    if (length == 0 || length >= size)
        return std::nullopt;
    real.resize(length);
    return std::filesystem::path(std::move(real));
}

bool isPlainEntry(const std::filesystem::path& path)
{
    return GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES && !isLink(path);
}

} // namespace tarsil
