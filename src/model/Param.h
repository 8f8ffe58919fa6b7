#pragma once

#include "model/KeyedTexts.h"

#include <string>

namespace tarsil {

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
};

} // namespace tarsil
