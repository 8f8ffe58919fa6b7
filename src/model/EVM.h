// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "model/AeMode.h"
#include "model/Param.h"
#include "model/Provenance.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace tarsil {

/// A modal evolution: the result of one flutter run in one file, which `Folder` and `FileName`
/// identify. It must not be moved, because its modes refer to it.
class EVM
{
public:
    EVM() = default;
    EVM(const EVM&) = delete;
    EVM& operator=(const EVM&) = delete;

    std::string FileName; ///< without folder
    std::string Folder; ///< without a trailing separator
    std::vector<std::unique_ptr<AeMode>> Modes; ///< in file order

    std::int16_t na = 0; ///< number of aeroelastic modes declared in the file
    std::int16_t numberOfSpeeds = 0; ///< number of points of each mode declared in the file
    std::int16_t numberOfStructuralModes = 0; ///< new format only
    bool isNewFormat = false; ///< determines which fields of points and header are valid
    bool hasParticipationFactors = false;

    // Header texts of the new format.
    std::string programVersion;
    std::string ev2Version;
    std::string runningDate;
    std::string solverVersion;
    std::string flutterMethod;

    tarsil::Param Param;

    /// The source of an imported evolution; its points have Mach number and density.
    Provenance provenance;

    /// The editable parameters as they are in the file; `Param` has the present ones.
    const EditableParam& paramOfFile() const { return m_paramOfFile; }

    /// The path of the file in stored form: `Folder`, a backslash, `FileName`.
    std::string path() const;

    /// Moves everything that a reader made of the file into this evolution, except `FileName` and
    /// `Folder`. `source` has no modes afterwards.
    void takeFileContents(EVM& source);

    /// Makes the modes of this evolution independent copies of those of `source` by `Point::Clone`,
    /// with its counts and flags. They share no point afterwards.
    void Change(const EVM& source);

    /// Appends a new, empty mode owned by this evolution.
    AeMode& appendMode();

private:
    void takeContents(EVM& source);

    EditableParam m_paramOfFile;
};

/// Evolutions with their shared ownership, in load order.
using OwnedEvolutions = std::vector<std::shared_ptr<EVM>>;

} // namespace tarsil
