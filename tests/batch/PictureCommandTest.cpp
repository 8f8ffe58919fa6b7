// SPDX-License-Identifier: Apache-2.0
#include "batch/BatchFixture.h"

#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <gmock/gmock.h>

using namespace tarsil;
using test::fileBytes;
using test::runBatch;
using test::svgTexts;
using ::testing::HasSubstr;

namespace {

class PictureCommand : public test::BatchFixture
{
protected:
    /// Draws to a file of this name, with more arguments, and returns its path.
    std::string draw(std::string_view name, const std::vector<std::string>& more) const
    {
        std::string output = file(name);
        std::vector<std::string> all = {"picture", "--output", output};
        all.insert(all.end(), more.begin(), more.end());
        const auto result = runBatch(all);
        EXPECT_EQ(result.status, 0) << result.err;
        EXPECT_EQ(result.out + result.err, "");
        return output;
    }

    static QImage imageOf(const std::string& path) { return QImage(QString::fromStdString(path)); }

    /// The number of pixels with more blue than red: those of a blue curve, with its smooth edges.
    static std::size_t bluePixels(const QImage& image)
    {
        return count(image, [](QRgb color) { return qBlue(color) > qRed(color) + 60; });
    }

    static std::size_t inkedPixels(const QImage& image)
    {
        return count(image, [](QRgb color) { return color != qRgb(255, 255, 255); });
    }

private:
    template <typename Condition>
    static std::size_t count(const QImage& image, Condition condition)
    {
        std::size_t pixels = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                pixels += condition(image.pixel(x, y)) ? 1U : 0U;
        }
        return pixels;
    }
};

} // namespace

TEST_F(PictureCommand, drawsAPngOfTheSizeAskedFor)
{
    const QImage image = imageOf(draw("out.png", {"--size", "640x480", writeEv2()}));
    EXPECT_EQ(image.size(), QSize(640, 480));
    EXPECT_EQ(image.pixel(0, 0), qRgb(255, 255, 255));
    // The second curve has the second base colour.
    EXPECT_GT(bluePixels(image), 100U);
    EXPECT_EQ(image.dotsPerMeterX(), 3780); // 96 per inch
}

TEST_F(PictureCommand, drawsAnSvgWithTheTexts)
{
    const std::string path =
        draw("out.SVG",
             {"--header", "first\\nsecond", "--legend", "Fl\xC3\xBCgel", "--subtitle",
              "the mechanism", "--reference-speed", "350=VD", "--reference-speed", "300=VC",
              "--damping-line", "-0.02=two percent", writeEv2()});
    const std::string texts = svgTexts(path);
    for (const char* text :
         {"first|second|", "Fl\xC3\xBCgel|", "the mechanism|", "VD|", "VC|", "two percent|"})
        EXPECT_THAT(texts, HasSubstr(text));
    EXPECT_TRUE(QSvgRenderer(QString::fromStdString(path)).isValid());
}

TEST_F(PictureCommand, keepsSvgCurvesWithinTheirCanvas)
{
    // With a damping axis that ends at 0.1 the curves, which range from -1 to 1, leave the canvas.
    const std::string path = draw("out.svg",
                                  {"--header", "", "--subtitle", "", "--marker", "none", "--scale",
                                   "0,400,0,20,0,-0.1", writeEv2()});
    QImage image(1000, 750, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    QSvgRenderer(QString::fromStdString(path)).render(&painter);
    painter.end();
    EXPECT_GT(bluePixels(image), 100U);
    EXPECT_EQ(inkedPixels(image.copy(0, 0, 1000, 60)), 0U);
}

TEST_F(PictureCommand, drawsAPdf)
{
    const std::string bytes = fileBytes(draw("out.pdf", {"--size", "960x480", writeEv2()}));
    EXPECT_TRUE(bytes.starts_with("%PDF-"));
    EXPECT_TRUE(bytes.ends_with("%%EOF\n"));
    // 960 x 480 pixels, in points.
    EXPECT_THAT(bytes, HasSubstr("/MediaBox [0 0 720 360 "));
}

TEST_F(PictureCommand, writesTheSamePdfForTheSameInput)
{
    const std::string input = writeEv2();
    const std::string bytes = fileBytes(draw("a.pdf", {input}));
    EXPECT_THAT(bytes, HasSubstr("/CreationDate (D:19800101000000)")) << "not that of the clock";
    EXPECT_TRUE(fileBytes(draw("b.pdf", {input})) == bytes);
}

TEST_F(PictureCommand, givesAPdfPageTheExactSize)
{
    // 801 x 601 pixels are 600.75 x 450.75 points. The drawing begins at the upper edge, which Qt
    // rounds to 451.
    const std::string bytes = fileBytes(draw("out.pdf", {"--size", "801x601", writeEv2()}));
    EXPECT_THAT(bytes, HasSubstr("/MediaBox [0 0.25 600.75 451 "));
    // 803 x 603 pixels are 602.25 x 452.25 points, more than the whole points 602 x 452.
    EXPECT_THAT(fileBytes(draw("more.pdf", {"--size", "803x603", writeEv2()})),
                HasSubstr("/MediaBox [0 -0.25 602.25 452 "));
    EXPECT_THAT(bytes, ::testing::EndsWith("%%EOF\n"));
}

TEST_F(PictureCommand, drawsAPictureOfTheMillimetresAskedFor)
{
    const QImage usual = imageOf(draw("a.png", {"--size", "165x120mm", writeEv2()}));
    EXPECT_EQ(usual.size(), QSize(1949, 1417)); // 165 and 120 * 300 / 25.4
    EXPECT_EQ(usual.dotsPerMeterX(), 11811); // 300 / 0.0254
    const QImage coarse =
        imageOf(draw("b.png", {"--size", "50.8x25.4mm", "--resolution", "150", writeEv2()}));
    EXPECT_EQ(coarse.size(), QSize(300, 150));
    EXPECT_THAT(fileBytes(draw("c.svg", {"--size", "165x120mm", writeEv2()})),
                HasSubstr("width=\"165mm\" height=\"120mm\""));
}

TEST_F(PictureCommand, widensNarrowLines)
{
    const std::string path = draw("out.svg", {"--least-line-width", "1.5", writeEv2()});
    EXPECT_THAT(fileBytes(path), HasSubstr("stroke-width=\"1.5\""));
    EXPECT_THAT(fileBytes(path), ::testing::Not(HasSubstr("stroke-width=\"1\"")));
}

TEST_F(PictureCommand, writesTheDashesOfMetafilesAsPensOrAsLines)
{
    const auto withDashes = [this](const std::string& dashes) {
        return fileBytes(
            draw("out.emf", {"--palette", "line-styles", "--dashes", dashes, writeEv2()}));
    };
    const std::string usual = fileBytes(draw("out.emf", {"--palette", "line-styles", writeEv2()}));
    EXPECT_EQ(withDashes("pens"), usual);
    EXPECT_NE(withDashes("lines"), usual);
}

TEST_F(PictureCommand, acceptsScaleAndTicks)
{
    const std::string texts = svgTexts(
        draw("out.svg", {"--scale", "100,500,0,20,0,-0.5", "--ticks", "4,5,2", writeEv2()}));
    // Ticks at every 100 knots, 10 Hz and 0.1.
    for (const char* text : {"200|", "300|", "400|", "10.0|", "-0.10|", "-0.40|"})
        EXPECT_THAT(texts, HasSubstr(text));
    EXPECT_THAT(texts, ::testing::Not(HasSubstr("250|")));
}

TEST_F(PictureCommand, drawsALineAtDampingZeroOnFittedAxesOnly)
{
    const std::string fitted = svgTexts(draw("fitted.svg", {writeEv2()}));
    EXPECT_THAT(fitted, HasSubstr("g = 0|"));
    const std::string scaled =
        svgTexts(draw("scaled.svg", {"--scale", "0,500,0,30,0,-0.2", writeEv2()}));
    EXPECT_THAT(scaled, ::testing::Not(HasSubstr("g = 0")));
}

TEST_F(PictureCommand, putsRoundTicksOnAScale)
{
    const std::string texts =
        svgTexts(draw("out.svg", {"--scale", "0,500,0,30,0,-0.2", writeEv2()}));
    for (const char* text : {"50|", "450|", "5.0|"})
        EXPECT_THAT(texts, HasSubstr(text));
}

TEST_F(PictureCommand, putsTheTicksOfTheSpeedAxisOnWholeNumbers)
{
    // Labels are whole numbers: every 5 knots, not every 2.5.
    const std::string texts =
        svgTexts(draw("out.svg", {"--scale", "0,25,0,30,0,-0.2", writeEv2()}));
    EXPECT_THAT(texts, ::testing::EndsWith("|5|10|15|20|"));
}

TEST_F(PictureCommand, fitsTheAxesWithoutAScale)
{
    // Up to 400 knots, 14 Hz and dampings of 1 and -1, of which 0.1 to -0.4 are shown.
    const std::string texts = svgTexts(draw("out.svg", {writeEv2()}));
    for (const char* text : {"200|", "10.0|", "0.05|", "0.00|", "-0.35|"})
        EXPECT_THAT(texts, HasSubstr(text));
    EXPECT_THAT(texts, ::testing::Not(HasSubstr("-0.40|")));
}

TEST_F(PictureCommand, saysThatReferenceSpeedsAreDrawnElsewhere)
{
    const auto messages = [this](const char* scale) {
        const auto result = runBatch({"picture", "--scale", scale, "--reference-speed", "350=VD",
                                      "--output", file("out.svg"), writeEv2()});
        EXPECT_EQ(result.status, 0);
        return result.err;
    };
    EXPECT_EQ(
        messages("100,500,0,20,0,-0.5"),
        "tarsil-batch: " + file("out.svg")
            + ": Reference speeds are drawn 100 knots too far right: the speed axis begins at "
              "100\n");
    EXPECT_EQ(messages("0,500,0,20,0,-0.5"), "");
}

TEST_F(PictureCommand, drawsTheMarkersAskedFor)
{
    const std::string path = writeEv2();
    const auto texts = [this, &path](std::vector<std::string> more) {
        more.insert(more.end(), {"--marker-spacing", "1", "--scale", "0,1000,0,100,0,-2", path});
        return "|" + svgTexts(draw("out.svg", more));
    };
    EXPECT_THAT(texts({}), HasSubstr("|5|"));
    EXPECT_THAT(texts({"--marker", "id"}), HasSubstr("|5|"));
    EXPECT_THAT(texts({"--marker", "none"}), ::testing::Not(HasSubstr("|5|")));
    EXPECT_THAT(texts({"--marker", "tag"}), HasSubstr("|1|"));
    EXPECT_THAT(texts({"--marker", "mpf:3", "--marker-size", "6"}), HasSubstr("|0.3"));
}

TEST_F(PictureCommand, headsThePictureWithWhatTheFilesSay)
{
    const std::string path = writeEv2();
    const std::string texts = svgTexts(draw("out.svg", {path}));
    for (const char* text : {"QRX190 - FULL \"A\"|", "PK Method - Mach No. 0.78|", "wing.ev2|"})
        EXPECT_THAT(texts, HasSubstr(text));
    const std::string others =
        svgTexts(draw("out.svg", {"--header", "mine", "--subtitle", "", path}));
    EXPECT_THAT(others, HasSubstr("mine|"));
    for (const char* text : {"QRX190", "wing.ev2"})
        EXPECT_THAT(others, ::testing::Not(HasSubstr(text)));
}

TEST_F(PictureCommand, leavesOutTheFilesThatHaveTooManyCurves)
{
    // 499 modes of one point each, a mode in each half of a line.
    std::string text = "\n\n\n" + std::string(60, ' ') + "   1     499\n";
    for (int mode = 1; mode <= 499; ++mode) {
        const std::string number = std::to_string(mode);
        text += std::string(3 - number.size(), ' ') + number
            + "  0.100  100.000 5.00000E-01    4.000" + (mode % 2 == 0 ? "\n" : "");
    }
    const std::string many = folder().write("many.evm", text + "\n");
    const std::string few = writeEv2();
    const std::string why = " is left out: a plot is limited to 500 curves; use --modes\n";
    const auto result = runBatch({"picture", "--output", file("out.svg"), many, few});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.err, "tarsil-batch: " + few + why);
    EXPECT_THAT(svgTexts(file("out.svg")), ::testing::Not(HasSubstr("wing.ev2")));
    draw("some.svg", {"--modes", "1", many, few});
    const std::string more = folder().write("more.evm",
                                            text.replace(text.find(" 499\n"), 5, " 501\n")
                                                + "  1  0.100  100.000 5.00000E-01    4.000"
                                                  "  2  0.100  100.000 5.00000E-01    4.000\n"
                                                  "  2  0.100  100.000 5.00000E-01    4.000\n");
    const auto none = runBatch({"picture", "--output", file("none.svg"), more});
    EXPECT_EQ(none.status, 1);
    EXPECT_EQ(none.err, "tarsil-batch: " + more + why);
}

TEST_F(PictureCommand, drawsTheModesListed)
{
    const QImage image = imageOf(draw("out.png", {"--modes", "2", writeEv2()}));
    EXPECT_EQ(bluePixels(image), 0U) << "one curve only, in the first colour";
}

TEST_F(PictureCommand, drawsEmptyAxesForAFileWithoutModes)
{
    const std::string path =
        folder().write("empty.evm", "\n\n\n" + std::string(60, ' ') + "   0       0\n");
    EXPECT_GT(inkedPixels(imageOf(draw("out.png", {path}))), 100U);
}

TEST_F(PictureCommand, leavesNoPictureWhenAFileIsRefused)
{
    const std::string path = folder().write("bad.evm", "\n\n\n" + std::string(80, ' ') + "\n");
    const auto result = runBatch({"picture", "--output", file("out.png"), writeEv2(), path});
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.err, HasSubstr("bad.evm, line 4")); // blank counts are not numbers
    EXPECT_EQ(fileCount(), 2U);
}

TEST_F(PictureCommand, writesAnEnhancedMetafile)
{
    EXPECT_EQ(runBatch({"picture", "--output", file("a.EMF"), writeEv2()}).status, 0);
    const std::string bytes = fileBytes(file("a.EMF"));
    EXPECT_EQ(bytes.substr(0, 4), std::string("\1\0\0\0", 4)) << "the header record";
    EXPECT_EQ(bytes.substr(40, 4), " EMF");
    const auto failed = runBatch({"picture", "--output", file("none/a.emf"), writeEv2()});
    EXPECT_EQ(failed.status, 1);
    EXPECT_THAT(failed.err, HasSubstr("Path not found"));
}

TEST_F(PictureCommand, keepsTheLookOfRichText)
{
    const std::string rtf = "\n{\\rtf1{\\colortbl ;\\red255\\green0\\blue0;}plain \\cf1 red\\par}";
    EXPECT_EQ(runBatch({"picture", "--header", rtf, "--legend", "{no format}", "--output",
                        file("a.svg"), writeEv2()})
                  .status,
              0);
    const std::string svg = fileBytes(file("a.svg"));
    EXPECT_THAT(svg, HasSubstr(">plain <"));
    EXPECT_THAT(svg, HasSubstr(">red<"));
    EXPECT_THAT(svg, HasSubstr("#ff0000"));
    EXPECT_THAT(svg, HasSubstr(">{no format}<"));
}

TEST_F(PictureCommand, writesNoCharacterThatAFileCannotHold)
{
    EXPECT_EQ(runBatch({"picture", "--reference-speed", "200=V\x02 D", "--header",
                        "{\\rtf1 a\\u-1?b}", "--output", file("a.svg"), writeEv2()})
                  .status,
              0);
    const std::string svg = fileBytes(file("a.svg"));
    EXPECT_EQ(svg.find('\x02'), std::string::npos);
    EXPECT_EQ(svg.find("\xEF\xBF\xBF"), std::string::npos) << "U+FFFF";
}

TEST_F(PictureCommand, doesNotWriteOverAnInput)
{
    const std::string path = writeEv2("wing.ev2.svg");
    const std::string before = fileBytes(path);
    const auto result = runBatch({"picture", "--output", path, path});
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.err, HasSubstr("is one of the files to read"));
    EXPECT_EQ(fileBytes(path), before);
}

TEST_F(PictureCommand, acceptsAnOptionsNameAsText)
{
    EXPECT_EQ(
        runBatch({"picture", "--header", "--help", "--output", file("a.svg"), writeEv2()}).status,
        0);
    EXPECT_THAT(fileBytes(file("a.svg")), HasSubstr(">--help<"));
}

TEST_F(PictureCommand, refusesWrongUsage)
{
    const std::string path = writeEv2();
    const std::vector<std::vector<std::string>> wrong = {
        {"--output", file("out.bmp")},
        {"--output", file("out.png"), "--size", "0x10"},
        {"--output", file("out.png"), "--size", "20001x10"},
        {"--output", file("out.png"), "--size", "640"},
        {"--output", file("out.png"), "--size", "-640x480"},
        {"--output", file("out.png"), "--size", "165mm"},
        {"--output", file("out.png"), "--size", "0x120mm"},
        {"--output", file("out.png"), "--size", "2000x120mm"},
        {"--output", file("out.png"), "--size", "165x120mm", "--resolution", "0"},
        {"--output", file("out.png"), "--resolution", "300"},
        {"--output", file("out.png"), "--least-line-width", "0"},
        {"--output", file("out.emf"), "--dashes", "dots"},
        {"--output", file("out.png"), "--scale", "0,1,2"},
        {"--output", file("out.png"), "--scale", "5,5,0,1,0,-1"},
        {"--output", file("out.png"), "--ticks", "1,2"},
        {"--output", file("out.png"), "--ticks", "0,2,3"},
        {"--output", file("out.png"), "--marker", "star"},
        {"--output", file("out.png"), "--marker", "mpf:6"},
        {"--output", file("out.png"), "--marker", "mpf:"},
        {"--output", file("out.png"), "--marker-size", "big"},
        {"--output", file("out.png"), "--reference-speed", "VD"},
        {"--output", file("out.png"), "--modes", "all"},
    };
    for (const auto& more : wrong) {
        std::vector<std::string> all = {"picture", path};
        all.insert(all.end(), more.begin(), more.end());
        EXPECT_EQ(runBatch(all).status, 2) << ::testing::PrintToString(more);
    }
    EXPECT_EQ(fileCount(), 1U);
}

TEST_F(PictureCommand, drawsInTheChosenPalette)
{
    const auto colored = [](const QImage& image) {
        std::size_t pixels = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                pixels += QColor(image.pixel(x, y)).saturation() > 60 ? 1U : 0U;
        }
        return pixels;
    };
    const QImage standard = imageOf(draw("standard.png", {"--palette", "standard", writeEv2()}));
    EXPECT_EQ(standard, imageOf(draw("usual.png", {writeEv2()})));
    EXPECT_NE(standard, imageOf(draw("blind.png", {"--palette", "colour-blind", writeEv2()})));
    const QImage black = imageOf(draw("black.png", {"--palette", "line-styles", writeEv2()}));
    EXPECT_GT(colored(standard), 100U);
    EXPECT_EQ(colored(black), 0U);
}

TEST_F(PictureCommand, refusesAnUnknownPalette)
{
    const auto result =
        runBatch({"picture", "--palette", "gold", "--output", file("out.png"), writeEv2()});
    EXPECT_EQ(result.status, 2);
    EXPECT_THAT(result.err,
                HasSubstr("--palette: \"gold\" is not standard, colour-blind or "
                          "line-styles"));
}
