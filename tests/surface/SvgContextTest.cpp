// SPDX-License-Identifier: Apache-2.0
#include "surface/SvgContext.h"

#include "support/Ink.h"
#include "surface/Picture.h"
#include "surface/SvgSurface.h"

#include <QBuffer>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

#include <functional>
#include <initializer_list>

using namespace tarsil;
using test::SvgSurface;

namespace {

using Drawing = std::function<void(DeviceContext&)>;

QByteArray svgOf(const Drawing& draw)
{
    SvgSurface surface;
    draw(surface.context());
    return surface.bytes();
}

/// Expects the SVG to show the same as the screen.
void expectTheScreen(const Drawing& draw)
{
    SvgSurface svg;
    test::Picture screen;
    draw(svg.context());
    draw(screen.context());
    test::expectSameInk(svg.image(), screen.image(), 1, 1.0);
}

QStringList list(std::initializer_list<const char*> texts)
{
    QStringList all;
    for (const char* text : texts)
        all.append(QString::fromLatin1(text));
    return all;
}

/// An attribute of all elements of a name.
QStringList attributesOf(const QByteArray& svg, QStringView element, QStringView attribute)
{
    QStringList values;
    QXmlStreamReader xml(svg);
    while (!xml.atEnd()) {
        if (xml.readNext() == QXmlStreamReader::StartElement && xml.name() == element)
            values.append(xml.attributes().value(attribute.toString()).toString());
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    return values;
}

} // namespace

TEST(SvgContext, saysItsSizeInMillimetresAndPixels)
{
    const QByteArray svg = svgOf([](DeviceContext& /*context*/) {});
    // 400 and 300 pixels at 96 per inch of 25.4 mm.
    EXPECT_EQ(attributesOf(svg, u"svg", u"width"), list({"105.833333mm"}));
    EXPECT_EQ(attributesOf(svg, u"svg", u"height"), list({"79.375mm"}));
    EXPECT_EQ(attributesOf(svg, u"svg", u"viewBox"), list({"0 0 400 300"}));
}

TEST(SvgContext, hasTheExactSizeThatIsAskedFor)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    {
        const SvgContext context(buffer, QSizeF(165, 120) * 96 / 25.4, QStringLiteral("a test"));
    }
    EXPECT_EQ(attributesOf(buffer.data(), u"svg", u"width"), list({"165mm"}));
    EXPECT_EQ(attributesOf(buffer.data(), u"svg", u"height"), list({"120mm"}));
    // A pixel is 1/96 inch: 165 * 96 / 25.4 and 120 * 96 / 25.4.
    EXPECT_EQ(attributesOf(buffer.data(), u"svg", u"viewBox"), list({"0 0 623.622047 453.543307"}));
}

TEST(SvgContext, keepsTheFractionsOfExactLines)
{
    const QByteArray svg = svgOf([](DeviceContext& context) {
        context.setOrigin({100, 50});
        context.drawExactLine({10.25, 20.5}, {30.125, 20}, {});
        context.drawExactLine({30.125, 20}, {40.0004, 0}, {});
    });
    // Half a pixel is the centre of the pixel of a whole position.
    EXPECT_EQ(attributesOf(svg, u"polyline", u"points"),
              list({"110.75,71 130.625,70.5 140.5,50.5"}));
}

TEST(SvgContext, widensNarrowLines)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    {
        SvgContext context(buffer, {400, 300}, QStringLiteral("a test"), 2.5);
        context.drawLine({0, 0}, {10, 10}, {penstyle::solid, 0, 0});
        context.drawLine({0, 20}, {10, 20}, {penstyle::dash, 1, 0});
        context.drawLine({0, 30}, {10, 30}, {penstyle::solid, 4, 0});
    }
    EXPECT_EQ(attributesOf(buffer.data(), u"polyline", u"stroke-width"), list({"2.5", "2.5", "4"}));
}

TEST(SvgContext, joinsConnectedSolidLinesOfOnePen)
{
    const QByteArray svg = svgOf([](DeviceContext& context) {
        context.drawLine({0, 0}, {10, 10}, {});
        context.drawLine({10, 10}, {20, 0}, {});
        context.drawLine({20, 0}, {30, 0}, {penstyle::dash, 1, 0});
        context.drawLine({30, 0}, {40, 0}, {penstyle::dash, 1, 0});
    });
    EXPECT_EQ(attributesOf(svg, u"polyline", u"points"),
              list({"0.5,0.5 10.5,10.5 20.5,0.5", "20.5,0.5 30.5,0.5", "30.5,0.5 40.5,0.5"}));
    EXPECT_EQ(attributesOf(svg, u"polyline", u"stroke-dasharray"), list({"", "18,6", "18,6"}));
}

TEST(SvgContext, showsWideLinesAndTheirEndsAsOnTheScreen)
{
    expectTheScreen([](DeviceContext& context) {
        context.drawLine({50, 50}, {150, 80}, {penstyle::solid, 20, rgb(255, 0, 0)});
        context.drawLine({150, 80}, {100, 200}, {penstyle::solid, 20, rgb(255, 0, 0)});
        context.drawLine({200, 50}, {300, 80}, {penstyle::dash, 7, rgb(0, 0, 255)});
    });
}

TEST(SvgContext, keepsWidePensAndTextsToTheClip)
{
    const QRect clip(60, 40, 200, 100);
    const auto draw = [clip](DeviceContext& context) {
        context.setClip(clip);
        context.drawLine({70, 50}, {250, 50}, {penstyle::solid, 31, 0}); // beyond the upper edge
        context.drawLine({10, 130}, {390, 150}, {penstyle::solid, 9, 0}); // beyond three edges
        Font large;
        large.points = 40;
        context.drawText({60, 90}, QStringLiteral("WWW"), large, 0, TextAlignment::TopCenter);
        context.clearClip();
    };
    SvgSurface surface;
    draw(surface.context());
    EXPECT_EQ(surface.ink(), clip);
    expectTheScreen(draw);
}

TEST(SvgContext, cutsLinesWhereTheirEndsAreNotSeen)
{
    const QByteArray svg = svgOf([](DeviceContext& context) {
        context.setClip({100, 100, 50, 50});
        context.drawLine({0, 120}, {100000, 120}, {penstyle::solid, 4, 0});
        context.drawLine({0, 90}, {400, 90}, {penstyle::solid, 4, 0});
    });
    // Half the width and one pixel beyond the clip; the second line is further away.
    EXPECT_EQ(attributesOf(svg, u"polyline", u"points"), list({"97,120.5 153,120.5"}));
}

TEST(SvgContext, beginsTheDashesWhereTheLineBeginsAndNotWhereItIsCut)
{
    const auto draw = [](DeviceContext& context) {
        context.setClip({100, 0, 200, 300});
        context.drawLine({10, 20}, {390, 20}, {penstyle::dash, 1, 0});
        context.drawLine({390, 40}, {10, 40}, {penstyle::dashDotDot, 1, 0});
    };
    SvgSurface svg;
    draw(svg.context());
    const QImage image = svg.image();
    // Dashes of 18 pixels with gaps of 6: from column 10.5 the fifth begins at 106.5.
    EXPECT_EQ(image.pixelColor(103, 20), Qt::white);
    EXPECT_EQ(image.pixelColor(110, 20), Qt::black);
    expectTheScreen(draw);
}

TEST(SvgContext, leavesOutTextsWhollyOutsideOfTheClip)
{
    const QByteArray svg = svgOf([](DeviceContext& context) {
        context.setClip({100, 100, 50, 50});
        context.drawText({0, 0}, QStringLiteral("outside"), {}, 0, TextAlignment::TopLeft);
        context.drawText({95, 110}, QStringLiteral("across"), {}, 0, TextAlignment::TopLeft);
    });
    EXPECT_FALSE(svg.contains("outside"));
    EXPECT_TRUE(svg.contains("across"));
}

TEST(SvgContext, writesEachClipPathOnce)
{
    const QByteArray svg = svgOf([](DeviceContext& context) {
        for (const int left : {0, 50, 0, 50}) {
            context.setClip({left, 0, 40, 40});
            context.fillRectangle({left, 5, 10, 10}, 0);
        }
        context.setClip({1, 2, 3, 4}); // nothing is drawn under this clip
    });
    EXPECT_EQ(attributesOf(svg, u"clipPath", u"id"), list({"clip1", "clip2"}));
    EXPECT_EQ(attributesOf(svg, u"g", u"clip-path"),
              list({"url(#clip1)", "url(#clip2)", "url(#clip1)", "url(#clip2)"}));
}

TEST(SvgContext, writesTextsWithTheirBlanksAndLooks)
{
    const QByteArray svg = svgOf([](DeviceContext& context) {
        Font font {QStringLiteral("Times New Roman"), 12, true, true};
        font.underline = true;
        font.strikeOut = true;
        context.drawText({10, 30}, QStringLiteral(" a  b "), font, rgb(255, 0, 0),
                         TextAlignment::BaselineLeft);
    });
    EXPECT_TRUE(svg.contains("> a  b <"));
    EXPECT_EQ(attributesOf(svg, u"text", u"xml:space"), list({"preserve"}));
    EXPECT_EQ(attributesOf(svg, u"text", u"font-family"), list({"Times New Roman"}));
    EXPECT_EQ(attributesOf(svg, u"text", u"font-size"), list({"16"}));
    EXPECT_EQ(attributesOf(svg, u"text", u"fill"), list({"#ff0000"}));
    EXPECT_EQ(attributesOf(svg, u"rect", u"fill"), list({"#ff0000", "#ff0000"}));
    expectTheScreen([](DeviceContext& context) {
        Font font {QStringLiteral("Arial"), 20};
        font.underline = true;
        font.strikeOut = true;
        context.drawText({10, 100}, QStringLiteral("words"), font, 0, TextAlignment::BaselineLeft);
    });
}

TEST(SvgContext, isWellFormedWhateverTextsAndNamesHold)
{
    const QStringList hostile = {
        QStringLiteral("R&D Sans"),
        QStringLiteral("A\" onmouseover=\"alert(1)\" x=\""),
        QStringLiteral("</text><script>alert(1)</script>"),
        QStringLiteral("]]>&#0;&lt;<!--"),
        QStringLiteral("it's; a {b: c} \\"),
        QString::fromUtf16(u"\x01\x08\n\t\xFFFE\xFFFF\xD800x\xDC00\u2028")};
    for (const QString& text : hostile) {
        QByteArray svg;
        QBuffer buffer(&svg);
        buffer.open(QIODevice::WriteOnly);
        {
            SvgContext context(buffer, {400, 300}, text);
            Font font;
            font.family = text;
            context.drawText({10, 10}, text, font, 0, TextAlignment::TopLeft);
        }
        // One title and one text, with exactly the characters that can be shown.
        EXPECT_EQ(attributesOf(svg, u"text", u"onmouseover"), QStringList(QString()));
        EXPECT_TRUE(attributesOf(svg, u"script", u"id").isEmpty());
        QXmlStreamReader xml(svg);
        while (!xml.atEnd() && xml.name() != u"text")
            xml.readNextStartElement() ? void() : void(xml.readNext());
        EXPECT_EQ(xml.readElementText(), drawableText(text));
    }
}

TEST(SvgContext, quotesFamiliesThatAreNoPlainWords)
{
    const auto family = [](const QString& name) {
        const QByteArray svg = svgOf([&name](DeviceContext& context) {
            Font font;
            font.family = name;
            context.drawText({10, 10}, QStringLiteral("x"), font, 0, TextAlignment::TopLeft);
        });
        return attributesOf(svg, u"text", u"font-family").join(u'|');
    };
    EXPECT_EQ(family(QStringLiteral("Times New Roman")), QStringLiteral("Times New Roman"));
    EXPECT_EQ(family(QStringLiteral("R&D Sans")), QStringLiteral("'R&D Sans'"));
    EXPECT_EQ(family(QStringLiteral("Arial,Bold")), QStringLiteral("'Arial,Bold'"));
    EXPECT_EQ(family(QStringLiteral("Bell's")), QStringLiteral("'Bell\\'s'"));
    EXPECT_EQ(family({}), QStringLiteral("''"));
}
