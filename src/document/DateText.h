#pragma once

#include <QString>

class QDateTime;

namespace tarsil {

/// A date and time of day as a workspace shows and keeps them, the same in every locale:
/// "07-Mar-2026 09:05:03".
QString dateText(const QDateTime& date);

} // namespace tarsil
