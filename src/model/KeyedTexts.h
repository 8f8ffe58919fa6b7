// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace tarsil {

/// An ordered collection of texts with unique keys.
class KeyedTexts
{
public:
    struct Entry
    {
        std::string key;
        std::string text;
    };

    /// Error 457 for a key that exists already; the collection is then unchanged.
    void add(std::string_view key, std::string_view text);

    /// The text of a key; null when there is none.
    const std::string* find(std::string_view key) const;

    std::size_t size() const { return m_entries.size(); }
    bool empty() const { return m_entries.empty(); }
    const Entry& operator[](std::size_t index) const { return m_entries[index]; }
    std::vector<Entry>::const_iterator begin() const { return m_entries.begin(); }
    std::vector<Entry>::const_iterator end() const { return m_entries.end(); }

private:
    std::vector<Entry> m_entries;
    std::unordered_map<std::string, std::size_t> m_positions;
};

} // namespace tarsil
