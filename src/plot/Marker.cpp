// SPDX-License-Identifier: Apache-2.0
#include "plot/Marker.h"

#include "base/numbers/Numbers.h"

#include <algorithm>

namespace tarsil {

namespace {

constexpr bool areInOrder()
{
    for (std::size_t i = 0; i < markerTraits.size(); ++i) {
        if (static_cast<std::size_t>(markerTraits[i].kind) != i)
            return false;
    }
    return true;
}
static_assert(areInOrder(), "the traits of markers are indexed by kind");

/// `index` is counted from 1.
QString factorText(const Point& point, std::int32_t index)
{
    if (index < 1 || static_cast<std::size_t>(index) > point.mpf.size())
        return QStringLiteral("?");
    return QString::fromStdString(shortestText(point.mpf[static_cast<std::size_t>(index - 1)]));
}

} // namespace

std::optional<MarkerKind> markerOfNumber(std::int32_t number)
{
    const auto found =
        std::find_if(markerTraits.begin(), markerTraits.end(),
                     [number](const MarkerTraits& traits) { return traits.number == number; });
    if (found == markerTraits.end())
        return std::nullopt;
    return found->kind;
}

void MarkerOptions::applyTo(Series& series) const
{
    series.MarkerSize = size;
    series.MarkerSpacing = spacing;
    series.MarkerStyle = markerNumber(kind);
    series.IthMpf = ithMpf;
}

QString markerText(const Series& series, const Point& point)
{
    const std::optional<MarkerKind> kind = markerOfNumber(series.MarkerStyle);
    if (!kind)
        return {};
    switch (*kind) {
    case MarkerKind::None:
        return {};
    case MarkerKind::ModeNumber:
        return QString::number(series.Mode->Id);
    case MarkerKind::Tag:
        return series.MarkerTag;
    case MarkerKind::ParticipationFactor:
        return factorText(point, series.IthMpf);
    }
    return {};
}

} // namespace tarsil
