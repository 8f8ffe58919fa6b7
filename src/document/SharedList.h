// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <algorithm>
#include <cstddef>
#include <memory>
#include <utility>
#include <vector>

namespace tarsil {

/// A list of values that shares what it has in common with the list it was made after. Of lists
/// that follow each other by small changes each one costs little memory beside the first.
///
/// Values are held one by one, and in blocks: a list of 1000 values that differs from its
/// predecessor in one of them adds that value, one block, and 32 pointers to blocks.
template <typename T>
class SharedList
{
public:
    SharedList() = default;

    /// A list of these values. Those at the beginning and at the end that equal the ones of
    /// `before` are shared with it.
    SharedList(const std::vector<T>& values, const SharedList& before)
    {
        const Block items = sharedItems(values, before.items());
        for (std::size_t first = 0; first < items.size(); first += blockSize)
            m_blocks.push_back(blockOf(items, first, before));
    }

    std::vector<T> values() const
    {
        std::vector<T> values;
        for (const auto& block : m_blocks) {
            for (const Item& item : *block)
                values.push_back(*item);
        }
        return values;
    }

    bool operator==(const SharedList& other) const
    {
        return std::equal(m_blocks.begin(), m_blocks.end(), other.m_blocks.begin(),
                          other.m_blocks.end(), [](const auto& a, const auto& b) {
                              return a == b
                                  || std::equal(a->begin(), a->end(), b->begin(), b->end(), isSame);
                          });
    }

private:
    using Item = std::shared_ptr<const T>;
    using Block = std::vector<Item>;

    static constexpr std::size_t blockSize = 32;

    static bool isSame(const Item& a, const Item& b) { return a == b || *a == *b; }

    Block items() const
    {
        Block items;
        for (const auto& block : m_blocks)
            items.insert(items.end(), block->begin(), block->end());
        return items;
    }

    static Block sharedItems(const std::vector<T>& values, const Block& before)
    {
        Block items(values.size());
        const std::size_t common = std::min(values.size(), before.size());
        std::size_t first = 0;
        for (; first < common && *before[first] == values[first]; ++first)
            items[first] = before[first];
        std::size_t end = 0; // counted from the end
        for (; end < common - first
             && *before[before.size() - 1 - end] == values[values.size() - 1 - end];
             ++end)
            items[values.size() - 1 - end] = before[before.size() - 1 - end];
        for (std::size_t i = first; i < values.size() - end; ++i)
            items[i] = std::make_shared<const T>(values[i]);
        return items;
    }

    static std::shared_ptr<const Block> blockOf(const Block& items, std::size_t first,
                                                const SharedList& before)
    {
        const auto begin = items.begin() + static_cast<std::ptrdiff_t>(first);
        const auto end =
            items.begin() + static_cast<std::ptrdiff_t>(std::min(first + blockSize, items.size()));
        const std::size_t index = first / blockSize;
        if (index < before.m_blocks.size()) {
            const auto& block = before.m_blocks[index];
            if (std::equal(begin, end, block->begin(), block->end()))
                return block;
        }
        return std::make_shared<const Block>(begin, end);
    }

    std::vector<std::shared_ptr<const Block>> m_blocks;
};

} // namespace tarsil
