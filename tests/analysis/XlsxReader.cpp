// SPDX-License-Identifier: Apache-2.0
#include "analysis/XlsxReader.h"

#include "analysis/XmlElements.h"
#include "support/TestFiles.h"

#include <gtest/gtest.h>
#include <zlib.h>

#include <charconv>
#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

namespace tarsil::test {

namespace {

/// The number of `size` bytes at an index, the lowest byte first.
std::size_t numberAt(std::string_view bytes, std::size_t index, std::size_t size)
{
    std::size_t number = 0;
    for (std::size_t i = size; i > 0; --i)
        number = number << 8U | static_cast<unsigned char>(bytes.at(index + i - 1));
    return number;
}

/// The heading of a part in the list at the end of an archive (APPNOTE.TXT, 4.3.12).
std::optional<std::string_view> headingOf(std::string_view archive, std::string_view part)
{
    constexpr std::size_t headingSize = 46;
    const std::size_t end = archive.rfind("PK\5\6");
    if (end == std::string_view::npos)
        return std::nullopt;
    std::size_t start = numberAt(archive, end + 16, 4);
    for (std::size_t left = numberAt(archive, end + 10, 2); left > 0; --left) {
        const std::string_view heading = archive.substr(start);
        const std::size_t nameSize = numberAt(heading, 28, 2);
        if (heading.substr(headingSize, nameSize) == part)
            return heading;
        start += headingSize + nameSize + numberAt(heading, 30, 2) + numberAt(heading, 32, 2);
    }
    return std::nullopt;
}

/// Expands a deflated part.
std::string expanded(std::string_view packed, std::size_t size)
{
    constexpr int rawFormat = -MAX_WBITS;
    std::string bytes(size, '\0');
    z_stream stream {};
    EXPECT_EQ(inflateInit2(&stream, rawFormat), Z_OK);
    std::vector<Bytef> in(packed.begin(), packed.end());
    stream.next_in = in.data();
    stream.avail_in = static_cast<uInt>(in.size());
    stream.next_out = reinterpret_cast<Bytef*>(bytes.data());
    stream.avail_out = static_cast<uInt>(bytes.size());
    EXPECT_EQ(inflate(&stream, Z_FINISH), Z_STREAM_END);
    EXPECT_EQ(stream.total_out, size);
    inflateEnd(&stream);
    return bytes;
}

/// The elements of a part of a workbook.
std::vector<XmlElement> elementsOf(const std::string& path, const std::string& part)
{
    return xmlElements(zipPart(path, part));
}

/// The texts that cells refer to by index.
std::vector<std::string> sharedTexts(const std::string& path)
{
    std::vector<std::string> texts;
    for (const XmlElement& element : elementsOf(path, "xl/sharedStrings.xml")) {
        if (element.name == "si")
            texts.emplace_back();
        else if (element.name == "t")
            texts.back() += element.text;
    }
    return texts;
}

std::string titleOf(const std::string& path, int number)
{
    for (const XmlElement& element : elementsOf(path, "xl/workbook.xml")) {
        if (element.name == "sheet" && element.attribute("sheetId") == std::to_string(number))
            return element.attribute("name");
    }
    ADD_FAILURE() << "no sheet " << number << " in " << path;
    return {};
}

double valueOf(const std::string& text)
{
    double value = 0;
    const char* const end = text.data() + text.size();
    EXPECT_EQ(std::from_chars(text.data(), end, value).ptr, end) << text;
    return value;
}

struct CellPosition
{
    std::size_t row = 0;
    std::size_t column = 0;
};

/// "B3" is row 3, column 2.
CellPosition positionOf(const std::string& reference)
{
    CellPosition position;
    for (const char c : reference) {
        const auto value = static_cast<std::size_t>(c);
        if (c >= 'A' && c <= 'Z')
            position.column = position.column * 26 + value - 'A' + 1;
        else
            position.row = position.row * 10 + value - '0';
    }
    return position;
}

} // namespace

std::string zipPart(const std::string& path, const std::string& part)
{
    constexpr std::size_t localSize = 30; // of the heading before the bytes
    const std::string archive = fileBytes(path);
    const auto heading = headingOf(archive, part);
    EXPECT_TRUE(heading) << part << " is missing in " << path;
    if (!heading)
        return {};
    const std::string_view local = std::string_view(archive).substr(numberAt(*heading, 42, 4));
    const std::size_t start = localSize + numberAt(local, 26, 2) + numberAt(local, 28, 2);
    const std::string_view packed = local.substr(start, numberAt(*heading, 20, 4));
    const bool isDeflated = numberAt(*heading, 10, 2) == Z_DEFLATED;
    const std::string bytes =
        isDeflated ? expanded(packed, numberAt(*heading, 24, 4)) : std::string(packed);
    EXPECT_EQ(crc32_z(0, reinterpret_cast<const Bytef*>(bytes.data()), bytes.size()),
              numberAt(*heading, 16, 4))
        << "wrong checksum";
    return bytes;
}

Sheet readXlsx(const std::string& path, int number)
{
    Sheet sheet(titleOf(path, number));
    const std::vector<std::string> texts = sharedTexts(path);
    CellPosition position;
    bool isText = false;
    const std::string part = "xl/worksheets/sheet" + std::to_string(number) + ".xml";
    for (const XmlElement& element : elementsOf(path, part)) {
        EXPECT_NE(element.name, "f") << "a formula";
        if (element.name == "c") {
            position = positionOf(element.attribute("r"));
            isText = element.attribute("t") == "s";
        } else if (element.name == "v" && isText) {
            sheet.setText(position.row, position.column, texts.at(std::stoul(element.text)));
        } else if (element.name == "v") {
            sheet.setNumber(position.row, position.column, valueOf(element.text));
        }
    }
    return sheet;
}

} // namespace tarsil::test
