// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "report/ReportFont.h"

#include <QChar>
#include <QString>

namespace tarsil {

/// A character of no width at which a line may end.
inline constexpr QChar wordBreak(0x200B);

/// The text with a `wordBreak` after each folder of a path, and at the sensible positions of each
/// word that is wider than a line of `width` points: after "_" and "-", and after "." when more
/// than an ending follows. A name without such a position has one before its last characters, so
/// that its ending remains whole.
QString withWordBreaks(const QString& text, const ReportFont& font, double width);

} // namespace tarsil
