// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <cstdint>
#include <random>
#include <string>
#include <vector>

namespace tarsil::fuzz {

/// Variations of seeds: changed bytes, parts removed, repeated or copied from another seed, and
/// numbers replaced by extreme ones.
class Mutations
{
public:
    /// `seeds` must not be empty and must outlive the object.
    Mutations(const std::vector<std::string>& seeds, std::uint32_t randomSeed)
        : m_seeds(seeds), m_random(randomSeed)
    { }

    /// A seed with one to eight changes.
    std::string next();

private:
    struct Part
    {
        std::size_t start;
        std::size_t length;
    };

    std::size_t below(std::size_t count);
    const std::string& anySeed() { return m_seeds[below(m_seeds.size())]; }
    Part partOf(const std::string& text);
    void change(std::string& text);
    void changeByte(std::string& text);
    void replaceNumber(std::string& text);

    const std::vector<std::string>& m_seeds;
    std::mt19937 m_random;
};

} // namespace tarsil::fuzz
