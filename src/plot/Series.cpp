// SPDX-License-Identifier: Apache-2.0
#include "plot/Series.h"

namespace tarsil {

Series Series::Clone() const
{
    return *this;
}

} // namespace tarsil
