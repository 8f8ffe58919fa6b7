// SPDX-License-Identifier: Apache-2.0
#include "workspace/ValueFields.h"

#include "base/numbers/Numbers.h"
#include "base/text/QuotedText.h"
#include "base/user/RunTimeError.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace tarsil {

namespace {

std::vector<std::string> fieldsOf(std::string_view value)
{
    std::vector<std::string> fields;
    for (;;) {
        const std::size_t end = value.find('\0');
        fields.emplace_back(value.substr(0, end));
        if (end == std::string_view::npos)
            return fields;
        value.remove_prefix(end + 1);
    }
}

} // namespace

std::size_t longestField(std::string_view value)
{
    std::size_t longest = 0;
    for (std::size_t begin = 0; begin <= value.size();) {
        const std::size_t end = std::min(value.find('\0', begin), value.size());
        longest = std::max(longest, end - begin);
        begin = end + 1;
    }
    return longest;
}

ValueFields::ValueFields(std::string_view value, std::size_t least, std::string location)
    : m_fields(fieldsOf(value)), m_location(std::move(location))
{
    if (m_fields.size() >= least)
        return;
    throw RunTimeError(ErrorNumber::SubscriptOutOfRange, std::string(workspaceModule),
                       m_location + " needs " + std::to_string(least) + " fields and has "
                           + std::to_string(m_fields.size()) + ": " + quotedText(value));
}

std::int16_t ValueFields::integer16(std::size_t index, std::string_view content) const
{
    return toInteger16(text(index), workspaceModule, where(index, content));
}

std::int32_t ValueFields::integer32(std::size_t index, std::string_view content) const
{
    const double rounded = std::nearbyint(number(index, content));
    if (rounded < std::numeric_limits<std::int32_t>::min()
        || rounded > std::numeric_limits<std::int32_t>::max())
        throwNumberError(NumberStatus::Overflow, text(index), workspaceModule,
                         where(index, content));
    return static_cast<std::int32_t>(rounded);
}

float ValueFields::single(std::size_t index, std::string_view content) const
{
    return toSingle(text(index), workspaceModule, where(index, content));
}

double ValueFields::number(std::size_t index, std::string_view content) const
{
    return toDouble(text(index), workspaceModule, where(index, content));
}

std::string ValueFields::where(std::size_t index, std::string_view content) const
{
    return m_location + ", field " + std::to_string(index) + " (" + std::string(content) + ")";
}

} // namespace tarsil
