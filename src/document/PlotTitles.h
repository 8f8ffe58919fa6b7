#pragma once

#include <QString>

#include <string>

namespace tarsil {

class AirplaneInfo;
class EVM;
class EvmPlot;

// The texts and marks that a plot gets from what is known about an evolution and its airplane.

/// What the user can do about an airplane of which nothing is known, because no aircraft
/// information file is set or the one that is set is not there; empty in every other case.
std::string missingAircraftText(const AirplaneInfo& airplane);

/// The header in three lines: airplane and mass configuration; method and Mach number; what the
/// user says.
QString headerText(const EVM& evolution, const QString& lastLine);

/// Replaces the reference speeds of a plot by those of the flutter envelope at the evolution's Mach
/// number: ceiling, dive speed, limit speed. Error 5 when the airplane
/// has no envelope at that Mach number; the plot is unchanged then.
void markEnvelope(EvmPlot& plot, const EVM& evolution, const AirplaneInfo& airplane);

/// Gives a plot the subtitle and the axes of a flutter mechanism. Error 5 when the airplane has
/// none of that name, 6 for a tick count beyond 16 bits; the plot is unchanged then.
void showMechanism(EvmPlot& plot, const AirplaneInfo& airplane, const QString& shortName,
                   bool withLongName);

/// Writes the legend of a plot, in `points`: a line "[tag] text" in the curve's colour for each
/// series that has a legend text.
void writeLegend(EvmPlot& plot, double points);

} // namespace tarsil
