// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "analysis/Sheet.h"

#include <cstddef>
#include <memory>
#include <string>
#include <variant>
#include <vector>

namespace tarsil {

class DrawnPicture;

// The content of a report document, independent of the format of its file. Texts are in the
// encoding of their source (`decodeText`).

/// A heading: level 0 is the title of the document, 1 a chapter, 2 a part of a chapter.
struct ReportHeading
{
    int level = 1;
    std::string text;
};

struct ReportParagraph
{
    std::string text;
    CellStyle style = CellStyle::Plain;
};

/// A table. Rows have the looks of their styles.
struct ReportTable
{
    Sheet cells;
    bool hasHeadings = true; ///< row 1 has headings; otherwise column 1 has labels
    /// When the table is wider than a page, its columns are split into several tables. Each of them
    /// begins with this number of columns.
    std::size_t keyColumns = 1;
};

struct ReportPicture
{
    std::shared_ptr<const DrawnPicture> picture;
    std::string caption;
};

using ReportBlock = std::variant<ReportHeading, ReportParagraph, ReportTable, ReportPicture>;

/// Blocks that begin on a new page. The first block is a heading.
struct ReportSection
{
    bool isLandscape = false;
    std::vector<ReportBlock> blocks;
};

struct ReportContent
{
    std::string title;
    std::string workspace; ///< its name, in the head of every page
    std::string program; ///< name and version
    std::string date; ///< of the workspace, as it is shown
    std::vector<ReportSection> sections;
};

/// The number of steps in which a document is written: each row of a table is one, and each other
/// block.
inline std::size_t stepCount(const ReportContent& content)
{
    std::size_t count = 0;
    for (const ReportSection& section : content.sections) {
        for (const ReportBlock& block : section.blocks) {
            const auto* const table = std::get_if<ReportTable>(&block);
            count += table != nullptr ? table->cells.rowCount() : 1;
        }
    }
    return count;
}

} // namespace tarsil
