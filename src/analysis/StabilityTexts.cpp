// SPDX-License-Identifier: Apache-2.0
#include "analysis/StabilityTexts.h"

#include "base/numbers/NumberFormat.h"
#include "base/numbers/Numbers.h"

#include <cmath>
#include <vector>

namespace tarsil {

namespace {

std::string listOf(const std::vector<std::int16_t>& modes)
{
    std::string text;
    for (const std::int16_t mode : modes)
        text += (text.empty() ? "" : ", ") + std::to_string(mode);
    return text;
}

std::string intervalText(const Crossing& crossing)
{
    return "between " + speedText(crossing.fromSpeed) + " and " + speedText(crossing.toSpeed)
        + " KEAS, different roots";
}

} // namespace

std::string verdictText(const StabilityVerdict& verdict, float lastSpeed)
{
    if (!verdict.unstableFromFirst.empty())
        return "unstable from the first speed: modes " + listOf(verdict.unstableFromFirst);
    if (!verdict.lowest && lastSpeed == 0)
        return "there are no points to judge";
    if (!verdict.lowest)
        return "no instability up to " + speedText(lastSpeed) + " KEAS";
    const Crossing& start = *verdict.lowest;
    const std::string mode =
        ", mode " + std::to_string(verdict.lowestMode) + " (" + nameOf(start.confidence) + ")";
    if (!hasSpeed(start))
        return intervalText(start) + mode;
    return formatNumber(start.speed, "0.00") + " +- " + doubtText(start) + " KEAS, "
        + formatNumber(start.frequency, "0.00") + " Hz, " + nameOf(start.kind) + mode;
}

std::string speedText(double speed)
{
    constexpr double hundredths = 100;
    return shortestText(std::round(speed * hundredths) / hundredths);
}

std::string doubtText(const Crossing& crossing)
{
    return formatNumber(std::fabs(crossing.speedOnCurve - crossing.speed), "0.00");
}

std::string directionText(const Stretch& stretch)
{
    if (stretch.start)
        return stretch.end ? "hump" : "becomes unstable";
    return stretch.end ? "becomes stable" : "unstable throughout";
}

std::string remarkText(const Stretch& stretch)
{
    std::vector<std::string> parts;
    if (!stretch.start)
        parts.emplace_back("unstable from the first speed");
    else if (!hasSpeed(*stretch.start))
        parts.push_back("starts " + intervalText(*stretch.start));
    if (!stretch.end)
        parts.emplace_back("up to the last speed");
    else if (!hasSpeed(*stretch.end))
        parts.push_back("ends " + intervalText(*stretch.end));
    std::string text;
    for (const std::string& part : parts)
        text += (text.empty() ? "" : "; ") + part;
    return text;
}

std::string leftOutText(std::size_t noise, std::size_t weak)
{
    return std::to_string(noise) + " noise, " + std::to_string(weak) + " weak stretches left out";
}

std::string settingsText(const StabilitySettings& settings)
{
    std::string text = "levels of damping";
    for (const float level : settings.levels)
        text += (level == settings.levels.front() ? " " : ", ") + shortestText(level);
    return text + "; weak up to " + shortestText(settings.limits.tolerance)
        + " above a level, noise up to " + shortestText(settings.limits.noise) + "; static below "
        + shortestText(settings.limits.staticFrequency) + " Hz; "
        + (settings.isTracked ? "roots tracked" : "modes as printed");
}

std::string nameOf(CrossingKind kind)
{
    switch (kind) {
    case CrossingKind::Flutter:
        return "flutter";
    case CrossingKind::Divergence:
        return "divergence";
    case CrossingKind::Mixed:
        return "mixed";
    }
    return {};
}

std::string nameOf(Confidence confidence)
{
    switch (confidence) {
    case Confidence::A:
        return "A";
    case Confidence::B:
        return "B";
    case Confidence::C:
        return "C";
    }
    return {};
}

std::string nameOf(StretchHeight height)
{
    switch (height) {
    case StretchHeight::Noise:
        return "noise";
    case StretchHeight::Weak:
        return "weak";
    case StretchHeight::Real:
        return "real";
    }
    return {};
}

} // namespace tarsil
