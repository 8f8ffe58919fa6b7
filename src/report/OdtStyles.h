// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "analysis/Sheet.h"

#include <QString>

#include <string>

namespace tarsil {

class OdtXml;
struct ReportContent;

// The styles of a document in the Open Document Format.

/// The name of the style of a heading that begins a page; its pages are landscape or not.
QString pageHeadingStyle(int level, bool isLandscape, bool isFirst);

/// The name of the style of a heading inside a section.
QString headingStyle(int level);

/// The name of the style of a paragraph.
QString paragraphStyle(CellStyle style);

/// The name of the style of a paragraph in a table cell; its font has this size in points.
QString cellTextStyle(double points, const QString& color, bool isBold, bool isNumber);

/// The name of the style of a table cell with this ground, which may be empty.
QString cellStyle(const QString& fill);

/// The style of a table row, which is not split between pages.
inline const QString rowStyle = QStringLiteral("Row");

/// The automatic styles of the content, except those of tables.
void addContentStyles(OdtXml& xml);

/// The part "styles.xml": named styles, pages, heads and feet.
std::string odtStyles(const ReportContent& content);

} // namespace tarsil
