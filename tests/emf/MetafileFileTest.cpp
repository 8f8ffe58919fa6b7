// SPDX-License-Identifier: Apache-2.0
#include "emf/EmfListing.h"
#include "emf/TestPens.h"
#include "support/Errors.h"
#include "support/TestFiles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sys/resource.h>

#include <algorithm>
#include <csignal>
#include <filesystem>
#include <stdexcept>

using namespace tarsil;
using test::dashed;
using test::EmfContents;
using test::errorNumberOf;
using test::fileBytes;
using test::metafileOf;
using test::readMetafile;
using test::TemporaryFolder;
using test::thin;
using ::testing::ElementsAre;

namespace {

EmfContents withDescription(const QString& description)
{
    EmfMemory memory;
    MetafileContext context(memory, description);
    context.close();
    return readMetafile(memory.bytes());
}

/// Limits the size of the files that this process writes.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t bytes) : m_signal(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limited {bytes, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limited);
    }
    ~FileSizeLimit()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_signal);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

private:
    rlimit m_before {};
    void (*m_signal)(int);
};

/// A disk that is full from the first byte.
class FullDisk : public EmfSink
{
public:
    void write(std::string_view /*bytes*/) override { fail(); }
    void patch(std::size_t /*offset*/, std::string_view /*bytes*/) override { fail(); }

private:
    static void fail() { throw RunTimeError(ErrorNumber::DiskFull, "FullDisk"); }
};

/// Counts bytes without storing them.
class Counter : public EmfSink
{
public:
    std::size_t bytes = 0;
    std::size_t largestPiece = 0;

    void write(std::string_view piece) override
    {
        bytes += piece.size();
        largestPiece = std::max(largestPiece, piece.size());
    }
    void patch(std::size_t /*offset*/, std::string_view /*bytes*/) override { }
};

/// Draws `count` dashed lines, 32 bytes of records each.
void drawDashes(DeviceContext& context, int count)
{
    for (int i = 0; i < count; ++i)
        context.drawLine({i % 1000, 0}, {i % 1000 + 1, 1}, dashed);
}

} // namespace

TEST(MetafileHeader, namesADeviceOfExactly96PixelsAnInch)
{
    const EmfContents contents = metafileOf([](DeviceContext& /*context*/) {});
    EXPECT_EQ(contents.device, QSize(1920, 1440));
    EXPECT_EQ(contents.millimetres, QSize(508, 381));
    EXPECT_EQ(contents.micrometres, QSize(508000, 381000));
    EXPECT_DOUBLE_EQ(1920 / (508 / 25.4), 96);
}

TEST(MetafileHeader, givesTheFrameInHundredthsOfAMillimetre)
{
    // 96 pixels are an inch, that is 2540 hundredths of a millimetre; 48 are 1270.
    const EmfContents contents = metafileOf([](DeviceContext& context) {
        context.drawLine({-48, 96}, {480, 144}, thin);
    });
    EXPECT_EQ(contents.bounds, QRect(QPoint(-48, 96), QPoint(480, 144)));
    EXPECT_EQ(contents.frame, QRect(QPoint(-1270, 2540), QPoint(12700, 3810)));
}

TEST(MetafileHeader, holdsTheDescriptionAndTwoZeros)
{
    const QString text = QStringLiteral("Tarsil\\0Created by Kestrin\\0\\0");
    ASSERT_EQ(text.size(), 30);
    const EmfContents contents = withDescription(text);
    EXPECT_EQ(contents.description, text + QString(2, QChar(0)));
    EXPECT_EQ(contents.records.front().word(60), 32);
    EXPECT_EQ(contents.records.front().word(64), 108);
    EXPECT_EQ(contents.records.front().size(), 108 + 2 * 32);
}

TEST(MetafileHeader, acceptsADescriptionOfAnyLength)
{
    for (const int length : {0, 1, 2, 1001}) {
        const QString text(length, u'd');
        EXPECT_EQ(withDescription(text).description,
                  length == 0 ? QString() : text + QString(2, QChar(0)));
    }
}

TEST(Metafile, withoutAnythingDrawnHasNoBounds)
{
    const EmfContents contents = metafileOf([](DeviceContext& /*context*/) {});
    EXPECT_THAT(listingOf(contents), ElementsAre("save", "restore -1"));
    EXPECT_EQ(contents.bounds, QRect(QPoint(0, 0), QPoint(-1, -1)));
    EXPECT_EQ(contents.frame, QRect(QPoint(0, 0), QPoint(-1, -1)));
    EXPECT_EQ(contents.handles, 1);
}

TEST(Metafile, withoutItsEndIsNone)
{
    EmfMemory memory;
    MetafileContext context(memory, {});
    drawDashes(context, 10000);
    EXPECT_THROW(readMetafile(memory.bytes()), std::runtime_error);
    context.close();
    EXPECT_NO_THROW(readMetafile(memory.bytes()));
}

TEST(EmfFile, isTheSameAsTheMetafileInMemory)
{
    const TemporaryFolder folder;
    const std::string path = folder.write("a.emf", "old");
    const auto draw = [](DeviceContext& context) {
        drawDashes(context, 10000);
        context.fillRectangle({1, 2, 3, 4}, 0);
    };
    EmfFile file(path);
    EmfMemory memory;
    for (EmfSink* const sink : {static_cast<EmfSink*>(&file), static_cast<EmfSink*>(&memory)}) {
        MetafileContext context(*sink, QStringLiteral("a picture"));
        draw(context);
        context.close();
    }
    EXPECT_EQ(fileBytes(path), "old");
    file.commit();
    EXPECT_EQ(fileBytes(path), memory.bytes());
}

TEST(EmfFile, leavesTheOldFileWhenItCannotBeWritten)
{
    const TemporaryFolder folder;
    const std::string path = folder.write("a.emf", "old");
    const FileSizeLimit limit(100000);
    EXPECT_EQ(errorNumberOf([&] {
                  EmfFile file(path);
                  MetafileContext context(file, {});
                  drawDashes(context, 10000); // 320000 bytes
                  context.close();
                  file.commit();
              }),
              ErrorNumber::PathFileAccess);
    EXPECT_EQ(fileBytes(path), "old");
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.path()), {}), 1);
}

TEST(MetafileContext, setsOriginAndClipBackOnAFullDisk)
{
    FullDisk disk;
    MetafileContext context(disk, {});
    context.setClip({0, 0, 10, 10});
    EXPECT_EQ(errorNumberOf([&] { drawDashes(context, 10000); }), ErrorNumber::DiskFull);
    EXPECT_EQ(errorNumberOf([&] { context.drawLine({1, 1}, {2, 2}, thin); }), std::nullopt);
    EXPECT_EQ(errorNumberOf([&] {
                  context.clearClip();
                  context.setOrigin({0, 0});
                  context.setClip({1, 1, 1, 1});
              }),
              std::nullopt);
    EXPECT_EQ(errorNumberOf([&] { context.close(); }), ErrorNumber::DiskFull);
}

TEST(MetafileContext, passesItsRecordsOnInPiecesOfOneSize)
{
    for (const int count : {10000, 200000}) {
        Counter counter;
        MetafileContext context(counter, {});
        drawDashes(context, count);
        EXPECT_GE(counter.bytes + 65536, static_cast<std::size_t>(count) * 32);
        context.close();
        EXPECT_EQ(counter.largestPiece, 65536);
    }
}
