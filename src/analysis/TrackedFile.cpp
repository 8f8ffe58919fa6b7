#include "analysis/TrackedFile.h"

#include "base/numbers/NumberFormat.h"
#include "base/user/RunTimeError.h"
#include "formats/Ev2Relabel.h"
#include "model/EVM.h"

#include <algorithm>

namespace tarsil {

namespace {

constexpr std::string_view module = "Tracking";

[[noreturn]] void refuse(const EVM& evolution, const std::string& reason)
{
    throw RunTimeError(ErrorNumber::InvalidProcedureCall, std::string(module),
                       evolution.FileName + ": " + reason);
}

std::size_t indexOfMode(const EVM& evolution, std::int16_t number)
{
    const auto found = std::find_if(evolution.Modes.begin(), evolution.Modes.end(),
                                    [number](const auto& mode) { return mode->Id == number; });
    if (found == evolution.Modes.end())
        refuse(evolution, "there is no mode " + std::to_string(number));
    return static_cast<std::size_t>(found - evolution.Modes.begin());
}

std::size_t firstPointAbove(const EVM& evolution, float speed)
{
    const std::vector<Point>& points = evolution.Modes.front()->Points;
    const auto found = std::find_if(points.begin(), points.end(),
                                    [speed](const Point& point) { return point.speed > speed; });
    if (found == points.end())
        refuse(evolution, "no point is above " + formatNumber(speed, "0.00") + " KEAS");
    return static_cast<std::size_t>(found - points.begin());
}

std::string exchangeText(const EVM& evolution, std::size_t first, std::size_t second, float speed)
{
    return "modes " + std::to_string(evolution.Modes[first]->Id) + " and "
        + std::to_string(evolution.Modes[second]->Id) + " exchanged above "
        + formatNumber(speed, "0.00") + " KEAS";
}

/// What the tracking did at one step, as exchanges of two modes each.
void describeStep(const EVM& evolution, const ModeTracking& tracking, std::size_t point,
                  std::vector<std::string>& texts)
{
    std::vector<std::size_t> held(tracking.tracks()); ///< by track, as the exchanges go on
    for (std::size_t track = 0; track < held.size(); ++track)
        held[track] = tracking.modeAt(point - 1, track);
    const float speed = evolution.Modes.front()->Points[point - 1].speed;
    for (std::size_t track = 0; track < held.size(); ++track) {
        const std::size_t wanted = tracking.modeAt(point, track);
        if (held[track] == wanted)
            continue;
        const auto other = std::find(held.begin(), held.end(), wanted);
        texts.push_back(exchangeText(evolution, std::min(held[track], wanted),
                                     std::max(held[track], wanted), speed)
                        + " (by tracking)");
        std::swap(held[track], *other);
    }
}

void exchangeByHand(const EVM& evolution, const ModeExchange& exchange, TrackedEvolution& tracked)
{
    const std::size_t first = indexOfMode(evolution, exchange.firstMode);
    const std::size_t second = indexOfMode(evolution, exchange.secondMode);
    if (first == second)
        refuse(evolution, "a mode is to be exchanged with itself");
    const std::size_t point = firstPointAbove(evolution, exchange.aboveSpeed);
    tracked.tracking.exchange(first, second, point);
    tracked.modifications.push_back(exchangeText(evolution, std::min(first, second),
                                                 std::max(first, second), exchange.aboveSpeed)
                                    + " (by hand)");
}

} // namespace

TrackedEvolution trackEvolution(const EVM& evolution, const std::vector<ModeExchange>& exchanges)
{
    if (const auto obstacle = ModeTracking::obstacle(evolution))
        refuse(evolution, "it cannot be tracked: " + *obstacle);
    TrackedEvolution tracked {ModeTracking(evolution), {}};
    for (std::size_t point = 1; point < tracked.tracking.points(); ++point)
        describeStep(evolution, tracked.tracking, point, tracked.modifications);
    for (const ModeExchange& exchange : exchanges)
        exchangeByHand(evolution, exchange, tracked);
    return tracked;
}

std::string trackedText(std::string_view sourceText, const TrackedEvolution& tracked)
{
    const ModeTracking& tracking = tracked.tracking;
    std::vector<std::vector<std::size_t>> sources(tracking.points());
    for (std::size_t point = 0; point < sources.size(); ++point) {
        for (std::size_t track = 0; track < tracking.tracks(); ++track)
            sources[point].push_back(tracking.modeAt(point, track));
    }
    return relabelledEv2(sourceText, sources, tracked.modifications);
}

std::string trackedName(std::string_view fileName)
{
    const std::size_t dot = std::min(fileName.rfind('.'), fileName.size());
    return std::string(fileName.substr(0, dot)) + "_tracked.ev2";
}

} // namespace tarsil
