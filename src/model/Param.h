#pragma once

#include "model/KeyedTexts.h"

#include <string>

namespace tarsil {

/// Those parameters of one modal evolution that users may change.
struct EditableParam
{
    std::string airplane;
    std::string mass;
    float mach = 0;

    bool operator==(const EditableParam&) const = default;
};

/// The analysis parameters of one modal evolution, stored unchanged.
struct Param
{
    std::string AnalysisType;
    std::string Script;
    float Mach = 0; ///< Mach number of the run; 0 when the file gives none
    std::string Mass; ///< name of the mass configuration
    std::string Airplane; ///< aircraft model
    KeyedTexts modifications;
    KeyedTexts legends;

    EditableParam editable() const { return {Airplane, Mass, Mach}; }
};

} // namespace tarsil
