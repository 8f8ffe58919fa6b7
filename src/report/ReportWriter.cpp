// SPDX-License-Identifier: Apache-2.0
#include "report/ReportWriter.h"

#include "base/files/AtomicFile.h"
#include "base/user/RunTimeError.h"
#include "report/HtmlReport.h"
#include "report/OdtReport.h"
#include "report/PdfReport.h"

#include <QString>

#include <optional>

namespace tarsil {

namespace {

/// Empty after a stop.
std::optional<std::string> reportBytes(const ReportContent& content, const std::string& path,
                                       const Progress& progress)
{
    const QString name = QString::fromStdString(path);
    const auto endsIn = [&name](const char* extension) {
        return name.endsWith(QLatin1String(extension), Qt::CaseInsensitive);
    };
    if (endsIn(".pdf"))
        return pdfReport(content, progress);
    if (endsIn(".odt"))
        return odtReport(content, progress);
    if (endsIn(".html"))
        return htmlReport(content, progress);
    throw RunTimeError(ErrorNumber::InvalidProcedureCall, "ReportWriter",
                       path + " does not end in .pdf, .odt or .html");
}

} // namespace

/// Opens the target first, so that an error with it is found before any work.
bool writeReport(const ReportContent& content, const std::string& path, const Progress& progress)
{
    AtomicFile file(path);
    const std::optional<std::string> bytes = reportBytes(content, path, progress);
    if (!bytes)
        return false;
    file.write(*bytes);
    file.commit();
    return true;
}

} // namespace tarsil
