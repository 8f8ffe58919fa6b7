// SPDX-License-Identifier: Apache-2.0
#include "emf/EmfListing.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

using namespace tarsil;
using test::drawnRecords;
using test::EmfContents;
using test::EmfItem;
using test::metafileOf;
using ::testing::ElementsAre;
namespace emf = test::emf;

namespace {

const Font arial {QStringLiteral("Arial"), 12};

template <typename Draw>
EmfItem recordOf(std::uint32_t type, Draw draw)
{
    for (const EmfItem& item : metafileOf(draw).records) {
        if (item.type() == type)
            return item;
    }
    throw std::runtime_error("no such record");
}

EmfItem textRecordOf(const QString& text, TextAlignment alignment = TextAlignment::TopLeft)
{
    return recordOf(emf::extTextOutW, [&](DeviceContext& context) {
        context.drawText({200, 100}, text, arial, 0, alignment);
    });
}

EmfItem fontRecordOf(const Font& font)
{
    return recordOf(emf::extCreateFontIndirectW, [&](DeviceContext& context) {
        context.drawText({200, 100}, QStringLiteral("x"), font, 0, TextAlignment::TopLeft);
    });
}

int widthOf(const QString& text)
{
    EmfMemory memory;
    return MetafileContext(memory, {}).textExtent(text, arial).width();
}

} // namespace

TEST(MetafileText, selectsFontColourAndAlignmentOnChange)
{
    const Font bold {QStringLiteral("Arial"), 12, true};
    std::vector<std::string> lines = drawnRecords([&](DeviceContext& context) {
        const auto draw = [&](const Font& font, ColorValue color, TextAlignment alignment) {
            context.drawText({1, 2}, QStringLiteral("x"), font, color, alignment);
        };
        draw(arial, 0, TextAlignment::TopLeft);
        draw(arial, 0, TextAlignment::TopLeft);
        draw(bold, 0, TextAlignment::TopLeft);
        draw(bold, rgb(0, 0, 255), TextAlignment::TopLeft);
        draw(arial, rgb(0, 0, 255), TextAlignment::BaselineLeft);
    });
    std::erase(lines, "move 1,2");
    for (std::string& line : lines)
        line = line.starts_with("text") ? "text" : line;
    EXPECT_THAT(lines,
                ElementsAre("background transparent", "font 1 -16 400 charset 1 Arial", "select 1",
                            "color #000000", "align 0", "text", "text",
                            "font 2 -16 700 charset 1 Arial", "select 2", "text", "color #0000ff",
                            "text", "select 1", "align 24", "text"));
}

TEST(MetafileText, isDividedFromTheTextBeforeIt)
{
    const std::vector<std::string> lines = drawnRecords([&](DeviceContext& context) {
        context.drawText({1, 2}, QStringLiteral(" "), arial, 0, TextAlignment::TopLeft);
        context.drawText({1, 18}, QStringLiteral(" "), arial, 0, TextAlignment::TopLeft);
    });
    ASSERT_GE(lines.size(), 4U);
    EXPECT_EQ(lines[lines.size() - 4], "move 1,2");
    EXPECT_EQ(lines[lines.size() - 2], "move 1,18");
}

TEST(MetafileText, isWrittenWithTheAdvanceOfEachCharacter)
{
    const QString words = QStringLiteral("V(keas) 0.25, AV");
    const EmfItem item = textRecordOf(words);
    EXPECT_EQ(item.shownText(), words);
    std::vector<int> widths;
    for (const QChar letter : words)
        widths.push_back(widthOf(QString(letter)));
    EXPECT_EQ(item.advances(), widths);
}

TEST(MetafileText, isAtTheReferencePointWhateverTheAlignment)
{
    for (const TextAlignment alignment :
         {TextAlignment::TopLeft, TextAlignment::TopRight, TextAlignment::TopCenter,
          TextAlignment::BottomCenter, TextAlignment::BaselineLeft}) {
        EXPECT_EQ(textRecordOf(QStringLiteral("text"), alignment).point(36), QPoint(200, 100));
        const auto lines = drawnRecords([&](DeviceContext& context) {
            context.drawText({200, 100}, QStringLiteral("text"), arial, 0, alignment);
        });
        EXPECT_THAT(lines,
                    ::testing::Contains("align " + std::to_string(static_cast<int>(alignment))));
    }
}

TEST(MetafileText, saysHowLargeAPixelIs)
{
    // Hundredths of a millimetre for each pixel: 2540 / 96.
    const EmfItem item = textRecordOf(QStringLiteral("text"));
    EXPECT_FLOAT_EQ(item.real(28), 2540.0F / 96);
    EXPECT_FLOAT_EQ(item.real(32), 2540.0F / 96);
}

TEST(MetafileText, hasNoOptionsAndNoRectangle)
{
    const EmfItem item = textRecordOf(QStringLiteral("text"));
    EXPECT_EQ(item.word(52), 0);
    EXPECT_EQ(item.rectangle(56), QRect());
}

TEST(MetafileText, coversTheRectangleOfItsExtentAndWhatLeansOutOfIt)
{
    EmfMemory memory;
    const QString words = QStringLiteral("words");
    const MetafileContext context(memory, {});
    const QSize extent = context.textExtent(words, arial);
    const int ascent = context.textAscent(arial);
    const auto cornerOf = [&](TextAlignment alignment) {
        // An eighth of the letters' height of 16 pixels, plus one, on every side.
        const QRect covered = textRecordOf(words, alignment).rectangle(8).adjusted(3, 3, -3, -3);
        EXPECT_EQ(covered.size(), extent);
        return covered.topLeft();
    };
    EXPECT_EQ(cornerOf(TextAlignment::TopLeft), QPoint(200, 100));
    EXPECT_EQ(cornerOf(TextAlignment::TopRight), QPoint(200 - extent.width(), 100));
    EXPECT_EQ(cornerOf(TextAlignment::TopCenter), QPoint(200 - extent.width() / 2, 100));
    EXPECT_EQ(cornerOf(TextAlignment::BottomCenter),
              QPoint(200 - extent.width() / 2, 100 - extent.height()));
    EXPECT_EQ(cornerOf(TextAlignment::BaselineLeft), QPoint(200, 100 - ascent));
}

TEST(MetafileText, belongsToTheBoundsOfThePicture)
{
    const auto draw = [](DeviceContext& context) {
        context.drawText({200, 100}, QStringLiteral("words"), arial, 0, TextAlignment::TopLeft);
    };
    EXPECT_EQ(metafileOf(draw).bounds, textRecordOf(QStringLiteral("words")).rectangle(8));
}

TEST(MetafileText, givesTheAdvanceOfACharacterOfTwoUnitsToTheFirst)
{
    const QString alpha = QStringLiteral("\U0001D6FC"); // mathematical italic small alpha
    EXPECT_THAT(
        textRecordOf(QStringLiteral("a") + alpha + QStringLiteral("b")).advances(),
        ElementsAre(widthOf(QStringLiteral("a")), widthOf(alpha), 0, widthOf(QStringLiteral("b"))));
}

TEST(MetafileText, writesHalfACharacterAsTheReplacementCharacter)
{
    const QString broken =
        QStringLiteral("a") + QChar(0xD835) + QStringLiteral("b") + QChar(0xDEFC) + QChar(0xD835);
    EXPECT_EQ(textRecordOf(broken).shownText(), QStringLiteral("a\uFFFDb\uFFFD\uFFFD"));
}

TEST(MetafileText, writesControlCharactersAsBlanks)
{
    const QString words = QStringLiteral("a\tb\r\nc\u0001d\u0085e\u2028f");
    const EmfItem item = textRecordOf(words);
    EXPECT_EQ(item.shownText(), QStringLiteral("a b  c d e f"));
    EXPECT_EQ(item.advances()[1], widthOf(QStringLiteral(" ")));
}

TEST(MetafileText, withoutWidthIsNotWritten)
{
    EXPECT_THAT(drawnRecords([](DeviceContext& context) {
                    context.drawText({200, 100}, QString(), arial, 0, TextAlignment::TopLeft);
                }),
                ElementsAre());
}

TEST(MetafileText, keepsTheStylesOfItsFont)
{
    // 9 points are 9 * 96 / 72 = 12 pixels.
    const EmfItem plain = fontRecordOf({QStringLiteral("Arial"), 9});
    EXPECT_EQ(plain.integer(12), -12);
    EXPECT_EQ(plain.integer(28), 400);
    EXPECT_EQ(plain.word(32), 0x01000000); // no style, default character set
    const EmfItem all = fontRecordOf({QStringLiteral("Arial"), 9, true, true, true, true});
    EXPECT_EQ(all.integer(28), 700);
    EXPECT_EQ(all.word(32), 0x01010101);
    EXPECT_EQ(fontRecordOf({QStringLiteral("Arial"), 9, false, false, true}).word(32), 0x01000100);
}

TEST(MetafileText, roundsTheHeightToWholePixelsAndNeverToNone)
{
    // 8 points are 10.67 pixels.
    EXPECT_EQ(fontRecordOf({QStringLiteral("Arial"), 8}).integer(12), -11);
    EXPECT_EQ(fontRecordOf({QStringLiteral("Arial"), 0}).integer(12), -1);
}

TEST(MetafileText, usesTheSymbolCharacterSetForFacesOfSigns)
{
    for (const QString& face :
         {QStringLiteral("Symbol"), QStringLiteral("Wingdings"), QStringLiteral("wingdings 3")})
        EXPECT_EQ(fontRecordOf({face, 8}).byte(35), 2) << face.toStdString();
    EXPECT_EQ(fontRecordOf({QStringLiteral("Symbolic"), 8}).byte(35), 1);
}

TEST(MetafileText, shortensFaceNamesToTheirField)
{
    const QString longest(31, u'n');
    EXPECT_EQ(fontRecordOf({longest, 8}).face(), longest);
    EXPECT_EQ(fontRecordOf({longest + u'n', 8}).face(), longest);
    const QString thirty(30, u'n'); // the next character needs the units 31 and 32
    EXPECT_EQ(fontRecordOf({thirty + QStringLiteral("\U0001D6FC"), 8}).face(), thirty);
    EXPECT_EQ(fontRecordOf({QString(), 8}).face(), QStringLiteral("Arial"));
}
