#pragma once

#include "emf/EmfRecord.h"

#include <vector>

class QString;

namespace tarsil {

/// The record of a text. The player aligns it at `reference`; `advances` says how far each UTF-16
/// unit moves on, and `bounds` which pixels the text can ink. Control characters are written as
/// blanks: a player that has a sign for them would show it.
EmfRecord textRecord(QPoint reference, const QString& text, const std::vector<int>& advances,
                     const QRect& bounds);

} // namespace tarsil
