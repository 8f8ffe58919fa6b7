// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "model/KeyedTexts.h"

#include <string>

namespace tarsil {

/// The parameters of an evolution that users can edit.
struct EditableParam
{
    std::string airplane;
    std::string mass;
    float mach = 0;

    bool operator==(const EditableParam&) const = default;
};

/// The analysis parameters of an evolution, stored as they are in the file.
struct Param
{
    std::string AnalysisType;
    std::string Script;
    float Mach = 0; ///< 0 when the file has none
    std::string Mass; ///< name of the mass configuration
    std::string Airplane; ///< aircraft model
    KeyedTexts modifications;
    KeyedTexts legends;

    EditableParam editable() const { return {Airplane, Mass, Mach}; }
};

} // namespace tarsil
