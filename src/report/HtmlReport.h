// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>

namespace tarsil {

struct ReportContent;

/// The document as a page of HTML in UTF-8 that needs no other file; its pictures are SVG. Equal
/// contents give equal bytes. Needs a QGuiApplication. Errors: those of the pictures.
QByteArray htmlReport(const ReportContent& content);

} // namespace tarsil
