// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace tarsil {

class AeMode;

// The two searches over the points of one mode. The points are in file order, which is increasing
// speed; only neighbouring points are compared.
//
//        g
//        |                        __ P1      a = G(P0) + gOffset
//   g_ref|- - - - - - - - - - _-x- - - -     b = G(P1) + gOffset
//        |              ___---  Vf           crossing where a and b differ in sign
//        |         P0 --
//        +------------------------------ V

/// Fills `mode.flutterPoints` with one point for each interval in which damping plus `gOffset`
/// changes its sign, in the order of the intervals. Removes the results of an earlier search first.
/// To find where the damping crosses g_ref (dimensionless, negative is stable), pass minus g_ref. A
/// damping exactly at the reference does not count as a crossing in either of its intervals.
///
/// Speed (KEAS), frequency (Hz), real part, reduced frequency and the participation factors that
/// both points have are interpolated: the straight line of value against damping at the reference.
/// A value that both points share is copied. Imaginary part, damping and the two spare values stay
/// 0. `Parent` of a found point is the mode.
///
/// Always returns false; callers look at the points. Errors, each with file, mode and the two
/// speeds: 11 for a crossing between two points of equal speed, 6 for a value outside the range of
/// a single. The points found before the error stay.
bool FlutterPtsCalc(AeMode& mode, double gOffset);

/// The largest damping of the first point and of all points with a speed (KEAS) up to `speedLimit`.
/// Among equal ones the first wins. Sets `gMaxSpeed` to the speed of that point, unless it is the
/// first point: then `gMaxSpeed` is unchanged. Error 9, with file and mode, for a mode without
/// points.
float gMaxCalc(const AeMode& mode, double speedLimit, double& gMaxSpeed);

} // namespace tarsil
