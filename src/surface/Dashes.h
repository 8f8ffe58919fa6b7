// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "surface/DeviceContext.h"

#include <QList>

namespace tarsil {

/// Whether a pen draws gaps. A pen wider than one pixel is solid whatever its style.
bool isDashed(const Pen& pen);

/// The lengths of dashes and gaps in pixels, alternating; empty for a solid line. Measured on the
/// original platform's pens.
QList<qreal> dashPattern(const Pen& pen);

} // namespace tarsil
