// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace tarsil {

/// The SHA-256 digest of bytes that arrive in pieces (FIPS 180-4, section 6.2). It identifies
/// contents: files with equal digests have equal bytes.
class Sha256
{
public:
    void add(std::string_view bytes);

    /// Returns the digest of all bytes as 64 lower-case hexadecimal digits. Call once, as the last
    /// function.
    std::string finish();

private:
    static constexpr std::size_t blockSize = 64;

    void addBlock(const char* block);

    std::array<std::uint32_t, 8> m_state = {0x6a09e667, 0xbb67ae85, 0x3c6ef372, 0xa54ff53a,
                                            0x510e527f, 0x9b05688c, 0x1f83d9ab, 0x5be0cd19};
    std::array<char, blockSize> m_buffer {}; ///< bytes of an incomplete block
    std::size_t m_buffered = 0;
    std::uint64_t m_size = 0; ///< total number of bytes
};

} // namespace tarsil
