// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

namespace tarsil {

/// The path of a file that comes with the program: `name` in the folder `installed` below the
/// installation's share/, or in the folder `source` of the project when the program is started
/// where it was built. Error 53 when there is none.
struct SharedFolder
{
    const char* installed;
    const char* source;
};

inline constexpr SharedFolder guideFolder {"tarsil/docs", "docs"};
inline constexpr SharedFolder samplesFolder {"tarsil/samples", "samples"};

QString sharedFile(const SharedFolder& folder, const QString& name);

} // namespace tarsil
