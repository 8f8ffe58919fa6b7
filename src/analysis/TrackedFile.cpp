// SPDX-License-Identifier: Apache-2.0
#include "analysis/TrackedFile.h"

#include "base/numbers/NumberFormat.h"
#include "base/user/RunTimeError.h"
#include "formats/Ev2Relabel.h"
#include "model/EVM.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>

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

/// Describes the changes of the tracking at one step as exchanges of two modes each.
void describeStep(const EVM& evolution, const ModeTracking& tracking, std::size_t point,
                  std::vector<std::string>& texts)
{
    std::vector<std::size_t> held(tracking.tracks()); ///< by track, updated with each exchange
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

/// An exchange in indices, with its sentence.
struct IndexedExchange
{
    std::size_t first;
    std::size_t second;
    std::size_t fromPoint;
    std::string text;
};

IndexedExchange indexed(const EVM& evolution, const ModeExchange& exchange)
{
    const std::size_t first = indexOfMode(evolution, exchange.firstMode);
    const std::size_t second = indexOfMode(evolution, exchange.secondMode);
    if (first == second)
        refuse(evolution, "a mode is to be exchanged with itself");
    const std::size_t point = firstPointAbove(evolution, exchange.aboveSpeed);
    return {first, second, point,
            exchangeText(evolution, std::min(first, second), std::max(first, second),
                         exchange.aboveSpeed)
                + " (by hand)"};
}

/// The mode whose root after a step is nearest to that of a mode.
std::size_t nearestRoot(const EVM& evolution, std::size_t mode, std::size_t point)
{
    const auto distance = [&evolution, mode, point](std::size_t other) {
        const Point& a = evolution.Modes[mode]->Points[point];
        const Point& b = evolution.Modes[other]->Points[point];
        return std::hypot(a.re - b.re, a.im - b.im);
    };
    std::size_t nearest = mode == 0 ? 1 : 0;
    for (std::size_t other = nearest + 1; other < evolution.Modes.size(); ++other) {
        if (other != mode && distance(other) < distance(nearest))
            nearest = other;
    }
    return nearest;
}

TrackingDoubt doubtOf(const EVM& evolution, const ModeTracking& tracking, const TrackMark& mark)
{
    const std::size_t mode = tracking.modeAt(mark.step - 1, mark.track);
    const std::size_t nearest = nearestRoot(evolution, mode, mark.step);
    const std::vector<Point>& points = evolution.Modes[mode]->Points;
    return {evolution.Modes[mode]->Id,
            evolution.Modes[nearest]->Id,
            points[mark.step - 1].speed,
            points[mark.step].speed,
            mark.isAmbiguous,
            mark.isJump};
}

} // namespace

TrackedEvolution trackEvolution(const EVM& evolution, const std::vector<ModeExchange>& exchanges,
                                const Progress& progress)
{
    if (const auto obstacle = ModeTracking::obstacle(evolution))
        refuse(evolution, "it cannot be tracked: " + *obstacle);
    TrackedEvolution tracked {ModeTracking(evolution, progress), {}};
    if (!tracked.tracking.isComplete())
        return tracked;
    for (std::size_t point = 1; point < tracked.tracking.points(); ++point)
        describeStep(evolution, tracked.tracking, point, tracked.modifications);
    for (const ModeExchange& exchange : exchanges) {
        IndexedExchange found = indexed(evolution, exchange);
        tracked.tracking.exchange(found.first, found.second, found.fromPoint);
        tracked.modifications.push_back(std::move(found.text));
    }
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

std::string exchangedText(std::string_view text, const EVM& evolution, const ModeExchange& exchange)
{
    const IndexedExchange found = indexed(evolution, exchange);
    std::vector<std::size_t> modes(evolution.Modes.size());
    std::iota(modes.begin(), modes.end(), std::size_t {0});
    std::vector<std::vector<std::size_t>> sources(evolution.Modes.front()->Points.size(), modes);
    for (std::size_t point = found.fromPoint; point < sources.size(); ++point)
        std::swap(sources[point][found.first], sources[point][found.second]);
    return relabelledEv2(text, sources, {found.text});
}

std::vector<TrackingDoubt> doubtsOf(const EVM& evolution)
{
    std::vector<TrackingDoubt> doubts;
    if (evolution.Modes.size() < 2 || ModeTracking::obstacle(evolution))
        return doubts;
    const ModeTracking tracking(evolution);
    for (const TrackMark& mark : tracking.marks())
        doubts.push_back(doubtOf(evolution, tracking, mark));
    std::stable_sort(doubts.begin(), doubts.end(),
                     [](const auto& a, const auto& b) { return a.fromSpeed < b.fromSpeed; });
    return doubts;
}

bool isTracked(const EVM& evolution)
{
    return evolution.FileName.ends_with(trackedName({}));
}

std::string trackedName(std::string_view fileName)
{
    const std::size_t dot = std::min(fileName.rfind('.'), fileName.size());
    return std::string(fileName.substr(0, dot)) + "_tracked.ev2";
}

} // namespace tarsil
