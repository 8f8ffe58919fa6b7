// SPDX-License-Identifier: Apache-2.0
#include "report/ReportWriter.h"

#include "analysis/XlsxReader.h"
#include "base/user/RunTimeError.h"
#include "report/ReportFixture.h"
#include "report/ReportText.h"
#include "support/Errors.h"

#include <QRegularExpression>
#include <QSet>
#include <QXmlStreamReader>

#include <gmock/gmock.h>

using namespace tarsil;
using test::fileBytes;
using ::testing::HasSubstr;
using ::testing::Not;

namespace {

class ReportFiles : public test::ReportFixture
{
protected:
    /// Writes the document and returns its bytes.
    std::string write(const std::string& name) const
    {
        writeReport(content(), file(name));
        return fileBytes(file(name));
    }
};

/// The characters of a document in XML, blanks and all.
std::string charactersOf(const std::string& bytes)
{
    QXmlStreamReader xml(QByteArray::fromStdString(bytes));
    std::string all;
    while (!xml.atEnd()) {
        const auto token = xml.readNext();
        if (token == QXmlStreamReader::Characters)
            all += xml.text().toString().toStdString();
        else if (token == QXmlStreamReader::StartElement && xml.name() == u"s")
            all += ' ';
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    return all;
}

} // namespace

TEST_F(ReportFiles, areTheSameBytesForTheSameInput)
{
    for (const char* name : {"a.pdf", "a.odt", "a.html"})
        EXPECT_EQ(write(name), write(name)) << name;
}

TEST_F(ReportFiles, havePdfObjectsWhereTheirTableSays)
{
    const std::string pdf = write("a.pdf");
    EXPECT_THAT(pdf, HasSubstr("/CreationDate (D:20260307152000)"));
    const std::size_t pointer = pdf.rfind("startxref\n") + 10;
    const std::size_t table = std::stoul(pdf.substr(pointer));
    ASSERT_EQ(pdf.substr(table, 5), "xref\n");
    const std::size_t count = std::stoul(pdf.substr(table + 7));
    const std::size_t entries = pdf.find('\n', table + 5) + 1;
    ASSERT_GT(count, 10U);
    for (std::size_t i = 1; i < count; ++i) {
        const std::string entry = pdf.substr(entries + 20 * i, 20);
        if (entry[17] != 'n')
            continue;
        const std::string object = std::to_string(i) + " 0 obj";
        EXPECT_EQ(pdf.substr(std::stoul(entry), object.size()), object);
    }
}

TEST_F(ReportFiles, haveAFixedDateWhenTheWorkspaceHasNone)
{
    input.record.dateModified = "   ";
    EXPECT_THAT(write("a.pdf"), HasSubstr("/CreationDate (D:19800101000000)"));
}

TEST_F(ReportFiles, haveEveryTextInHtml)
{
    const std::string html = write("a.html");
    for (const std::string& text : test::textsOf(content()))
        EXPECT_THAT(html, HasSubstr(shownText(text).toHtmlEscaped().toStdString()));
    EXPECT_THAT(html, HasSubstr("<svg "));
    EXPECT_THAT(html, Not(HasSubstr("<?xml")));
    EXPECT_THAT(html, Not(HasSubstr("src="))) << "a file of its own";
}

TEST_F(ReportFiles, giveThePicturesOfAPageTheirOwnIds)
{
    input.record.plots.push_back(input.record.plots.front());
    const QString html = QString::fromStdString(write("a.html"));
    QSet<QString> ids;
    auto match = QRegularExpression(QStringLiteral(" id=\"([^\"]*)\"")).globalMatch(html);
    while (match.hasNext()) {
        const QString id = match.next().captured(1);
        EXPECT_FALSE(ids.contains(id)) << id.toStdString();
        ids.insert(id);
    }
    EXPECT_GE(ids.size(), 2);
    auto uses = QRegularExpression(QStringLiteral("url\\(#([^)]*)\\)")).globalMatch(html);
    while (uses.hasNext())
        EXPECT_TRUE(ids.contains(uses.next().captured(1)));
}

TEST_F(ReportFiles, haveEveryTextInOpenDocument)
{
    write("a.odt");
    const std::string text = charactersOf(test::zipPart(file("a.odt"), "content.xml"));
    for (const std::string& wanted : test::textsOf(content()))
        EXPECT_THAT(text, HasSubstr(shownText(wanted).toStdString()));
    for (const char* part : {"styles.xml", "meta.xml", "META-INF/manifest.xml"})
        charactersOf(test::zipPart(file("a.odt"), part));
    EXPECT_THAT(test::zipPart(file("a.odt"), "Pictures/picture1.svg"), HasSubstr("<svg "));
    EXPECT_THAT(test::zipPart(file("a.odt"), "meta.xml"), HasSubstr("2026-03-07T15:20:00"));
}

TEST_F(ReportFiles, nameTheirTypeFirstInOpenDocument)
{
    // ISO/IEC 26300-3, 3.3: the first file is not compressed and has no extra field.
    EXPECT_EQ(write("a.odt").substr(30, 47), "mimetypeapplication/vnd.oasis.opendocument.text");
}

TEST_F(ReportFiles, useOnlyStylesThatExist)
{
    write("a.odt");
    const QString content = QString::fromStdString(test::zipPart(file("a.odt"), "content.xml"));
    const QString styles = QString::fromStdString(test::zipPart(file("a.odt"), "styles.xml"));
    QSet<QString> known;
    for (const QString& part : {content, styles}) {
        auto match =
            QRegularExpression(QStringLiteral("style:name=\"([^\"]*)\"")).globalMatch(part);
        while (match.hasNext())
            known.insert(match.next().captured(1));
    }
    auto uses =
        QRegularExpression(
            QStringLiteral("(?:text|table|parent|page|layout|next):?-?style-name=\"([^\"]*)\""))
            .globalMatch(content + styles);
    int count = 0;
    for (; uses.hasNext(); ++count) {
        const QString name = uses.next().captured(1);
        EXPECT_TRUE(known.contains(name)) << name.toStdString();
    }
    EXPECT_GT(count, 100);
}

TEST_F(ReportFiles, areNotReplacedByAnErroneousDocument)
{
    folder.write("a.pdf", "old");
    const ReportContent document = content();
    EXPECT_EQ(test::errorNumberOf([&] { writeReport(document, file("a.docx")); }),
              ErrorNumber::InvalidProcedureCall);
    input.record.plots[0].axes.speed.ticks = 0;
    EXPECT_THROW(writeReport(content(), file("a.pdf")), RunTimeError);
    EXPECT_EQ(fileBytes(file("a.pdf")), "old");
    EXPECT_FALSE(std::filesystem::exists(file("a.docx")));
}
