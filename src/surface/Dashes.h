#pragma once

#include "surface/DeviceContext.h"

#include <QList>

namespace tarsil {

/// Whether a line is drawn with gaps: one wider than a pixel is solid whatever its style.
bool isDashed(const Pen& pen);

/// Lengths of dashes and gaps in pixels, in turn; empty for a solid line. They are measured on the
/// platform's own pens.
QList<qreal> dashPattern(const Pen& pen);

} // namespace tarsil
