#include "workspace/WorkspaceDate.h"

#include <array>
#include <cstddef>
#include <string_view>

namespace tarsil {

namespace {

std::string twoDigits(int number)
{
    const std::string digits = std::to_string(number);
    return digits.size() < 2 ? "0" + digits : digits;
}

} // namespace

std::string workspaceDate(const std::tm& time)
{
    constexpr std::array<std::string_view, 12> months = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                                         "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
    const std::string_view month = months.at(static_cast<std::size_t>(time.tm_mon));
    return twoDigits(time.tm_mday) + "-" + std::string(month) + "-"
        + std::to_string(time.tm_year + 1900) + " " + twoDigits(time.tm_hour) + ":"
        + twoDigits(time.tm_min) + ":" + twoDigits(time.tm_sec);
}

} // namespace tarsil
