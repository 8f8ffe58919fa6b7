// SPDX-License-Identifier: Apache-2.0
#include "analysis/ModeTracking.h"

#include "analysis/Assignment.h"
#include "model/EVM.h"

#include <algorithm>
#include <cmath>

namespace tarsil {

namespace {

constexpr double staticImaginaryPart = 1e-9; ///< rad/s; up to it a root is static
constexpr double largestStepRatio = 2;
constexpr double keptLabelsTolerance = 1e-9;
constexpr double ambiguityFactor = 2;

// A root has jumped when it misses its prediction by more than `jumpFactor` times its last step (or
// `jumpPart` of itself, if that is larger) and by more than `leastJump`.
constexpr double jumpFactor = 3;
constexpr double jumpPart = 0.02; ///< of the root itself
constexpr double leastJump = 1e-3; ///< rad/s

bool isStatic(std::complex<double> root)
{
    return std::abs(root.imag()) <= staticImaginaryPart;
}

std::size_t pointCount(const EVM& evolution)
{
    return evolution.Modes.empty() ? 0 : evolution.Modes.front()->Points.size();
}

/// The speeds of the first mode, if all modes share them and they rise.
std::optional<std::vector<double>> commonRisingSpeeds(const EVM& evolution)
{
    std::vector<double> speeds;
    for (const Point& point : evolution.Modes.front()->Points) {
        if (!speeds.empty() && point.speed <= speeds.back())
            return std::nullopt;
        speeds.push_back(point.speed);
    }
    for (const auto& mode : evolution.Modes) {
        for (std::size_t i = 0; i < speeds.size(); ++i) {
            if (mode->Points[i].speed != static_cast<float>(speeds[i]))
                return std::nullopt;
        }
    }
    return speeds;
}

/// |a - b| without protection against overflow: eigenvalues are small enough.
double distance(std::complex<double> a, std::complex<double> b)
{
    const std::complex<double> d = a - b;
    return std::sqrt(d.real() * d.real() + d.imag() * d.imag());
}

/// The number of roots up to a distance from `center`. Counts too many rather than too few: the
/// limit is wider by far more than the rounding of a distance.
int countNear(const StepRoots& roots, std::complex<double> center, double limit)
{
    constexpr double slack = 1 + 1e-9;
    const double square = limit * limit * slack;
    int count = 0;
    for (std::size_t i = 0; i < roots.re.size(); ++i) {
        const double re = roots.re[i] - center.real();
        const double im = roots.im[i] - center.imag();
        count += re * re + im * im <= square ? 1 : 0;
    }
    return count;
}

/// The distance of each root from each prediction; a prediction has a row.
CostMatrix costsOf(const StepRoots& roots, const std::vector<std::complex<double>>& predictions)
{
    CostMatrix costs(predictions.size());
    for (std::size_t row = 0; row < predictions.size(); ++row) {
        for (std::size_t column = 0; column < predictions.size(); ++column)
            costs.at(row, column) = distance(roots.at(column), predictions[row]);
    }
    return costs;
}

/// Whether the present root of each track is the nearest to its prediction. Then no other
/// assignment costs less.
bool isNearestEverywhere(const CostMatrix& costs, const std::vector<std::size_t>& columns)
{
    for (std::size_t row = 0; row < columns.size(); ++row) {
        const double present = costs.at(row, columns[row]);
        for (std::size_t column = 0; column < columns.size(); ++column) {
            if (costs.at(row, column) < present)
                return false;
        }
    }
    return true;
}

/// The assignment of least cost; the present one when it costs no more.
std::vector<std::size_t> bestLabels(const CostMatrix& costs,
                                    const std::vector<std::size_t>& present)
{
    if (isNearestEverywhere(costs, present))
        return present;
    std::vector<std::size_t> best = leastCostAssignment(costs);
    const double limit = totalCost(costs, best) * (1 + keptLabelsTolerance) + keptLabelsTolerance;
    return totalCost(costs, present) <= limit ? present : best;
}

/// The rows whose exchange with some other row costs less than twice as much.
std::vector<bool> ambiguousRows(const CostMatrix& costs, const std::vector<std::size_t>& columns)
{
    std::vector<bool> result(columns.size());
    for (std::size_t row = 0; row < columns.size(); ++row) {
        const double own = costs.at(row, columns[row]);
        for (std::size_t other = row + 1; other < columns.size(); ++other) {
            const double kept = own + costs.at(other, columns[other]);
            const double exchanged = costs.at(row, columns[other]) + costs.at(other, columns[row]);
            if (exchanged < ambiguityFactor * kept)
                result[row] = result[other] = true;
        }
    }
    return result;
}

} // namespace

ModeTracking::ModeTracking(const EVM& evolution, const Progress& progress)
{
    const std::size_t modes = evolution.Modes.size();
    readRoots(evolution);
    readArguments(evolution);
    std::vector<std::size_t> printed(modes);
    for (std::size_t t = 0; t < modes; ++t)
        printed[t] = t;
    m_modes.assign(m_roots.size(), printed);
    m_isMarked.assign(m_roots.size(), std::vector<bool>(modes));
    m_hasJumped.assign(modes, false);
    if (modes < 2)
        return;
    for (std::size_t point = 1; point < m_roots.size() && m_isComplete; ++point) {
        trackStep(point);
        m_isComplete = goesOn(progress, point, m_roots.size());
    }
}

std::optional<std::string> ModeTracking::obstacle(const EVM& evolution)
{
    bool hasEigenvalues = evolution.Modes.size() == 1;
    for (const auto& mode : evolution.Modes) {
        if (mode->Points.size() != pointCount(evolution))
            return "its modes have unequal numbers of points";
        for (const Point& point : mode->Points)
            hasEigenvalues = hasEigenvalues || point.re != 0 || point.im != 0;
    }
    if (!hasEigenvalues)
        return "its points have no eigenvalues";
    return std::nullopt;
}

void ModeTracking::readRoots(const EVM& evolution)
{
    m_roots.resize(pointCount(evolution));
    for (StepRoots& roots : m_roots) {
        roots.re.reserve(evolution.Modes.size());
        roots.im.reserve(evolution.Modes.size());
    }
    for (const auto& mode : evolution.Modes) {
        for (std::size_t point = 0; point < m_roots.size(); ++point) {
            m_roots[point].re.push_back(mode->Points[point].re);
            m_roots[point].im.push_back(mode->Points[point].im);
        }
    }
}

void ModeTracking::readArguments(const EVM& evolution)
{
    if (m_roots.empty())
        return;
    if (auto speeds = commonRisingSpeeds(evolution)) {
        m_arguments = std::move(*speeds);
        return;
    }
    for (std::size_t point = 0; point < m_roots.size(); ++point)
        m_arguments.push_back(static_cast<double>(point));
}

std::complex<double> ModeTracking::rootAt(std::size_t point, std::size_t track) const
{
    return m_roots[point].at(m_modes[point][track]);
}

/// The ratio of the step to `point` and the step before it, limited above.
double ModeTracking::stepRatio(std::size_t point) const
{
    return std::min((m_arguments[point] - m_arguments[point - 1])
                        / (m_arguments[point - 1] - m_arguments[point - 2]),
                    largestStepRatio);
}

std::complex<double> ModeTracking::predictionAt(std::size_t point, std::size_t track) const
{
    const std::complex<double> last = rootAt(point - 1, track);
    if (point < 2 || m_hasJumped[track])
        return last;
    const std::complex<double> before = rootAt(point - 2, track);
    if (isStatic(before) != isStatic(last))
        return last;
    const std::complex<double> prediction = last + (last - before) * stepRatio(point);
    if (!isStatic(last) && prediction.imag() < 0)
        return {prediction.real(), 0};
    return prediction;
}

bool ModeTracking::isJump(std::size_t point, std::size_t track,
                          std::complex<double> prediction) const
{
    const std::complex<double> last = rootAt(point - 1, track);
    const double step = point < 2 ? 0 : distance(last, rootAt(point - 2, track)) * stepRatio(point);
    const double miss = distance(rootAt(point, track), prediction);
    return miss > leastJump && miss > jumpFactor * step
        && miss > jumpFactor * (jumpPart * std::abs(last));
}

/// How far each track is from its prediction at a point.
std::vector<double> ModeTracking::missesAt(std::size_t point, const Predictions& predictions) const
{
    std::vector<double> misses;
    misses.reserve(predictions.size());
    for (std::size_t track = 0; track < predictions.size(); ++track)
        misses.push_back(distance(rootAt(point, track), predictions[track]));
    return misses;
}

/// Whether any other root is so near to the prediction of a track that it could be the track's, or
/// make it ambiguous. An exchange of two tracks costs at least the distance of one of them from the
/// other's root, so roots farther than `ambiguityFactor` times both misses do not matter.
bool ModeTracking::hasRival(std::size_t point, std::complex<double> prediction, double miss,
                            double largestMiss) const
{
    return countNear(m_roots[point], prediction, ambiguityFactor * (miss + largestMiss)) > 1;
}

void ModeTracking::trackStep(std::size_t point)
{
    Predictions predictions;
    predictions.reserve(tracks());
    for (std::size_t track = 0; track < tracks(); ++track)
        predictions.push_back(predictionAt(point, track));
    m_modes[point] = m_modes[point - 1];
    const std::vector<double> misses = missesAt(point, predictions);
    const double largest = *std::max_element(misses.begin(), misses.end());
    std::vector<bool> isAmbiguousTrack(tracks());
    bool hasRivals = false;
    for (std::size_t track = 0; track < tracks() && !hasRivals; ++track)
        hasRivals = hasRival(point, predictions[track], misses[track], largest);
    if (hasRivals) {
        const CostMatrix costs = costsOf(m_roots[point], predictions);
        m_modes[point] = bestLabels(costs, m_modes[point]);
        isAmbiguousTrack = ambiguousRows(costs, m_modes[point]);
    }
    for (std::size_t track = 0; track < tracks(); ++track)
        mark({point, track, isAmbiguousTrack[track], isJump(point, track, predictions[track])});
}

void ModeTracking::mark(const TrackMark& mark)
{
    m_hasJumped[mark.track] = mark.isJump;
    if (!mark.isAmbiguous && !mark.isJump)
        return;
    m_marks.push_back(mark);
    m_isMarked[mark.step - 1][mark.track] = true;
}

bool ModeTracking::isMarked(std::size_t point, std::size_t track) const
{
    return m_isMarked[point][track];
}

std::vector<ModeTracking::Move> ModeTracking::moves() const
{
    std::vector<Move> moves;
    for (std::size_t point = 1; point < m_modes.size(); ++point) {
        for (std::size_t track = 0; track < tracks(); ++track) {
            if (m_modes[point][track] != m_modes[point - 1][track])
                moves.push_back({point, track, m_modes[point - 1][track], m_modes[point][track]});
        }
    }
    return moves;
}

void ModeTracking::exchange(std::size_t firstTrack, std::size_t secondTrack, std::size_t fromPoint)
{
    for (std::size_t point = fromPoint; point < m_modes.size(); ++point)
        std::swap(m_modes[point][firstTrack], m_modes[point][secondTrack]);
}

} // namespace tarsil
