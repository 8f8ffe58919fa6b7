#pragma once

namespace tarsil {

class AeMode;

// The two searches over the points of one mode. They take the points in file order, which is
// increasing speed, and look at nothing but neighbours.
//
//        g
//        |                        __ P1      a = G(P0) + gOffset
//   g_ref|- - - - - - - - - - _-x- - - -     b = G(P1) + gOffset
//        |              ___---  Vf           crossing where a and b differ in sign
//        |         P0 --
//        +------------------------------ V

/// Fills `mode.flutterPoints` with one point for every interval in which the sum of damping and
/// `gOffset` changes its sign, in the order of the intervals; what an earlier search left there
/// goes first. To find where the damping crosses g_ref (dimensionless, negative is stable), pass
/// minus g_ref. A damping exactly at the reference is a crossing of neither of its intervals.
///
/// Speed (KEAS), frequency (Hz), real part, reduced frequency and the participation factors that
/// both points have are those at which the straight line through the two points, value against
/// damping, reaches the reference; a value that both points share is copied. Imaginary part,
/// damping and the two spare values stay 0. `Parent` of a found point is the mode.
///
/// The result is always false: callers look at the points. Errors, each naming file, mode and the
/// two speeds: 11 for a crossing between two points of the same speed, 6 for a value beyond the
/// range of a single. The points found before the error stay.
bool FlutterPtsCalc(AeMode& mode, double gOffset);

/// The largest damping among the first point and all points whose speed (KEAS) is at most
/// `speedLimit`; the first of several equal ones wins. `gMaxSpeed` becomes the speed of that point,
/// and stays as it was when the first point is the one. Error 9, naming file and mode, for a mode
/// without points.
float gMaxCalc(const AeMode& mode, double speedLimit, double& gMaxSpeed);

} // namespace tarsil
