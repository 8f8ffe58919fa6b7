// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "analysis/Sheet.h"
#include "base/user/Progress.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarsil {

class AeMode;
class RunTimeError;

/// A row of the flutter report: a mode, which must belong to an evolution, and a text that
/// identifies its case.
struct ReportRow
{
    AeMode* mode = nullptr; ///< not owned
    std::string caseText; ///< shown for evolutions of the new format only
};

/// The flutter table. Each row has the largest damping up to a speed limit and every crossing of a
/// reference damping with speed, frequency, altitude and first participation factor.
///
/// Row 1 has the headings. N is the largest number of crossings of any mode. The columns are
///
///     1 file | 2 case | 3 mass | 4 Mach | 5 mode | 6 gmax | 7 its speed (KEAS)
///     8 .. 7+N    speeds of the crossings (KEAS)    8+2N .. 7+3N  altitudes (ft)
///     8+N .. 7+2N their frequencies (Hz)            8+3N .. 7+4N  first participation factors
///
/// The heading of each block is above its first column. If no mode has a crossing, all four
/// headings fall on one column, and the last one remains. Singles are written as the decimal number
/// that a person reads in them (352.1), not as their binary value.
class FlutterReport
{
public:
    /// Asks for the Mach number at a crossing when the evolution has none. Empty when the user
    /// cancels.
    using MachQuestion = std::function<std::optional<std::string>(const AeMode&, std::string_view)>;

    // The texts of the questions to the user.
    static constexpr std::string_view dampingPrompt =
        "Enter reference damping (g) for flutter calculation:";
    static constexpr std::string_view speedLimitPrompt =
        "Enter speed limit for maximum damping calculation";
    static constexpr std::string_view machPrompt =
        "Tarsil does not know the Mach No.Please enter manually or use EV2 files.";

    /// `referenceDamping` is dimensionless, negative for a stable mode; `speedLimit` is in KEAS.
    FlutterReport(double referenceDamping, double speedLimit, MachQuestion askMach);

    /// Receives what could not be computed.
    using FailureReport = std::function<void(const RunTimeError&)>;

    /// Fills the sheet row by row. After an error the cells already written stay. Replaces the
    /// flutter points of the modes. If an evolution has no Mach number, the question is asked for
    /// each crossing; no answer, or one that is not a number, is error 13. Other errors: those of
    /// the searches (9 for a mode without points among them) and of the altitude. Reports progress
    /// after the search of each mode and after each row. Returns false after a stop; the sheet is
    /// not complete then.
    bool write(const std::vector<ReportRow>& rows, Sheet& sheet,
               const Progress& progress = {}) const;

    /// Like `write`, but continues after a failure. A mode that cannot be searched (two points of
    /// one speed around a crossing, for instance) gets empty cells for its crossings; an altitude
    /// or maximum that cannot be computed leaves its own cell empty. Each such error goes to
    /// `report`. Errors: 13 for a Mach number as above, and those that `report` raises.
    bool writeWhatCan(const std::vector<ReportRow>& rows, Sheet& sheet, const FailureReport& report,
                      const Progress& progress = {}) const;

private:
    void writeRow(const ReportRow& row, std::size_t line, std::size_t crossings, Sheet& sheet,
                  const FailureReport& report) const;
    void writeMaximum(const AeMode& mode, std::size_t line, Sheet& sheet) const;
    void writeCrossings(const AeMode& mode, std::size_t line, std::size_t crossings, Sheet& sheet,
                        const FailureReport& report) const;
    float machNumber(const AeMode& mode, std::size_t line, Sheet& sheet) const;

    double m_referenceDamping;
    double m_speedLimit;
    MachQuestion m_askMach;
};

} // namespace tarsil
