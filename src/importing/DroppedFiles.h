// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

class QMimeData;

namespace tarsil {

/// The paths of the files dropped on a window.
std::vector<std::string> droppedFiles(const QMimeData& data);

} // namespace tarsil
