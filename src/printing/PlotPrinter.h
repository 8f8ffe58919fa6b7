// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "base/user/Progress.h"

#include <QString>

#include <cstddef>
#include <vector>

class QPagedPaintDevice;

namespace tarsil {

class EvmPlot;

/// What is printed.
struct PrintJob
{
    std::vector<const EvmPlot*> plots; ///< not owned; in their present size
    std::size_t plotsPerPage = 1; ///< 1, 2 or 4
    QString workspace; ///< its name, at the left of every head
    QString file; ///< its path, at the left of every foot
    QString date; ///< in the middle of every foot
};

/// Draws the plots on the pages of a printer or a PDF, as vectors, each with its caption above it.
/// The page layout is that of the device. Errors: 5 when the device cannot be drawn on; those of
/// drawing a plot. Pages drawn before an error may have been printed. Reports progress after each
/// page. Returns false after a stop, when pages are missing.
bool printPlots(const PrintJob& job, QPagedPaintDevice& device, const Progress& progress = {});

} // namespace tarsil
