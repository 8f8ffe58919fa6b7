// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "base/user/Progress.h"

#include <complex>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace tarsil {

class EVM;

/// A doubt about one step of one track.
struct TrackMark
{
    std::size_t step = 0; ///< from point `step` to point `step + 1`, counted from 1
    std::size_t track = 0; ///< index
    bool isAmbiguous = false; ///< an exchange with another track would cost less than twice as much
    bool isJump = false; ///< the root is far from its prediction
};

/// The printed roots of one point, by mode. Real and imaginary parts are apart, because the search
/// for near roots compares one root with all others.
struct StepRoots
{
    std::vector<double> re;
    std::vector<double> im;

    std::complex<double> at(std::size_t mode) const { return {re[mode], im[mode]}; }
};

/// The printed root that each track follows at each point. Track t starts as the printed mode of
/// index t. Only labels change, never numbers.
///
/// Solvers order oscillatory roots by frequency, so labels swap where curves cross. Roots are
/// followed by continuity: linear extrapolation of each eigenvalue (Desmarais and Bennett, J.
/// Aircraft 11(2), 1974; Chen, AIAA J. 38(9), 2000) and an assignment of least total distance.
/// Limits: coarse steps; veering pairs (flagged as ambiguous); a pair that becomes two static roots
/// of which only one is printed; rigid-body roots near 0; the methods K and KE at low reduced
/// frequency.
class ModeTracking
{
public:
    /// Tracks the roots of an evolution by their eigenvalues Re + i Im. The extrapolation uses the
    /// speed when all modes share the same rising speeds, otherwise the index of the point.
    /// O(points n^3) for n modes. Reports progress after each point; after a stop the tracking is
    /// not complete, and its results are meaningless.
    explicit ModeTracking(const EVM& evolution, const Progress& progress = {});

    bool isComplete() const { return m_isComplete; }

    /// Why an evolution cannot be tracked: modes of unequal length, or points without eigenvalues.
    /// Empty when it can be tracked. A single mode needs no eigenvalues: nothing is exchanged.
    static std::optional<std::string> obstacle(const EVM& evolution);

    std::size_t points() const { return m_modes.size(); }
    std::size_t tracks() const { return m_modes.empty() ? 0 : m_modes.front().size(); }

    /// The index of the printed mode that a track follows at a point. Both arguments are indices.
    std::size_t modeAt(std::size_t point, std::size_t track) const { return m_modes[point][track]; }

    const std::vector<TrackMark>& marks() const { return m_marks; }

    /// Whether the step from `point` (index) to the next is doubtful for a track.
    bool isMarked(std::size_t point, std::size_t track) const;

    /// Exchanges two tracks from a point (index) to the end, at the user's request.
    void exchange(std::size_t firstTrack, std::size_t secondTrack, std::size_t fromPoint);

    /// A point from which a track follows another printed mode.
    struct Move
    {
        std::size_t point = 0; ///< index of the first point with the new mode
        std::size_t track = 0;
        std::size_t fromMode = 0; ///< indices of printed modes
        std::size_t toMode = 0;
    };

    /// All moves, sorted by point and then by track.
    std::vector<Move> moves() const;

private:
    using Predictions = std::vector<std::complex<double>>; ///< by track

    void readRoots(const EVM& evolution);
    void readArguments(const EVM& evolution);
    void trackStep(std::size_t point);
    std::complex<double> rootAt(std::size_t point, std::size_t track) const;
    double stepRatio(std::size_t point) const;
    std::complex<double> predictionAt(std::size_t point, std::size_t track) const;
    bool isJump(std::size_t point, std::size_t track, std::complex<double> prediction) const;
    std::vector<double> missesAt(std::size_t point, const Predictions& predictions) const;
    bool hasRival(std::size_t point, std::complex<double> prediction, double miss,
                  double largestMiss) const;
    void mark(const TrackMark& mark);

    bool m_isComplete = true;
    std::vector<StepRoots> m_roots; ///< by point
    std::vector<double> m_arguments; ///< by point
    std::vector<std::vector<std::size_t>> m_modes; ///< by point and track
    std::vector<bool> m_hasJumped; ///< by track: whether its last step was a jump
    std::vector<TrackMark> m_marks;
    std::vector<std::vector<bool>> m_isMarked; ///< by point and track
};

} // namespace tarsil
