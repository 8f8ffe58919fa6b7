// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>

namespace tarsil {

struct ReportContent;

/// The document as PDF, with the pictures as vectors. Equal contents give equal bytes. Needs a
/// QGuiApplication. Errors: 5 when it cannot be drawn; those of the pictures.
QByteArray pdfReport(const ReportContent& content);

} // namespace tarsil
