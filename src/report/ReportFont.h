// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QFont>
#include <QString>

#include <vector>

namespace tarsil {

/// A font of the document.
struct ReportFont
{
    double points = 9;
    bool isBold = false;
};

/// The number of pixels of a page in a point. Fonts are measured and drawn in these pixels, at
/// which hinting has no effect.
inline constexpr int pixelsPerPoint = 10;

/// The font for drawing on a page with `pixelsPerPoint`.
QFont pageFont(const ReportFont& font);

// Sizes in points.

/// The width of a text on one line.
double widthOf(const QString& text, const ReportFont& font);

/// The width of the widest word.
double wordWidthOf(const QString& text, const ReportFont& font);

/// The distance between the baselines of two lines.
double lineHeightOf(const ReportFont& font);

/// The distance from the top of a line to its baseline.
double ascentOf(const ReportFont& font);

/// The lines of a text that is wrapped at words, and inside a word that is wider than `width`, at a
/// sensible position if it has one (`withWordBreaks`). An empty text is one empty line.
std::vector<QString> wrapped(const QString& text, const ReportFont& font, double width);

} // namespace tarsil
