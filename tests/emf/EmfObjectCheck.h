// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "emf/EmfItem.h"

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace tarsil::test {

/// Throws std::runtime_error with `what` unless `holds`.
void require(bool holds, const std::string& what);

/// Follows objects and saved states through the records of a metafile. Throws std::runtime_error
/// when an object is used without existing, deleted while it is selected, or never deleted.
class EmfObjectCheck
{
public:
    void see(const EmfItem& item);

    /// `handles` is the count in the header: the highest index plus one.
    void seeEnd(std::uint32_t handles) const;

private:
    /// The selected objects, by the type of the record that created them.
    using Selection = std::map<std::uint32_t, std::uint32_t>;

    void create(std::uint32_t index, std::uint32_t kind);
    void select(std::uint32_t index);
    void selectStock(std::uint32_t index);
    void remove(std::uint32_t index);

    std::map<std::uint32_t, std::uint32_t> m_kinds; ///< type of the create record, by index
    Selection m_selected;
    std::vector<Selection> m_saved;
    std::uint32_t m_highest = 0;
};

} // namespace tarsil::test
