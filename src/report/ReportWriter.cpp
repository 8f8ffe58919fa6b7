// SPDX-License-Identifier: Apache-2.0
#include "report/ReportWriter.h"

#include "base/files/AtomicFile.h"
#include "base/user/RunTimeError.h"
#include "report/HtmlReport.h"
#include "report/OdtReport.h"
#include "report/PdfReport.h"

#include <QString>

namespace tarsil {

namespace {

std::string reportBytes(const ReportContent& content, const std::string& path)
{
    const QString name = QString::fromStdString(path);
    const auto endsIn = [&name](const char* extension) {
        return name.endsWith(QLatin1String(extension), Qt::CaseInsensitive);
    };
    if (endsIn(".pdf"))
        return pdfReport(content).toStdString();
    if (endsIn(".odt"))
        return odtReport(content);
    if (endsIn(".html"))
        return htmlReport(content).toStdString();
    throw RunTimeError(ErrorNumber::InvalidProcedureCall, "ReportWriter",
                       path + " does not end in .pdf, .odt or .html");
}

} // namespace

/// Opens the target first, so that an error with it is found before any work.
void writeReport(const ReportContent& content, const std::string& path)
{
    AtomicFile file(path);
    file.write(reportBytes(content, path));
    file.commit();
}

} // namespace tarsil
