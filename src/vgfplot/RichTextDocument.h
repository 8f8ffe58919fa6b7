#pragma once

#include "rtf/RichText.h"

#include <QTextCharFormat>

class QTextDocument;

namespace tarsil {

// A rich text in the toolkit's document, which its text edit shows, and back.

QTextCharFormat charFormatOf(const TextFormat& format);

/// The look of a format; what it leaves open is that of `otherwise`.
TextFormat textFormatOf(const QTextCharFormat& format, const TextFormat& otherwise);

void fillDocument(QTextDocument& document, const RichText& text);

/// What the document holds; pictures and tables that somebody pasted leave their texts only.
RichText richTextOf(const QTextDocument& document, const TextFormat& otherwise);

} // namespace tarsil
