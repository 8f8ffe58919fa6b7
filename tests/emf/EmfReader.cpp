// SPDX-License-Identifier: Apache-2.0
#include "emf/EmfReader.h"

#include "emf/EmfObjectCheck.h"

#include <cmath>
#include <map>
#include <stdexcept>

namespace tarsil::test {

namespace {

constexpr std::size_t smallestRecord = 8;
constexpr std::size_t smallestHeader = 108;
constexpr std::size_t smallestTextOut = 76;
constexpr std::size_t smallestPolyline = 28;

/// The size in bytes of record types with a fixed size.
std::size_t fixedSize(std::uint32_t type)
{
    static const std::map<std::uint32_t, std::size_t> sizes = {{emf::endOfFile, 20},
                                                               {emf::setBkMode, 12},
                                                               {emf::setTextAlign, 12},
                                                               {emf::setTextColor, 12},
                                                               {emf::moveToEx, 16},
                                                               {emf::intersectClipRect, 24},
                                                               {emf::saveDc, 8},
                                                               {emf::restoreDc, 12},
                                                               {emf::selectObject, 12},
                                                               {emf::createPen, 28},
                                                               {emf::createBrushIndirect, 24},
                                                               {emf::deleteObject, 12},
                                                               {emf::lineTo, 16},
                                                               {emf::extSelectClipRgn, 64},
                                                               {emf::bitBlt, 100},
                                                               {emf::extCreateFontIndirectW, 332}};
    const auto found = sizes.find(type);
    return found == sizes.end() ? 0 : found->second;
}

void checkPolyline(const EmfItem& item)
{
    require(item.size() >= smallestPolyline, "polyline without points");
    const std::size_t count = item.word(24);
    require(count >= 2, "polyline of one point");
    require(item.size() == smallestPolyline + count * (item.type() == emf::polyline ? 8 : 4),
            "polyline with other than its points");
    const QRect bounds = item.rectangle(8);
    for (const QPoint point : item.points())
        require(bounds.contains(point), "point outside of its record's bounds");
}

void checkTextOut(const EmfItem& item)
{
    require(item.size() >= smallestTextOut, "text record without text");
    const std::size_t count = item.word(44);
    const std::size_t padded = (count + 1) / 2 * 4;
    require(count > 0, "empty text");
    require(item.word(24) == 1, "not in compatible mode");
    require(item.word(48) == smallestTextOut, "text does not follow the fixed fields");
    require(item.word(72) == smallestTextOut + padded, "advances do not follow the text");
    require(item.size() == smallestTextOut + padded + 4 * count, "advances of other number");
    require(item.shownText().isValidUtf16(), "half a character");
}

void checkRegion(const EmfItem& item)
{
    require(item.word(8) == 48 && item.word(16) == 32 && item.word(20) == 1 && item.word(24) == 1
                && item.word(28) == 16,
            "region is no single rectangle");
    require(item.word(12) == 5, "region does not replace the clip");
    const QRect rectangle = item.rectangle(48);
    require(item.rectangle(32) == rectangle, "bounds of the region are not its rectangle's");
    require(rectangle.left() < rectangle.right() && rectangle.top() < rectangle.bottom(),
            "empty region");
}

void checkRecord(const EmfItem& item)
{
    const std::size_t fixed = fixedSize(item.type());
    require(fixed == 0 || item.size() == fixed, "record has not the size of its type");
    switch (item.type()) {
    case emf::header:
        require(item.size() >= smallestHeader, "short header");
        break;
    case emf::polyline:
    case emf::polyline16:
        checkPolyline(item);
        break;
    case emf::extTextOutW:
        checkTextOut(item);
        break;
    case emf::extSelectClipRgn:
        checkRegion(item);
        break;
    default:
        require(fixed != 0, "record of a type that is not drawn here");
    }
}

std::vector<EmfItem> splitIntoRecords(std::string_view bytes)
{
    std::vector<EmfItem> items;
    while (!bytes.empty()) {
        require(bytes.size() >= smallestRecord, "bytes after the last record");
        const std::size_t size = EmfItem(std::string(bytes.substr(0, smallestRecord))).word(4);
        require(size >= smallestRecord && size % 4 == 0, "size of a record");
        require(size <= bytes.size(), "record passes the end of the file");
        items.emplace_back(std::string(bytes.substr(0, size)));
        checkRecord(items.back());
        bytes.remove_prefix(size);
    }
    return items;
}

void checkObjects(const EmfContents& contents)
{
    EmfObjectCheck check;
    for (const EmfItem& item : contents.records)
        check.see(item);
    check.seeEnd(contents.handles);
}

void checkEnd(const std::vector<EmfItem>& records)
{
    for (std::size_t i = 0; i < records.size(); ++i) {
        require((records[i].type() == emf::header) == (i == 0), "header is not the first record");
        require((records[i].type() == emf::endOfFile) == (i + 1 == records.size()),
                "end is not the last record");
    }
    require(records.back().word(8) == 0, "palette");
    require(records.back().word(16) == 20, "size of the last record in itself");
}

/// The frame must be the bounds in hundredths of a millimetre, rounded to nearest.
void checkFrame(const EmfContents& contents)
{
    const auto hundredths = [](int pixels, int millimetres, int devicePixels) {
        return static_cast<int>(std::lround(100.0 * pixels * millimetres / devicePixels));
    };
    const QRect& bounds = contents.bounds;
    if (bounds.isEmpty()) {
        require(bounds == QRect() && contents.frame == QRect(), "frame of an empty picture");
        return;
    }
    const QSize pixels = contents.device;
    const QSize size = contents.millimetres;
    require(contents.frame.left() == hundredths(bounds.left(), size.width(), pixels.width())
                && contents.frame.top() == hundredths(bounds.top(), size.height(), pixels.height())
                && contents.frame.right()
                    == hundredths(bounds.right(), size.width(), pixels.width())
                && contents.frame.bottom()
                    == hundredths(bounds.bottom(), size.height(), pixels.height()),
            "frame is not that of the bounds");
}

void readHeader(EmfContents& contents, std::size_t fileSize)
{
    const EmfItem& header = contents.records.front();
    require(header.word(40) == 0x464D4520 && header.word(44) == 0x10000, "signature or version");
    require(header.word(48) == fileSize, "count of bytes");
    require(header.word(52) == contents.records.size(), "count of records");
    contents.bounds = header.rectangle(8);
    contents.frame = header.rectangle(24);
    contents.handles = header.half(56);
    require(header.half(58) == 0 && header.word(68) == 0, "reserved field or palette");
    contents.device = {header.integer(72), header.integer(76)};
    contents.millimetres = {header.integer(80), header.integer(84)};
    require(!contents.device.isEmpty() && !contents.millimetres.isEmpty(), "size of the device");
    require(header.word(88) == 0 && header.word(92) == 0 && header.word(96) == 0, "pixel format");
    contents.micrometres = {header.integer(100), header.integer(104)};
    const std::size_t units = header.word(60);
    require(header.word(64) == (units == 0 ? 0 : smallestHeader), "place of the description");
    require(header.size() == smallestHeader + (units + 1) / 2 * 4, "size of the description");
    contents.description = header.text(smallestHeader, units);
}

} // namespace

EmfContents readMetafile(std::string_view bytes)
{
    EmfContents contents;
    contents.records = splitIntoRecords(bytes);
    require(!contents.records.empty(), "no records");
    checkEnd(contents.records);
    readHeader(contents, bytes.size());
    checkObjects(contents);
    checkFrame(contents);
    return contents;
}

} // namespace tarsil::test
