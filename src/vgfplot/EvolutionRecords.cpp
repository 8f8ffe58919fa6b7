// SPDX-License-Identifier: Apache-2.0
#include "vgfplot/EvolutionRecords.h"

#include "model/EVM.h"

namespace tarsil {

std::map<std::size_t, EditedRecord> editedRecordsOf(const std::vector<const EVM*>& evolutions)
{
    std::map<std::size_t, EditedRecord> edited;
    for (std::size_t i = 0; i < evolutions.size(); ++i) {
        const EditableParam now = evolutions[i]->Param.editable();
        if (now != evolutions[i]->paramOfFile())
            edited[i + 1] = {now.airplane, now.mass, now.mach};
    }
    return edited;
}

void applyEdited(const std::map<std::size_t, EditedRecord>& edited,
                 const std::vector<EVM*>& evolutions)
{
    for (const auto& [position, record] : edited) {
        if (position < 1 || position > evolutions.size() || evolutions[position - 1] == nullptr)
            continue;
        Param& param = evolutions[position - 1]->Param;
        param.Airplane = record.airplane;
        param.Mass = record.mass;
        param.Mach = record.mach;
    }
}

} // namespace tarsil
