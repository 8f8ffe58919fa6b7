// SPDX-License-Identifier: Apache-2.0
#include "analysis/FlutterReport.h"

#include "analysis/FlutterSearch.h"
#include "analysis/Isa.h"
#include "base/files/PathNames.h"
#include "base/numbers/Numbers.h"
#include "base/user/RunTimeError.h"
#include "model/EVM.h"

#include <algorithm>
#include <utility>

namespace tarsil {

namespace {

enum Column : std::size_t {
    FileName = 1,
    Case,
    Mass,
    MachNumber,
    ModeNumber,
    LargestDamping,
    LargestDampingSpeed,
    FirstBlock
};

constexpr std::size_t headingLine = 1;

void writeHeadings(Sheet& sheet)
{
    sheet.setText(headingLine, FileName, "Modal Evolution");
    sheet.setText(headingLine, Case, "Case");
    sheet.setText(headingLine, Mass, "Mass");
    sheet.setText(headingLine, MachNumber, "Mach No.");
    sheet.setText(headingLine, ModeNumber, "Aero Mode");
    sheet.setText(headingLine, LargestDamping, "gmax value");
    sheet.setText(headingLine, LargestDampingSpeed, "gmax speed");
}

void writeBlockHeadings(std::size_t crossings, Sheet& sheet)
{
    sheet.setText(headingLine, FirstBlock, "Flutter Speed");
    sheet.setText(headingLine, FirstBlock + crossings, "Flutter Frequency");
    sheet.setText(headingLine, FirstBlock + 2 * crossings, "Flutter Altitude");
    sheet.setText(headingLine, FirstBlock + 3 * crossings, "MPF(1)");
}

/// Runs a part of the report. Returns whether it succeeded.
template <typename Part>
bool attempt(const FlutterReport::FailureReport& report, Part part)
{
    try {
        part();
    } catch (const RunTimeError& error) {
        report(error);
        return false;
    }
    return true;
}

/// Searches every mode and returns the largest number of crossings. A mode whose search fails gets
/// none: its first crossings alone could pass for all of them. Each mode is a step.
std::size_t findCrossings(const std::vector<ReportRow>& rows, double gOffset,
                          const FlutterReport::FailureReport& report, StepCounter& steps)
{
    std::size_t largest = 0;
    for (const ReportRow& row : rows) {
        if (!attempt(report, [&] { FlutterPtsCalc(*row.mode, gOffset); }))
            row.mode->flutterPoints.clear();
        largest = std::max(largest, row.mode->flutterPoints.size());
        if (!steps.next())
            break;
    }
    return largest;
}

/// The altitude in feet at which the equivalent airspeed corresponds to the Mach number. An error
/// contains the mode, the speed and the Mach number.
double altitudeOf(const AeMode& mode, float speed, float mach)
{
    try {
        return ISA::IsaAltitude(double {speed}, double {mach}, "knot");
    } catch (const RunTimeError& error) {
        throw RunTimeError(error.number(), error.source(),
                           shownPath(mode.Parent->path()) + ", mode " + std::to_string(mode.Id)
                               + ": altitude of " + shortestText(speed) + " knots at Mach "
                               + shortestText(mach));
    }
}

} // namespace

FlutterReport::FlutterReport(double referenceDamping, double speedLimit, MachQuestion askMach)
    : m_referenceDamping(referenceDamping), m_speedLimit(speedLimit), m_askMach(std::move(askMach))
{ }

bool FlutterReport::write(const std::vector<ReportRow>& rows, Sheet& sheet,
                          const Progress& progress) const
{
    return writeWhatCan(
        rows, sheet, [](const RunTimeError& error) { throw error; }, progress);
}

bool FlutterReport::writeWhatCan(const std::vector<ReportRow>& rows, Sheet& sheet,
                                 const FailureReport& report, const Progress& progress) const
{
    StepCounter steps(progress, 2 * rows.size() + 1);
    writeHeadings(sheet);
    const std::size_t crossings = findCrossings(rows, -m_referenceDamping, report, steps);
    writeBlockHeadings(crossings, sheet);
    std::size_t line = headingLine;
    for (auto row = rows.begin(); row != rows.end() && !steps.isStopped(); ++row) {
        writeRow(*row, ++line, crossings, sheet, report);
        steps.next();
    }
    return !steps.isStopped();
}

void FlutterReport::writeRow(const ReportRow& row, std::size_t line, std::size_t crossings,
                             Sheet& sheet, const FailureReport& report) const
{
    const AeMode& mode = *row.mode;
    const EVM& evolution = *mode.Parent;
    sheet.setText(line, FileName, evolution.FileName);
    if (evolution.isNewFormat)
        sheet.setText(line, Case, row.caseText);
    sheet.setText(line, Mass, evolution.Param.Mass);
    sheet.setNumber(line, MachNumber, decimalValue(evolution.Param.Mach));
    sheet.setNumber(line, ModeNumber, mode.Id);
    attempt(report, [&] { writeMaximum(mode, line, sheet); });
    writeCrossings(mode, line, crossings, sheet, report);
}

void FlutterReport::writeMaximum(const AeMode& mode, std::size_t line, Sheet& sheet) const
{
    // gMaxCalc does not set the speed when the first point is the maximum.
    double speed = mode.Points.empty() ? 0.0 : double {mode.Points.front().speed};
    const float damping = gMaxCalc(mode, m_speedLimit, speed);
    sheet.setNumber(line, LargestDamping, decimalValue(damping));
    sheet.setNumber(line, LargestDampingSpeed, decimalValue(static_cast<float>(speed)));
}

void FlutterReport::writeCrossings(const AeMode& mode, std::size_t line, std::size_t crossings,
                                   Sheet& sheet, const FailureReport& report) const
{
    const EVM& evolution = *mode.Parent;
    std::size_t column = FirstBlock;
    for (const Point& point : mode.flutterPoints) {
        sheet.setNumber(line, column, decimalValue(point.speed));
        sheet.setNumber(line, column + crossings, decimalValue(point.f));
        const float mach = machNumber(mode, line, sheet);
        attempt(report, [&] {
            sheet.setNumber(line, column + 2 * crossings, altitudeOf(mode, point.speed, mach));
        });
        if (evolution.hasParticipationFactors && !point.mpf.empty())
            sheet.setNumber(line, column + 3 * crossings, decimalValue(point.mpf[0]));
        ++column;
    }
}

/// The Mach number of the evolution, or else of the user, which is then written into the row.
float FlutterReport::machNumber(const AeMode& mode, std::size_t line, Sheet& sheet) const
{
    const EVM& evolution = *mode.Parent;
    if (evolution.Param.Mach > 0)
        return evolution.Param.Mach;
    const std::string answer = m_askMach(mode, machPrompt).value_or(std::string());
    const float mach = toSingle(answer, "FlutterReport", "Mach No. of " + evolution.FileName);
    sheet.setNumber(line, MachNumber, decimalValue(mach));
    return mach;
}

} // namespace tarsil
