// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "rtf/RichText.h"

#include <QTextCharFormat>

class QTextDocument;

namespace tarsil {

// Conversions between a rich text and the document of Qt's text edit.

QTextCharFormat charFormatOf(const TextFormat& format);

/// The look of a format; `otherwise` supplies what it does not specify.
TextFormat textFormatOf(const QTextCharFormat& format, const TextFormat& otherwise);

void fillDocument(QTextDocument& document, const RichText& text);

/// The text of a document. Of pasted pictures and tables only the text remains.
RichText richTextOf(const QTextDocument& document, const TextFormat& otherwise);

} // namespace tarsil
