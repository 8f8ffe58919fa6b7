// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "emf/EmfRecord.h"

#include <vector>

class QString;

namespace tarsil {

/// The record of a text aligned at `reference`. `advances` holds the advance of each UTF-16 unit,
/// `bounds` the pixels that the text can ink. Control characters become blanks, because players may
/// show a sign for them.
EmfRecord textRecord(QPoint reference, const QString& text, const std::vector<int>& advances,
                     const QRect& bounds);

} // namespace tarsil
