// SPDX-License-Identifier: Apache-2.0
#include "emf/EmfObjectCheck.h"

#include <algorithm>
#include <stdexcept>

namespace tarsil::test {

void require(bool holds, const std::string& what)
{
    if (!holds)
        throw std::runtime_error(what);
}

void EmfObjectCheck::see(const EmfItem& item)
{
    switch (item.type()) {
    case emf::createPen:
    case emf::createBrushIndirect:
    case emf::extCreateFontIndirectW:
        create(item.word(8), item.type());
        break;
    case emf::selectObject:
        select(item.word(8));
        break;
    case emf::deleteObject:
        remove(item.word(8));
        break;
    case emf::saveDc:
        m_saved.push_back(m_selected);
        break;
    case emf::restoreDc:
        require(item.integer(8) == -1 && !m_saved.empty(), "restore of no saved state");
        m_selected = m_saved.back();
        m_saved.pop_back();
        break;
    default:
        break;
    }
}

void EmfObjectCheck::seeEnd(std::uint32_t handles) const
{
    require(m_kinds.empty(), "objects never deleted");
    require(m_saved.empty(), "states never restored");
    require(handles == m_highest + 1, "count of handles");
}

void EmfObjectCheck::create(std::uint32_t index, std::uint32_t kind)
{
    std::uint32_t lowestFree = 1;
    while (m_kinds.contains(lowestFree))
        ++lowestFree;
    require(index == lowestFree, "index that is not the lowest free one");
    m_kinds.emplace(index, kind);
    m_highest = std::max(m_highest, index);
}

void EmfObjectCheck::select(std::uint32_t index)
{
    if (index >= emf::stockBit) {
        selectStock(index);
        return;
    }
    const auto found = m_kinds.find(index);
    require(found != m_kinds.end(), "selected before it is created");
    m_selected[found->second] = index;
}

void EmfObjectCheck::selectStock(std::uint32_t index)
{
    static const std::map<std::uint32_t, std::uint32_t> kinds = {{0, emf::createBrushIndirect},
                                                                 {7, emf::createPen},
                                                                 {8, emf::createPen},
                                                                 {13, emf::extCreateFontIndirectW}};
    const auto found = kinds.find(index - emf::stockBit);
    require(found != kinds.end(), "unknown stock object");
    m_selected.erase(found->second);
}

void EmfObjectCheck::remove(std::uint32_t index)
{
    const auto isSelectedIn = [index](const Selection& selection) {
        return std::any_of(selection.begin(), selection.end(),
                           [index](const auto& entry) { return entry.second == index; });
    };
    require(!isSelectedIn(m_selected), "deleted while selected");
    require(std::none_of(m_saved.begin(), m_saved.end(), isSelectedIn),
            "deleted while selected in a saved state");
    require(m_kinds.erase(index) == 1, "deleted before it is created");
}

} // namespace tarsil::test
