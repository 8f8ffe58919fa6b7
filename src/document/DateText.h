// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

class QDateTime;

namespace tarsil {

/// Date and time of day as shown and saved in a workspace, the same in every locale: "07-Mar-2026
/// 09:05:03".
QString dateText(const QDateTime& date);

} // namespace tarsil
