#pragma once

#include "emf/EmfItem.h"

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace tarsil::test {

/// Raises std::runtime_error, which says `what` is wrong.
void require(bool holds, const std::string& what);

/// Follows objects and saved states through the records of a metafile. Raises std::runtime_error at
/// an object that is used without being there, that is removed while a player needs it, or that
/// stays.
class EmfObjectCheck
{
public:
    void see(const EmfItem& item);

    /// `handles` is what the header counts: the highest index and one.
    void seeEnd(std::uint32_t handles) const;

private:
    /// Which object is selected, by the type of the record that created it.
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
