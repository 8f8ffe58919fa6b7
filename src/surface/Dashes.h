// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "surface/DeviceContext.h"

#include <QList>

#include <vector>

namespace tarsil {

/// Whether a pen draws gaps. A pen wider than one pixel is solid whatever its style.
bool isDashed(const Pen& pen);

/// The lengths of dashes and gaps in pixels, alternating; empty for a solid line. Measured on the
/// original platform's pens.
QList<qreal> dashPattern(const Pen& pen);

/// A dash of a line: distances from the start of the line.
struct Dash
{
    double begin;
    double end;
};

/// The dashes, or their parts, between two distances from the start of a line, where the pattern
/// begins. `pattern` must not be empty.
std::vector<Dash> dashesBetween(const QList<qreal>& pattern, double first, double last);

} // namespace tarsil
