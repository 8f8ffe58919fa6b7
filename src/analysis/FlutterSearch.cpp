// SPDX-License-Identifier: Apache-2.0
#include "analysis/FlutterSearch.h"

#include "base/files/PathNames.h"
#include "base/numbers/Numbers.h"
#include "base/user/RunTimeError.h"
#include "model/EVM.h"

#include <algorithm>
#include <cmath>
#include <string>

namespace tarsil {

namespace {

std::string nameOf(const AeMode& mode)
{
    const std::string number = "mode " + std::to_string(mode.Id);
    const bool hasFile = mode.Parent != nullptr && !mode.Parent->FileName.empty();
    return hasFile ? shownPath(mode.Parent->path()) + ", " + number : number;
}

/// An interval between two neighbouring points in which the damping crosses the reference.
class LevelCrossing
{
public:
    LevelCrossing(AeMode& mode, const Point& before, const Point& after, double a, double b)
        : m_mode(mode), m_before(before), m_after(after), m_a(a), m_b(b)
    { }

    Point interpolated() const;

private:
    float at(float before, float after) const;
    float shared(float before, float after) const
    {
        return after == before ? after : at(before, after);
    }
    [[noreturn]] void fail(ErrorNumber number) const;

    AeMode& m_mode;
    const Point& m_before;
    const Point& m_after;
    double m_a; ///< damping minus reference before the crossing
    double m_b; ///< and after it
};

Point LevelCrossing::interpolated() const
{
    if (m_after.speed == m_before.speed)
        fail(ErrorNumber::DivisionByZero);
    Point point;
    point.speed = at(m_before.speed, m_after.speed);
    point.f = shared(m_before.f, m_after.f);
    point.re = shared(m_before.re, m_after.re);
    point.kfreq = shared(m_before.kfreq, m_after.kfreq);
    const std::size_t factors = std::min(m_before.mpf.size(), m_after.mpf.size());
    for (std::size_t i = 0; i < factors; ++i)
        point.mpf.append(shared(m_before.mpf[i], m_after.mpf[i]));
    point.Parent = &m_mode;
    return point;
}

/// The zero of the straight line through (before, a) and (after, b).
float LevelCrossing::at(float before, float after) const
{
    const double last = after;
    const double slope = (m_b - m_a) / (last - double {before});
    const double intercept = m_b - last * slope;
    const double value = -intercept / slope;
    constexpr double firstBeyondSingles = 0x1.ffffffp127; // larger values do not round to a single
    if (!(std::fabs(value) < firstBeyondSingles))
        fail(ErrorNumber::Overflow);
    return static_cast<float>(value);
}

void LevelCrossing::fail(ErrorNumber number) const
{
    throw RunTimeError(number, "AeMode",
                       nameOf(m_mode) + ", between the speeds " + shortestText(m_before.speed)
                           + " and " + shortestText(m_after.speed));
}

} // namespace

bool FlutterPtsCalc(AeMode& mode, double gOffset)
{
    mode.flutterPoints.clear();
    if (mode.Points.empty())
        return false;
    const Point* before = mode.Points.data();
    const Point* const end = before + mode.Points.size();
    double a = double {before->G} + gOffset;
    for (const Point* after = before + 1; after != end; before = after++) {
        const double b = double {after->G} + gOffset;
        if (a * b < 0)
            mode.flutterPoints.push_back(LevelCrossing(mode, *before, *after, a, b).interpolated());
        a = b;
    }
    return false;
}

float gMaxCalc(const AeMode& mode, double speedLimit, double& gMaxSpeed)
{
    if (mode.Points.empty())
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange, "AeMode",
                           nameOf(mode) + " has no points");
    float largest = mode.Points.front().G;
    for (const Point& point : mode.Points) {
        if (double {point.speed} <= speedLimit && point.G > largest) {
            largest = point.G;
            gMaxSpeed = point.speed;
        }
    }
    return largest;
}

} // namespace tarsil
