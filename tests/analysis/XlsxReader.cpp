// SPDX-License-Identifier: Apache-2.0
#include "analysis/XlsxReader.h"

#include <QByteArray>
#include <QString>
#include <QXmlStreamReader>

#include <gtest/gtest.h>
#include <unzip.h>

#include <vector>

namespace tarsil::test {

namespace {

QByteArray xmlPart(const std::string& path, const std::string& part)
{
    return QByteArray::fromStdString(zipPart(path, part));
}

/// The texts that cells refer to by index.
std::vector<std::string> sharedTexts(const std::string& path)
{
    std::vector<std::string> texts;
    QXmlStreamReader xml(xmlPart(path, "xl/sharedStrings.xml"));
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == u"si")
            texts.emplace_back();
        else if (xml.name() == u"t")
            texts.back() += xml.readElementText().toStdString();
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    return texts;
}

std::string titleOf(const std::string& path, int number)
{
    QXmlStreamReader xml(xmlPart(path, "xl/workbook.xml"));
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement || xml.name() != u"sheet")
            continue;
        if (xml.attributes().value(QStringLiteral("sheetId")).toInt() == number)
            return xml.attributes().value(QStringLiteral("name")).toString().toStdString();
    }
    ADD_FAILURE() << "no sheet " << number << " in " << path;
    return {};
}

struct CellPosition
{
    std::size_t row = 0;
    std::size_t column = 0;
};

/// "B3" is row 3, column 2.
CellPosition positionOf(const QString& reference)
{
    CellPosition position;
    for (const QChar c : reference) {
        const auto value = static_cast<std::size_t>(c.unicode());
        if (c.isLetter())
            position.column = position.column * 26 + value - 'A' + 1;
        else
            position.row = position.row * 10 + value - '0';
    }
    return position;
}

} // namespace

std::string zipPart(const std::string& path, const std::string& part)
{
    std::string bytes;
    const unzFile archive = unzOpen(path.c_str());
    EXPECT_NE(archive, nullptr) << path << " is no zip archive";
    if (archive == nullptr)
        return bytes;
    unz_file_info info {};
    const bool found = unzLocateFile(archive, part.c_str(), 1) == UNZ_OK
        && unzGetCurrentFileInfo(archive, &info, nullptr, 0, nullptr, 0, nullptr, 0) == UNZ_OK
        && unzOpenCurrentFile(archive) == UNZ_OK;
    EXPECT_TRUE(found) << part << " is missing in " << path;
    if (found) {
        bytes.resize(info.uncompressed_size);
        const int read =
            unzReadCurrentFile(archive, bytes.data(), static_cast<unsigned>(bytes.size()));
        EXPECT_EQ(static_cast<std::size_t>(read), bytes.size());
        EXPECT_EQ(unzCloseCurrentFile(archive), UNZ_OK) << "wrong checksum";
    }
    unzClose(archive);
    return bytes;
}

Sheet readXlsx(const std::string& path, int number)
{
    Sheet sheet(titleOf(path, number));
    const std::vector<std::string> texts = sharedTexts(path);
    QXmlStreamReader xml(xmlPart(path, "xl/worksheets/sheet" + std::to_string(number) + ".xml"));
    CellPosition position;
    bool isText = false;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        EXPECT_NE(xml.name(), u"f") << "a formula";
        if (xml.name() == u"c") {
            position = positionOf(xml.attributes().value(QStringLiteral("r")).toString());
            isText = xml.attributes().value(QStringLiteral("t")) == u"s";
        } else if (xml.name() == u"v") {
            const QString value = xml.readElementText();
            if (isText)
                sheet.setText(position.row, position.column, texts.at(value.toUInt()));
            else
                sheet.setNumber(position.row, position.column, value.toDouble());
        }
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    return sheet;
}

} // namespace tarsil::test
