// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace tarsil {

class PageFlow;
struct ReportTable;

/// Lays out a table from the present position on.
void flowTable(const ReportTable& table, PageFlow& flow);

} // namespace tarsil
