// SPDX-License-Identifier: Apache-2.0

// The picture of a V-g-f plot as an Enhanced Metafile.

#include "analysis/ModeBuilder.h"
#include "emf/EmfListing.h"
#include "emf/MetafileSurface.h"
#include "plot/Marker.h"
#include "support/ChangeSeries.h"
#include "support/Errors.h"
#include "support/Ink.h"
#include "support/TestFiles.h"
#include "surface/SvgSurface.h"
#include "vgfplot/EvmPlot.h"
#include "vgfplot/PictureWriter.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

using namespace tarsil;
using test::addMode;

namespace {

/// A plot with two curves, every kind of text, a reference speed and a damping line.
class EvmPlotPicture : public ::testing::Test
{
protected:
    EvmPlotPicture()
    {
        plot.resize({800, 600});
        plot.rows().add(
            addMode(evolution, 1, {{0, -0.02F, 10}, {350, -0.1F, 20}, {700, 0.05F, 25}}));
        plot.rows().add(addMode(evolution, 2, {{0, -0.2F, 45}, {700, -0.1F, 30}}));
        test::changeSeries(plot, 0, [](Series& solid) { solid.ColorIndex = rgb(0, 0, 255); });
        test::changeSeries(plot, 1, [](Series& dashed) {
            dashed.ColorIndex = rgb(255, 0, 0);
            dashed.LineStyle = penstyle::dash;
        });
        plot.texts().setTextRTF(
            TextBox::Header,
            "{\\rtf1{\\colortbl ;\\red0\\green128\\blue0;}\\fs28 header \\cf1\\b "
            "green\\par}");
        plot.texts().setText(TextBox::Legend, QStringLiteral("legend"));
        plot.texts().setText(TextBox::Mechanism, QStringLiteral("subtitle"));
        plot.references().AddRef(352.1F, QStringLiteral("Vd"));
        plot.references().AddDampLine(-0.02F, QStringLiteral("g = 2.00 %"));
    }

    test::EmfContents contents()
    {
        return test::readMetafile(pictureBytes(plot, PictureFormat::Emf).toStdString());
    }

    EVM evolution;
    EvmPlot plot;
};

/// The texts of a metafile in order.
QStringList textsOf(const test::EmfContents& contents)
{
    QStringList texts;
    for (const test::EmfItem& record : contents.records) {
        if (record.type() == test::emf::extTextOutW)
            texts.append(record.shownText());
    }
    return texts;
}

qsizetype placeOf(const QStringList& texts, const char* text)
{
    const qsizetype area = texts.indexOf(QString::fromLatin1(text));
    EXPECT_GE(area, 0) << text;
    return area;
}

} // namespace

TEST_F(EvmPlotPicture, looksLikeTheScreen)
{
    // The player of the tests draws without antialiasing: the pictures agree to a pixel.
    test::expectSameInk(test::playMetafile(contents(), plot.size()), plot.Image(), 1, 1.0);
}

TEST_F(EvmPlotPicture, beginsWithAWhiteGroundOverTheWholeControl)
{
    const std::vector<std::string> lines = test::listingOf(contents());
    const auto fill = std::find_if(lines.begin(), lines.end(), [](const std::string& line) {
        return line.starts_with("fill ");
    });
    ASSERT_NE(fill, lines.end());
    EXPECT_EQ(*fill, "fill 0,0 800x600");
    EXPECT_TRUE(std::none_of(lines.begin(), fill, [](const std::string& line) {
        return line.starts_with("text ") || line.starts_with("poly");
    }));
    EXPECT_NE(std::find(lines.begin(), fill, "brush 1 #ffffff"), fill);
}

TEST_F(EvmPlotPicture, drawsItsPartsInTheirOrder)
{
    const QStringList texts = textsOf(contents());
    const std::vector<const char*> order = {"100",   "Vd", "V(keas)", "40.0",   "f(Hz)",
                                            "-0.05", "g",  "header ", "legend", "subtitle"};
    for (std::size_t i = 1; i < order.size(); ++i)
        EXPECT_LT(placeOf(texts, order[i - 1]), placeOf(texts, order[i])) << order[i];
    // The curves come last: frequency, then damping with its lines.
    EXPECT_GT(placeOf(texts, "g = 2.00 %"), placeOf(texts, "subtitle"));
}

TEST_F(EvmPlotPicture, isDescribedInTheFixedWords)
{
    EXPECT_EQ(contents().description,
              QStringLiteral("Tarsil\\0Created by Kestrin\\0\\0") + QString(2, QChar(u'\0')));
}

TEST_F(EvmPlotPicture, drawsEmptyBoxesLikeTheOthers)
{
    for (const TextBox which : allTextBoxes)
        plot.texts().setText(which, {});
    EXPECT_FALSE(textsOf(contents()).contains(QStringLiteral("Insert Header")));
    test::expectSameInk(test::playMetafile(contents(), plot.size()), plot.Image(), 1, 1.0);
}

TEST_F(EvmPlotPicture, endsAtThePlotWhateverItsTextsHold)
{
    plot.texts().setText(TextBox::Header, QString(900, u'W'));
    plot.texts().move(TextBox::Legend, 15 * 780, 15 * 590);
    EXPECT_EQ(contents().bounds, QRect(0, 0, 800, 600));
    test::expectSameInk(test::playMetafile(contents(), plot.size()), plot.Image(), 1, 1.0);
}

TEST_F(EvmPlotPicture, showsABoxWhosePositionIsOutsideThePlotAsTheScreenDoes)
{
    plot.texts().setText(TextBox::Legend, QStringLiteral("beyond"));
    plot.texts().move(TextBox::Legend, 15 * 1200, 15 * 100);
    const QRect area = plot.Legend().geometry();
    EXPECT_TRUE(plot.Image().rect().contains(area));
    EXPECT_EQ(pictureImage(plot, 1), plot.Image());
    test::expectSameInk(test::playMetafile(contents(), plot.size()), plot.Image(), 1, 1.0);
    const QImage shown = plot.Image().copy(area);
    plot.texts().setText(TextBox::Legend, {});
    EXPECT_NE(plot.Image().copy(area), shown);
}

TEST_F(EvmPlotPicture, showsSlantedLettersAsTheScreenDoes)
{
    plot.texts().setTextRTF(TextBox::Legend, "{\\rtf\\i\\fs96 jf\\par}");
    plot.texts().move(TextBox::Legend, 15 * 300, 15 * 250);
    EXPECT_EQ(pictureImage(plot, 1), plot.Image());
}

TEST_F(EvmPlotPicture, showsTheSameOnScreenAndInFilesAtEverySize)
{
    // Wide plots have room beside the axes for long captions and labels.
    plot.references().AddRef(
        690, QStringLiteral("a caption that reaches far beyond the right end of the axis"));
    plot.references().AddRef(
        5, QStringLiteral("a caption that reaches far beyond the left end of the axis"));
    plot.properties().setVLabel(QStringLiteral("V(keas) with a long title"));
    plot.SetScale(0, 700, 0, 9e9F, 0, -9e9F);
    for (const QSize size :
         {QSize(700, 500), QSize(1067, 700), QSize(1500, 900), QSize(2600, 1400)}) {
        plot.resize(size);
        plot.plot();
        EXPECT_EQ(pictureImage(plot, 1), plot.Image()) << size.width();
    }
}

TEST_F(EvmPlotPicture, drawsFacesOfOneScriptAsTheFaceItself)
{
    const auto shown = [this](const char* face) {
        plot.texts().setTextRTF(TextBox::Header,
                                std::string("{\\rtf1{\\fonttbl{\\f0 ") + face
                                    + ";}}\\f0\\fs40 Wing\\par}");
        return plot.Image().copy();
    };
    const QImage arial = shown("Arial");
    EXPECT_EQ(shown("Arial Greek"), arial);
    EXPECT_EQ(shown("Arial CE"), arial);
    EXPECT_NE(plot.Header().TextRTF().find("Arial CE"), std::string::npos) << "it is kept";
    EXPECT_TRUE(pictureBytes(plot, PictureFormat::Svg).contains("font-family=\"Arial\""));
    EXPECT_FALSE(pictureBytes(plot, PictureFormat::Svg).contains("Arial CE"));
}

TEST_F(EvmPlotPicture, isAWellFormedSvgWhateverTheTextsHold)
{
    const QStringList hostile = {
        QStringLiteral("R&D <b>Sans</b>"), QStringLiteral("\" onmouseover=\"alert(1)\" x=\""),
        QStringLiteral("</text></g></svg><script>alert(1)</script>"),
        QStringLiteral("]]>&#0;&unknown;<!-- <![CDATA["),
        QString::fromUtf16(u"\x01\x1F\xFFFE\xFFFF\xD800z\xDC00\u2028\u202E")};
    for (const QString& text : hostile) {
        for (const TextBox which : allTextBoxes)
            plot.texts().setText(which, text);
        plot.properties().setVLabel(text);
        plot.properties().setGLabel(text);
        plot.properties().setFLabel(text);
        plot.references().AddRef(100, text);
        plot.references().AddDampLine(-0.1F, text);
        test::changeAllSeries(plot, [&text](Series& series) {
            series.MarkerStyle = markerNumber(MarkerKind::Tag);
            series.MarkerSpacing = 1;
            series.MarkerTag = text;
        });
        const QByteArray svg = pictureBytes(plot, PictureFormat::Svg);
        EXPECT_NO_THROW(test::playSvg(svg)) << text.toStdString();
        EXPECT_FALSE(svg.contains("<script"));
    }
}

TEST_F(EvmPlotPicture, writesNothingButNamesOfFontsIntoAnSvg)
{
    const auto svgWith = [this](const char* face) {
        plot.texts().setTextRTF(TextBox::Header,
                                std::string("{\\rtf1{\\fonttbl{\\f0 ") + face
                                    + ";}}\\f0 header\\par}");
        QByteArray svg = pictureBytes(plot, PictureFormat::Svg);
        EXPECT_NO_THROW(test::playSvg(svg)) << face;
        return svg;
    };
    EXPECT_TRUE(svgWith("R&D Sans").contains("font-family=\"'R&amp;D Sans'\""));
    EXPECT_FALSE(svgWith("A\" onmouseover=\"alert(1)").contains("onmouseover"));
    EXPECT_FALSE(svgWith("A\"><script>alert(1)</script>").contains("script"));
    EXPECT_EQ(plot.Header().TextRTF().find("script"), std::string::npos);
}

TEST_F(EvmPlotPicture, keepsThickPensWithinTheCanvasInAnSvg)
{
    plot.SetScale(0, 700, 0, 20, 0, -0.1F); // both curves leave it
    test::changeAllSeries(plot, [](Series& series) { series.LineWidth = 40; });
    const QImage svg = test::playSvg(pictureBytes(plot, PictureFormat::Svg));
    test::expectSameInk(svg, plot.Image(), 1, 1.0);
    // Left of the canvases, above the frequency axis, are only its labels.
    EXPECT_EQ(svg.copy(0, 60, 20, 500), plot.Image().copy(0, 60, 20, 500));
}

TEST_F(EvmPlotPicture, hasCurvesAtFractionsOfAPixelInAnSvg)
{
    // The canvas begins at column 80 and row 78; 700 KEAS are 600 pixels, 50 Hz are 252. So 350
    // KEAS are column 380 and 20 Hz row 78 + 252 * 0.6 = 229.2, both from the centre of a pixel.
    EXPECT_TRUE(pictureBytes(plot, PictureFormat::Svg).contains(" 380.5,229.7 "));
}

TEST_F(EvmPlotPicture, hasTheSizeInMillimetresAndTheResolutionThatAreAskedFor)
{
    const PictureSettings settings {QSizeF(165, 120), 300, 1};
    plot.resize(pixelsOf(*settings.millimetres));
    EXPECT_EQ(plot.size(), QSize(624, 454)); // 623.6 x 453.5
    const QByteArray svg = pictureBytes(plot, PictureFormat::Svg, settings);
    EXPECT_TRUE(svg.contains("width=\"165mm\" height=\"120mm\""));
    // 165 * 72 / 25.4 and 120 * 72 / 25.4 points; Qt puts the upper edge at 340.
    EXPECT_TRUE(pictureBytes(plot, PictureFormat::Pdf, settings)
                    .contains("/MediaBox [0 -0.1575 467.7165 340 "));
    const QImage png = QImage::fromData(pictureBytes(plot, PictureFormat::Png, settings));
    EXPECT_EQ(png.size(), QSize(1949, 1417)); // 165 and 120 * 300 / 25.4
    EXPECT_EQ(png.dotsPerMeterX(), 11811); // 300 / 0.0254
    EXPECT_EQ(png.dotsPerMeterY(), 11811);
}

TEST_F(EvmPlotPicture, showsTheLabelsOfTheSpeedAxisInFrontOfTheCurves)
{
    // The label of 400 KEAS is centred on column 80 + 600 * 4 / 7 = 423, its letters are rows 337
    // to 344. A curve 30 pixels wide at g = -0.01, row 340, covers all labels.
    const QRect letters(415, 337, 17, 8);
    EvmPlot empty;
    empty.resize(plot.size());
    const auto addCurve = [this](EvmPlot& under) {
        under.rows().add(addMode(evolution, 3, {{0, -0.01F, 10}, {700, -0.01F, 10}}));
        test::changeSeries(under, 0, [](Series& wide) {
            wide.LineWidth = 30;
            wide.ColorIndex = rgb(255, 0, 0);
        });
    };
    EvmPlot covered;
    covered.resize(plot.size());
    addCurve(covered);
    EXPECT_EQ(covered.Image().copy(letters), empty.Image().copy(letters));
    EXPECT_EQ(covered.Image().pixelColor(440, 340), QColor(255, 0, 0)) << "beside the label";
    EXPECT_EQ(pictureImage(covered, 1), covered.Image());
    const QImage svg = test::playSvg(pictureBytes(covered, PictureFormat::Svg));
    test::expectSameInk(svg, covered.Image(), 1, 1.0);
    EXPECT_EQ(pictureBytes(covered, PictureFormat::Svg).count(">400<"), 1);
}

TEST_F(EvmPlotPicture, isWrittenUnderTheVeryNameGiven)
{
    const test::TemporaryFolder folder;
    plot.ExportPic(QString::fromStdString(folder.file("Plot1")));
    EXPECT_EQ(test::fileBytes(folder.file("Plot1")),
              pictureBytes(plot, PictureFormat::Emf).toStdString());
}

TEST_F(EvmPlotPicture, leavesTheOldFileWhenItCannotBeWritten)
{
    const test::TemporaryFolder folder;
    const QString missing = QString::fromStdString(folder.file("missing") + "/a.emf");
    EXPECT_EQ(test::errorNumberOf([&] { plot.ExportPic(missing); }), ErrorNumber::PathNotFound);
    const std::string old = folder.write("old.emf", "old");
    std::filesystem::permissions(old, std::filesystem::perms::owner_read);
    EXPECT_EQ(test::errorNumberOf([&] { plot.ExportPic(QString::fromStdString(old)); }),
              ErrorNumber::PermissionDenied);
    EXPECT_EQ(test::fileBytes(old), "old");
}

TEST_F(EvmPlotPicture, leavesTheOldFileWhenDrawingFails)
{
    const test::TemporaryFolder folder;
    const std::string old = folder.write("old.emf", "old");
    plot.properties().setVthicks(0);
    EXPECT_EQ(test::errorNumberOf([&] { plot.ExportPic(QString::fromStdString(old)); }),
              ErrorNumber::DivisionByZero);
    EXPECT_EQ(test::fileBytes(old), "old");
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.path()), {}), 1);
}

TEST_F(EvmPlotPicture, hasTheSameBoxesInEveryFormat)
{
    const QByteArray svg = pictureBytes(plot, PictureFormat::Svg);
    EXPECT_TRUE(svg.contains(">green<"));
    EXPECT_TRUE(svg.contains(">legend<"));
    const QImage png = QImage::fromData(pictureBytes(plot, PictureFormat::Png));
    EXPECT_EQ(png.convertToFormat(QImage::Format_RGB32), plot.Image());
    EXPECT_TRUE(pictureBytes(plot, PictureFormat::Pdf).startsWith("%PDF-"));
    EXPECT_TRUE(pictureBytes(plot, PictureFormat::Emf).startsWith(QByteArray("\1\0\0\0", 4)));
}
