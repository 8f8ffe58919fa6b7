// SPDX-License-Identifier: Apache-2.0
#include "model/KeyedTexts.h"

#include "base/user/RunTimeError.h"

namespace tarsil {

void KeyedTexts::add(std::string_view key, std::string_view text)
{
    const auto [place, isNew] = m_positions.try_emplace(std::string(key), m_entries.size());
    if (!isNew)
        throw RunTimeError(ErrorNumber::KeyAlreadyAssociated, "KeyedTexts",
                           "key \"" + std::string(key) + "\"");
    m_entries.push_back({std::string(key), std::string(text)});
}

const std::string* KeyedTexts::find(std::string_view key) const
{
    const auto place = m_positions.find(std::string(key));
    return place == m_positions.end() ? nullptr : &m_entries[place->second].text;
}

} // namespace tarsil
