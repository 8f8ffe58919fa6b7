#pragma once

#include "analysis/Sheet.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarsil {

class AeMode;
class RunTimeError;

/// One row of the flutter report: a mode, which must belong to an evolution, and the text that
/// tells its case apart.
struct ReportRow
{
    AeMode* mode = nullptr; ///< not owned
    std::string caseText; ///< shown for evolutions of the new format only
};

/// The flutter table: for each row the largest damping up to a speed limit, and every crossing of a
/// reference damping with its speed, frequency, altitude and first participation factor.
///
/// Row 1 holds headings. With N the largest number of crossings of a mode, the columns are
///
///     1 file | 2 case | 3 mass | 4 Mach | 5 mode | 6 gmax | 7 its speed (KEAS)
///     8 .. 7+N    speeds of the crossings (KEAS)    8+2N .. 7+3N  altitudes (ft)
///     8+N .. 7+2N their frequencies (Hz)            8+3N .. 7+4N  first participation factors
///
/// and each block has its heading over its first column. Without any crossing the four headings
/// fall on one column, where the last one stays. Singles appear as the decimal number that a person
/// reads in them (352.1), not as their binary value.
class FlutterReport
{
public:
    /// Asks for the Mach number at a crossing of a mode whose evolution has none; no answer when
    /// the user cancelled.
    using MachQuestion = std::function<std::optional<std::string>(const AeMode&, std::string_view)>;

    // What the user is asked, word for word.
    static constexpr std::string_view dampingPrompt =
        "Enter reference damping (g) for flutter calculation:";
    static constexpr std::string_view speedLimitPrompt =
        "Enter speed limit for maximum damping calculation";
    static constexpr std::string_view machPrompt =
        "Tarsil does not know the Mach No.Please enter manually or use EV2 files.";

    /// `referenceDamping` is dimensionless, negative for a stable mode; `speedLimit` is in KEAS.
    FlutterReport(double referenceDamping, double speedLimit, MachQuestion askMach);

    /// Hears of what could not be computed.
    using FailureReport = std::function<void(const RunTimeError&)>;

    /// Fills the sheet, row by row and cell by cell; after an error the cells written so far stay.
    /// The flutter points of the modes are those of this report afterwards. For an evolution
    /// without a Mach number the question is asked once per crossing; an answer that is no number
    /// (or none) is error 13. Other errors: those of the searches, 9 for a mode without points
    /// among them, and of the altitude.
    void write(const std::vector<ReportRow>& rows, Sheet& sheet) const;

    /// The same, but a mode that cannot be searched (two points of one speed around a crossing,
    /// say) costs no other its row: its cells for crossings stay empty, as does the cell of an
    /// altitude, or of a maximum, that cannot be computed, and `report` hears of each such error.
    /// Errors: 13 for a Mach number as above, and what `report` raises.
    void writeWhatCan(const std::vector<ReportRow>& rows, Sheet& sheet,
                      const FailureReport& report) const;

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
