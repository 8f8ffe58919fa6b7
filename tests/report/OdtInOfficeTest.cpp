// SPDX-License-Identifier: Apache-2.0

// The document in the Open Document Format, read by another program.

#include "report/ReportFixture.h"
#include "report/ReportText.h"
#include "report/ReportWriter.h"

#include <QProcess>
#include <QStandardPaths>

#include <gmock/gmock.h>

#include <algorithm>

using namespace tarsil;
using ::testing::HasSubstr;

namespace {

class OdtInOffice : public test::ReportFixture
{
protected:
    /// Converts "a.odt" to a format; returns whether the program did.
    bool convert(const QString& format) const
    {
        const QString office = QStandardPaths::findExecutable(QStringLiteral("soffice"));
        const QString place = QString::fromStdString(folder.path().string());
        QProcess process;
        process.start(
            office,
            {QStringLiteral("-env:UserInstallation=file://") + place + QStringLiteral("/profile"),
             QStringLiteral("--headless"), QStringLiteral("--convert-to"), format,
             QStringLiteral("--outdir"), place, QString::fromStdString(file("a.odt"))});
        return process.waitForFinished(180000) && process.exitCode() == 0;
    }
};

/// Without blanks and line ends, which the other program sets as it likes.
std::string dense(std::string text)
{
    std::erase_if(text, [](char c) { return c == ' ' || c == '\n' || c == '\r' || c == '\t'; });
    return text;
}

} // namespace

TEST_F(OdtInOffice, hasEveryTextThere)
{
    if (QStandardPaths::findExecutable(QStringLiteral("soffice")).isEmpty())
        GTEST_SKIP() << "LibreOffice is not installed";
    writeReport(content(), file("a.odt"));
    if (!convert(QStringLiteral("txt:Text (encoded):UTF8"))
        || !std::filesystem::exists(file("a.txt")))
        GTEST_SKIP() << "LibreOffice Writer is not installed";
    const std::string text = dense(test::fileBytes(file("a.txt")));
    for (const std::string& wanted : test::textsOf(content()))
        EXPECT_THAT(text, HasSubstr(dense(shownText(wanted).toStdString())));
}
