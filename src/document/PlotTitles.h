// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <string>

namespace tarsil {

class AirplaneInfo;
class EVM;
class EvmPlot;

// Texts and marks of a plot that are derived from an evolution and its airplane.

/// Advice for an airplane without data, when no aircraft information file is set or the file is
/// missing; empty otherwise.
std::string missingAircraftText(const AirplaneInfo& airplane);

/// A header of three lines: airplane and mass configuration; method and Mach number; `lastLine`.
QString headerText(const EVM& evolution, const QString& lastLine);

/// Replaces the reference speeds by those of the flutter envelope at the evolution's Mach number:
/// ceiling, dive speed, limit speed. Error 5 when the airplane has no envelope at that Mach number;
/// the plot is unchanged then.
void markEnvelope(EvmPlot& plot, const EVM& evolution, const AirplaneInfo& airplane);

/// Sets the subtitle and the axes of a flutter mechanism. Error 5 for an unknown name, 6 for a tick
/// count beyond 16 bits; the plot is unchanged then.
void showMechanism(EvmPlot& plot, const AirplaneInfo& airplane, const QString& shortName,
                   bool withLongName);

/// Writes the legend in a size of `points`: a line "[tag] text" in the colour of the curve for each
/// series with a legend text.
void writeLegend(EvmPlot& plot, double points);

} // namespace tarsil
