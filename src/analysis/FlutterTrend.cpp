// SPDX-License-Identifier: Apache-2.0
#include "analysis/FlutterTrend.h"

#include "aircraft/AirplaneInfo.h"
#include "analysis/StabilityTexts.h"
#include "base/numbers/NumberFormat.h"
#include "base/numbers/Numbers.h"
#include "model/EVM.h"

#include <algorithm>
#include <array>
#include <utility>

namespace tarsil {

namespace {

constexpr std::array<std::pair<TrendAbscissa, std::string_view>, 4> trendAbscissaNames = {
    {{TrendAbscissa::Mach, "mach"},
     {TrendAbscissa::Altitude, "altitude"},
     {TrendAbscissa::Mass, "mass"},
     {TrendAbscissa::File, "file"}}};

/// The point of lowest speed of an evolution; null without points.
const Point* slowestPoint(const EVM& evolution)
{
    const Point* slowest = nullptr;
    for (const auto& mode : evolution.Modes) {
        for (const Point& point : mode->Points) {
            if (slowest == nullptr || point.speed < slowest->speed)
                slowest = &point;
        }
    }
    return slowest;
}

/// A point of a speed; null for none.
const Point* pointOfSpeed(const EVM& evolution, double speed)
{
    for (const auto& mode : evolution.Modes) {
        for (const Point& point : mode->Points) {
            if (static_cast<double>(point.speed) == speed)
                return &point;
        }
    }
    return nullptr;
}

/// Sets speed and condition to those of a point of the file.
void setLimit(const Point* point, TrendPoint& result)
{
    if (point == nullptr)
        return;
    result.speed = result.toSpeed = static_cast<double>(point->speed);
    result.condition =
        conditionBetween(*point, *point, 0, result.speed, result.evolution->Param.Mach);
}

void setStart(const Crossing& start, TrendPoint& result)
{
    result.start = start;
    if (hasSpeed(start)) {
        result.onset = TrendOnset::Start;
        result.speed = result.toSpeed = start.speed;
        result.condition = start.condition;
        return;
    }
    result.onset = TrendOnset::Interval;
    setLimit(pointOfSpeed(*result.evolution, start.fromSpeed), result);
    result.speed = start.fromSpeed;
    result.toSpeed = start.toSpeed;
}

TrendPoint trendPointOf(const EvolutionStability& stability, const StabilityVerdict& verdict)
{
    TrendPoint result;
    result.evolution = stability.evolution;
    result.level = verdict.level;
    if (stability.margin && stability.margin->required.diveSpeed)
        result.required = stability.margin->required.speed();
    if (!verdict.unstableFromFirst.empty()) {
        result.onset = TrendOnset::FirstSpeed;
        result.modes = verdict.unstableFromFirst;
        setLimit(slowestPoint(*stability.evolution), result);
    } else if (verdict.lowest) {
        result.modes = {verdict.lowestMode};
        setStart(*verdict.lowest, result);
    } else if (const Point* last = pointOfSpeed(*stability.evolution, stability.lastSpeed)) {
        result.onset = TrendOnset::None;
        setLimit(last, result);
    } else {
        result.whyNotDrawn = "there are no points to judge";
    }
    return result;
}

TrendPoint untrackedPoint(const EvolutionStability& stability, float level)
{
    TrendPoint result;
    result.evolution = stability.evolution;
    result.level = level;
    result.whyNotDrawn = "cannot be tracked: " + stability.obstacle;
    return result;
}

/// Names in the order of their first appearance.
class NameOrder
{
public:
    std::size_t indexOf(const std::string& name)
    {
        const auto known = std::find(m_names.begin(), m_names.end(), name);
        if (known != m_names.end())
            return static_cast<std::size_t>(known - m_names.begin());
        m_names.push_back(name);
        return m_names.size() - 1;
    }

    std::vector<std::string> names() const { return m_names; }

private:
    std::vector<std::string> m_names;
};

/// The name of a mass configuration as the aircraft file spells it.
std::string massNameOf(const EVM& evolution, const AirplaneInfo& airplane)
{
    const std::string& name = evolution.Param.Mass;
    if (const MassConf* const known = airplane.massConf(name))
        return known->ShortName;
    return name.empty() ? "(no mass)" : name;
}

std::string machNameOf(const TrendPoint& point)
{
    return point.condition.mach ? "Mach " + formatNumber(*point.condition.mach, "0.00#")
                                : "no Mach number";
}

/// The Mach number that a person reads: 0.4, not the nearest single.
std::optional<double> decimalMach(const TrendPoint& point)
{
    if (!point.condition.mach)
        return std::nullopt;
    return decimalValue(static_cast<float>(*point.condition.mach));
}

/// Gives the points their abscissa and their group.
class TrendPlacing
{
public:
    TrendPlacing(const AirplaneInfo& airplane, FlutterTrend& trend)
        : m_airplane(airplane), m_trend(trend)
    { }

    void placeAll()
    {
        if (m_trend.abscissa == TrendAbscissa::Mass)
            orderMasses();
        for (TrendPoint& point : m_trend.points)
            place(point);
        m_trend.groups = m_groups.names();
        if (m_trend.abscissa == TrendAbscissa::Mass)
            m_trend.categories = m_categories.names();
    }

private:
    /// Enters the masses that occur, first those of the aircraft file in its order.
    void orderMasses()
    {
        NameOrder occurring;
        for (const TrendPoint& point : m_trend.points)
            occurring.indexOf(massNameOf(*point.evolution, m_airplane));
        const std::vector<std::string> names = occurring.names();
        for (const MassConf& mass : m_airplane.MassConfs) {
            if (std::find(names.begin(), names.end(), mass.ShortName) != names.end())
                m_categories.indexOf(mass.ShortName);
        }
    }

    void place(TrendPoint& point)
    {
        switch (m_trend.abscissa) {
        case TrendAbscissa::Mach:
            placeAt(decimalMach(point), "it has no Mach number", point);
            break;
        case TrendAbscissa::Altitude:
            placeAtAltitude(point);
            break;
        case TrendAbscissa::Mass:
            point.abscissa = category(massNameOf(*point.evolution, m_airplane));
            point.group = m_groups.indexOf(machNameOf(point));
            return;
        case TrendAbscissa::File:
            point.abscissa = static_cast<double>(fileNumber(point));
            point.group = m_groups.indexOf({});
            return;
        }
        point.group = m_groups.indexOf(massNameOf(*point.evolution, m_airplane));
    }

    static void placeAt(const std::optional<double>& value, std::string_view otherwise,
                        TrendPoint& point)
    {
        point.abscissa = value;
        if (!value && point.whyNotDrawn.empty())
            point.whyNotDrawn = otherwise;
    }

    static void placeAtAltitude(TrendPoint& point)
    {
        placeAt(point.condition.altitude, "it has neither density nor Mach number", point);
        if (point.abscissa && isOutsideAtmosphere(*point.abscissa))
            point.whyNotDrawn = "its altitude is outside -2,000 to 65,617 ft";
    }

    double category(const std::string& name)
    {
        return static_cast<double>(m_categories.indexOf(name) + 1);
    }

    /// Two files may have one name, so that each evolution has its own category.
    std::size_t fileNumber(const TrendPoint& point)
    {
        const auto known = std::find(m_files.begin(), m_files.end(), point.evolution);
        if (known != m_files.end())
            return static_cast<std::size_t>(known - m_files.begin()) + 1;
        m_files.push_back(point.evolution);
        m_trend.categories.push_back(point.evolution->FileName);
        return m_files.size();
    }

    const AirplaneInfo& m_airplane;
    FlutterTrend& m_trend;
    NameOrder m_categories;
    NameOrder m_groups;
    std::vector<const EVM*> m_files;
};

std::string requirementNameOf(const AirplaneInfo& airplane, const Requirement& requirement)
{
    return shortestText(requirement.factor) + " x "
        + (airplane.VdTag.empty() ? "Vd" : airplane.VdTag);
}

/// The required speeds of all envelopes whose name is a Mach number.
std::vector<TrendRequirement> requirementOfEnvelopes(const AirplaneInfo& airplane,
                                                     const Requirement& requirement)
{
    std::vector<TrendRequirement> required;
    for (const FlutterEnvelope& envelope : airplane.FlutterEnvs) {
        float mach = 0;
        if (parseSingle(envelope.name, mach) == NumberStatus::Ok)
            required.push_back(
                {decimalValue(mach), requirement.factor * static_cast<double>(envelope.Vd)});
    }
    return required;
}

std::vector<TrendRequirement> requirementOfPoints(const std::vector<TrendPoint>& points)
{
    std::vector<TrendRequirement> required;
    for (const TrendPoint& point : points) {
        const bool isKnown =
            std::any_of(required.begin(), required.end(), [&point](const TrendRequirement& one) {
                return point.abscissa == one.abscissa && point.required == one.speed;
            });
        if (point.required && point.abscissa && point.whyNotDrawn.empty() && !isKnown)
            required.push_back({*point.abscissa, *point.required});
    }
    return required;
}

void require(const AirplaneInfo& airplane, const Requirement& requirement, FlutterTrend& trend)
{
    trend.requirementName = requirementNameOf(airplane, requirement);
    trend.isRequirementLine = trend.abscissa == TrendAbscissa::Mach;
    trend.required = trend.isRequirementLine ? requirementOfEnvelopes(airplane, requirement)
                                             : requirementOfPoints(trend.points);
    std::stable_sort(trend.required.begin(), trend.required.end(),
                     [](const auto& a, const auto& b) { return a.abscissa < b.abscissa; });
}

} // namespace

std::string_view nameOf(TrendAbscissa abscissa)
{
    return trendAbscissaNames.at(static_cast<std::size_t>(abscissa)).second;
}

std::optional<TrendAbscissa> trendAbscissaOf(std::string_view name)
{
    for (const auto& [abscissa, known] : trendAbscissaNames) {
        if (known == name)
            return abscissa;
    }
    return std::nullopt;
}

FlutterTrend trendOf(const std::vector<EvolutionStability>& evolutions,
                     const StabilitySettings& settings, TrendAbscissa abscissa,
                     const AirplaneInfo& airplane, const std::optional<Requirement>& requirement)
{
    FlutterTrend trend;
    trend.abscissa = abscissa;
    trend.settings = settings;
    for (std::size_t level = 0; level < settings.levels.size(); ++level) {
        for (const EvolutionStability& stability : evolutions)
            trend.points.push_back(stability.obstacle.empty()
                                       ? trendPointOf(stability, stability.verdicts[level])
                                       : untrackedPoint(stability, settings.levels[level]));
    }
    TrendPlacing(airplane, trend).placeAll();
    if (requirement)
        require(airplane, *requirement, trend);
    return trend;
}

bool areJoined(const TrendPoint& a, const TrendPoint& b)
{
    return a.onset == TrendOnset::Start && b.onset == TrendOnset::Start && a.level == b.level
        && a.group == b.group && a.modes == b.modes && a.start->kind == b.start->kind;
}

} // namespace tarsil
