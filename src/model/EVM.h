#pragma once

#include "model/AeMode.h"
#include "model/Param.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarsil {

/// How the text of an evolution file is laid out.
enum class EvolutionLayout {
    FixedColumns, ///< the old format, ".evm"
    Sections ///< the new format, ".ev2"
};

/// The layout that a file name tells: ".evm" anywhere in it is the old one, otherwise ".ev2" the
/// new one (exact, case counts).
std::optional<EvolutionLayout> layoutOf(std::string_view fileName);

/// One modal evolution: the result of one flutter run, held by one file. `Folder` and `FileName`
/// together identify it. It stays where it was made, since its modes refer to it.
class EVM
{
public:
    EVM() = default;
    EVM(const EVM&) = delete;
    EVM& operator=(const EVM&) = delete;

    std::string FileName; ///< without folder
    std::string Folder; ///< without a trailing separator
    std::vector<std::unique_ptr<AeMode>> Modes; ///< in file order

    std::int16_t na = 0; ///< aeroelastic modes that the file declares
    std::int16_t numberOfSpeeds = 0; ///< points that the file declares for each mode
    std::int16_t numberOfStructuralModes = 0; ///< new format only
    bool isNewFormat = false; ///< tells which fields of points and header mean something
    bool hasParticipationFactors = false;

    // Header texts of the new format.
    std::string programVersion;
    std::string ev2Version;
    std::string runningDate;
    std::string solverVersion;
    std::string flutterMethod;

    tarsil::Param Param;

    /// What the file said of the parameters that users may change; `Param` has them as they are
    /// now.
    const EditableParam& paramOfFile() const { return m_paramOfFile; }

    /// The file's path in stored form: `Folder`, a backslash, `FileName`.
    std::string path() const;

    /// Fills the evolution from its file; `Folder` and `FileName` must be set. The name tells the
    /// layout (`layoutOf`); when it tells none the evolution stays empty. Errors: those
    /// of reading a file; 13 or 6 for a field that is no number, 9 for a row with too few fields,
    /// 62 for a file that ends before its results, 457 for a repeated key, each naming file, line
    /// and text. After an error the evolution is as it was before.
    void Contruct();

    /// Fills the evolution from a file in the semicolon-separated layout, whatever its name.
    void contructFromSemicolonFile();

    /// Writes the evolution in the fixed-column layout to the file `path`, whole or not at all.
    /// Errors: 5 for a value that does not fit its columns (mode, point and value are named), and
    /// those of writing a file.
    void PrintEVM(std::string_view path) const;

    /// Makes this evolution's modes independent copies of those of `source`, point by point through
    /// `Point::Clone`, with its counts and flags; the two share no point afterwards.
    void Change(const EVM& source);

    /// Appends a new, empty mode that belongs to this evolution.
    AeMode& appendMode();

private:
    void takeContents(EVM& source);
    void takeFileContents(EVM& source);

    EditableParam m_paramOfFile;
};

} // namespace tarsil
