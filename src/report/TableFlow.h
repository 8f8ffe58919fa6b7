// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace tarsil {

class PageFlow;
class StepCounter;
struct ReportTable;
struct TableColumns;

/// Lays out a table from the present position on. Each row of each part is a step; after a stop the
/// table is incomplete.
void flowTable(const ReportTable& table, const TableColumns& columns, PageFlow& flow,
               StepCounter& steps);

} // namespace tarsil
