// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "base/user/Progress.h"
#include "report/ReportContent.h"

#include <array>
#include <cstddef>
#include <optional>
#include <vector>

namespace tarsil {

/// The sizes of the letters of tables, in points.
inline constexpr std::array<double, 6> tableFontSizes = {8.5, 8, 7.5, 7, 6.5, 6};

/// A part of a table: some of its columns, counted from 1, and their widths in points.
struct TablePart
{
    std::vector<std::size_t> columns;
    std::vector<double> widths;
};

/// The layout of a table that is not wider than a page.
struct TableColumns
{
    double points = 0; ///< the size of the font
    std::vector<TablePart> parts; ///< one if all columns fit
};

/// The distance of a text from the left and right edges of its cell, in points.
inline constexpr double cellPadding = 2.5;

/// Fits a table into a width in points: with the largest letters at which only long texts are
/// wrapped, or else with the smallest ones, then in several parts if its numbers do not fit.
/// Reports progress after each row that is measured, at each size. Empty after a stop.
std::optional<TableColumns> fitColumns(const ReportTable& table, double width,
                                       const Progress& progress = {});

/// Fits all tables of a document, in its order, into its pages. Reports progress as `fitColumns`.
/// Empty after a stop.
std::optional<std::vector<TableColumns>> fitTables(const ReportContent& content,
                                                   const Progress& progress);

/// The number of steps in which a document is written whose tables have this layout: each row of a
/// part of a table is one, and each other block.
std::size_t stepCount(const ReportContent& content, const std::vector<TableColumns>& tables);

} // namespace tarsil
