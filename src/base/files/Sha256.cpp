// SPDX-License-Identifier: Apache-2.0
#include "base/files/Sha256.h"

#include <algorithm>
#include <bit>

namespace tarsil {

namespace {

/// The first 32 bits of the fractional parts of the cube roots of the first 64 primes.
constexpr std::array<std::uint32_t, 64> roundConstants = {
    0x428a2f98, 0x71374491, 0xb5c0fbcf, 0xe9b5dba5, 0x3956c25b, 0x59f111f1, 0x923f82a4, 0xab1c5ed5,
    0xd807aa98, 0x12835b01, 0x243185be, 0x550c7dc3, 0x72be5d74, 0x80deb1fe, 0x9bdc06a7, 0xc19bf174,
    0xe49b69c1, 0xefbe4786, 0x0fc19dc6, 0x240ca1cc, 0x2de92c6f, 0x4a7484aa, 0x5cb0a9dc, 0x76f988da,
    0x983e5152, 0xa831c66d, 0xb00327c8, 0xbf597fc7, 0xc6e00bf3, 0xd5a79147, 0x06ca6351, 0x14292967,
    0x27b70a85, 0x2e1b2138, 0x4d2c6dfc, 0x53380d13, 0x650a7354, 0x766a0abb, 0x81c2c92e, 0x92722c85,
    0xa2bfe8a1, 0xa81a664b, 0xc24b8b70, 0xc76c51a3, 0xd192e819, 0xd6990624, 0xf40e3585, 0x106aa070,
    0x19a4c116, 0x1e376c08, 0x2748774c, 0x34b0bcb5, 0x391c0cb3, 0x4ed8aa4a, 0x5b9cca4f, 0x682e6ff3,
    0x748f82ee, 0x78a5636f, 0x84c87814, 0x8cc70208, 0x90befffa, 0xa4506ceb, 0xbef9a3f7, 0xc67178f2};

using Schedule = std::array<std::uint32_t, 64>;

constexpr int bitsOfByte = 8;

std::uint32_t wordAt(const char* bytes)
{
    std::uint32_t word = 0;
    for (int i = 0; i < 4; ++i)
        word = word << bitsOfByte | static_cast<unsigned char>(bytes[i]);
    return word;
}

Schedule scheduleOf(const char* block)
{
    Schedule words {};
    for (std::size_t i = 0; i < 16; ++i)
        words[i] = wordAt(block + 4 * i);
    for (std::size_t i = 16; i < words.size(); ++i) {
        const std::uint32_t a = words[i - 15];
        const std::uint32_t b = words[i - 2];
        words[i] = words[i - 16] + (std::rotr(a, 7) ^ std::rotr(a, 18) ^ (a >> 3)) + words[i - 7]
            + (std::rotr(b, 17) ^ std::rotr(b, 19) ^ (b >> 10));
    }
    return words;
}

} // namespace

void Sha256::add(std::string_view bytes)
{
    m_size += bytes.size();
    while (!bytes.empty()) {
        if (m_buffered == 0 && bytes.size() >= blockSize) {
            addBlock(bytes.data());
            bytes.remove_prefix(blockSize);
            continue;
        }
        const std::size_t count = std::min(bytes.size(), blockSize - m_buffered);
        std::copy_n(bytes.data(), count, m_buffer.data() + m_buffered);
        m_buffered += count;
        bytes.remove_prefix(count);
        if (m_buffered == blockSize) {
            addBlock(m_buffer.data());
            m_buffered = 0;
        }
    }
}

/// The round function of the standard; `work` has its variables a to h.
void Sha256::addBlock(const char* block)
{
    const Schedule words = scheduleOf(block);
    std::array<std::uint32_t, 8> work = m_state;
    for (std::size_t i = 0; i < words.size(); ++i) {
        const auto [a, b, c, d, e, f, g, h] = work;
        const std::uint32_t sumOfE = std::rotr(e, 6) ^ std::rotr(e, 11) ^ std::rotr(e, 25);
        const std::uint32_t sumOfA = std::rotr(a, 2) ^ std::rotr(a, 13) ^ std::rotr(a, 22);
        const std::uint32_t first =
            h + sumOfE + ((e & f) ^ (~e & g)) + roundConstants[i] + words[i];
        const std::uint32_t second = sumOfA + ((a & b) ^ (a & c) ^ (b & c));
        work = {first + second, a, b, c, d + first, e, f, g};
    }
    for (std::size_t i = 0; i < work.size(); ++i)
        m_state[i] += work[i];
}

std::string Sha256::finish()
{
    constexpr std::size_t sizeOfLength = 8;
    const std::uint64_t bits = m_size * bitsOfByte;
    add("\x80");
    while (m_buffered != blockSize - sizeOfLength)
        add(std::string_view("\0", 1));
    for (int shift = 56; shift >= 0; shift -= bitsOfByte) {
        const char byte = static_cast<char>(bits >> shift & 0xFF);
        add({&byte, 1});
    }
    constexpr std::string_view digits = "0123456789abcdef";
    std::string text;
    for (const std::uint32_t word : m_state) {
        for (int shift = 28; shift >= 0; shift -= 4)
            text += digits[word >> shift & 0xF];
    }
    return text;
}

} // namespace tarsil
