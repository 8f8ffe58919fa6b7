#pragma once

#include "model/AeMode.h"
#include "model/Param.h"
#include "model/Provenance.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace tarsil {

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
    bool isNewFormat = false; ///< which fields of points and header have a meaning
    bool hasParticipationFactors = false;

    // Header texts of the new format.
    std::string programVersion;
    std::string ev2Version;
    std::string runningDate;
    std::string solverVersion;
    std::string flutterMethod;

    tarsil::Param Param;

    /// Where an imported evolution comes from; the points of one carry Mach number and density.
    Provenance provenance;

    /// What the file said of the parameters that users may change; `Param` has them as they are
    /// now.
    const EditableParam& paramOfFile() const { return m_paramOfFile; }

    /// The file's path in stored form: `Folder`, a backslash, `FileName`.
    std::string path() const;

    /// Takes over what a reader made of the evolution's file: everything but `FileName` and
    /// `Folder`. `source` is left without modes.
    void takeFileContents(EVM& source);

    /// Makes this evolution's modes independent copies of those of `source`, point by point through
    /// `Point::Clone`, with its counts and flags; the two share no point afterwards.
    void Change(const EVM& source);

    /// Appends a new, empty mode that belongs to this evolution.
    AeMode& appendMode();

private:
    void takeContents(EVM& source);

    EditableParam m_paramOfFile;
};

/// Evolutions with their owners, in the order in which they were loaded.
using OwnedEvolutions = std::vector<std::shared_ptr<EVM>>;

} // namespace tarsil
