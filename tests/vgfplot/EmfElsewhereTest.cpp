// SPDX-License-Identifier: Apache-2.0

// The metafile of a plot in other programs, if they are installed.

#include "analysis/ModeBuilder.h"
#include "support/ChangeSeries.h"
#include "support/Ink.h"
#include "support/TestFiles.h"
#include "vgfplot/EvmPlot.h"

#include <QPainter>
#include <QProcess>
#include <QStandardPaths>

#include <gtest/gtest.h>

#include <utility>
#include <vector>

using namespace tarsil;
using test::addMode;

namespace {

class EmfElsewhere : public ::testing::Test
{
protected:
    EmfElsewhere()
    {
        plot.resize({800, 600});
        // A curve from corner to corner shows the clip of the canvas, and its ends show the
        // positions of the axes.
        plot.rows().add(
            addMode(evolution, 1, {{0, -0.02F, 10}, {350, -0.1F, 20}, {700, 0.05F, 80}}));
        plot.rows().add(addMode(evolution, 2, {{0, -0.2F, 45}, {700, -0.1F, 30}}));
        test::changeSeries(plot, 0, [](Series& solid) { solid.ColorIndex = rgb(0, 0, 255); });
        test::changeSeries(plot, 1, [](Series& dashed) {
            dashed.ColorIndex = rgb(255, 0, 0);
            dashed.LineStyle = penstyle::dash;
        });
        plot.texts().setTextRTF(TextBox::Header,
                                "{\\rtf1{\\fonttbl{\\f0 Arial;}}{\\colortbl ;\\red0\\green128"
                                "\\blue0;}\\f0\\fs36 The header of this plot \\cf1\\b in green"
                                "\\par\\plain\\fs20 second line\\par}");
        plot.texts().setText(TextBox::Legend, QStringLiteral("legend\nsecond"));
        plot.texts().setText(TextBox::Mechanism, QStringLiteral("below the header"));
        plot.references().AddRef(352.1F, QStringLiteral("Vd"));
        plot.references().AddDampLine(-0.1F, QStringLiteral("g = 10 %"));
        plot.ExportPic(path("plot.emf"));
    }

    QString path(std::string_view name) const { return QString::fromStdString(folder.file(name)); }

    /// Lets a program convert the metafile to "plot.png".
    QImage convert(const QString& program, const QStringList& arguments)
    {
        constexpr int patience = 120000; // milliseconds; the first start creates a profile
        QProcess process;
        process.start(program, arguments);
        EXPECT_TRUE(process.waitForFinished(patience)) << process.errorString().toStdString();
        return QImage(path("plot.png")).convertToFormat(QImage::Format_RGB32);
    }

    /// A tolerance of three pixels for rounding, other text rendering, and scaling.
    void expectTheScreen(const QImage& shown)
    {
        constexpr int tolerance = 3;
        const QImage screen = plot.Image();
        test::expectSameInk(shown, screen, tolerance, 0.98);
        // Compares each text separately, so that none can be missing.
        const QRect canvas = plot.parts().vgPlot.geometry();
        const int axis = plot.parts().velAxis.geometry().center().y();
        const std::vector<std::pair<const char*, QRect>> parts = {
            {"header", plot.Header().geometry()},
            {"legend", plot.Legend().geometry()},
            {"subtitle", plot.Mechanism().geometry()},
            {"speed title", plot.parts().velAxisLabel.geometry()},
            {"damping title", plot.parts().gAxisLabel.geometry()},
            {"frequency title", plot.parts().freqAxislabel.geometry()},
            {"reference speed", {canvas.left() + 250, axis - 25, 120, 20}},
            {"damping line", {canvas.right() - 60, canvas.top(), 60, canvas.height()}}};
        for (const auto& [name, area] : parts)
            EXPECT_GE(test::inkShare(screen, area, shown, tolerance), 0.9) << name;
    }

    /// The picture in Inkscape; null if it is not installed.
    QImage inInkscape()
    {
        const QString inkscape = QStandardPaths::findExecutable(QStringLiteral("inkscape"));
        if (inkscape.isEmpty())
            return {};
        return convert(inkscape,
                       {path("plot.emf"), QStringLiteral("--export-type=png"),
                        QStringLiteral("--export-filename=") + path("plot.png"),
                        QStringLiteral("--export-dpi=96")});
    }

    test::TemporaryFolder folder;
    EVM evolution;
    EvmPlot plot;
};

/// The picture on a white background of this size.
QImage laidOnWhite(const QImage& picture, QPoint corner, QSize size)
{
    QImage ground(size, QImage::Format_RGB32);
    ground.fill(Qt::white);
    QPainter(&ground).drawImage(corner, picture);
    return ground;
}

} // namespace

TEST_F(EmfElsewhere, looksLikeTheScreenInLibreOffice)
{
    const QString office = QStandardPaths::findExecutable(QStringLiteral("soffice"));
    if (office.isEmpty())
        GTEST_SKIP() << "LibreOffice is not installed";
    const QImage page = convert(office,
                                {QStringLiteral("-env:UserInstallation=file://") + path("profile"),
                                 QStringLiteral("--headless"), QStringLiteral("--convert-to"),
                                 QStringLiteral("png"), QStringLiteral("--outdir"),
                                 QString::fromStdString(folder.path().string()), path("plot.emf")});
    ASSERT_FALSE(page.isNull());
    // The page is larger than the picture and has another scale: the inks are superimposed.
    const QRect onScreen = test::inkBounds(plot.Image());
    const QRect onPage = test::inkBounds(page);
    const double scale = static_cast<double>(onPage.width()) / onScreen.width();
    EXPECT_NEAR(static_cast<double>(onPage.height()) / onScreen.height(), scale, 0.01 * scale);
    const QImage ink =
        page.copy(onPage).scaled(onScreen.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    expectTheScreen(laidOnWhite(ink, onScreen.topLeft(), plot.size()));
}

TEST_F(EmfElsewhere, looksLikeTheScreenInInkscapeAndIsAsLarge)
{
    const QImage picture = inInkscape();
    if (picture.isNull())
        GTEST_SKIP() << "Inkscape is not installed";
    // 96 pixels are an inch; the frame ends in the middle of the last pixel.
    EXPECT_NEAR(picture.width(), 800, 1);
    EXPECT_NEAR(picture.height(), 600, 1);
    expectTheScreen(laidOnWhite(picture, {0, 0}, plot.size()));
}

TEST_F(EmfElsewhere, hasGapsInInkscapeIfDashesAreLines)
{
    PictureSettings settings;
    settings.dashes = MetafileDashes::Lines;
    plot.ExportPic(path("plot.emf"), settings);
    const QImage picture = inInkscape();
    if (picture.isNull())
        GTEST_SKIP() << "Inkscape is not installed";
    const auto isRed = [](QColor color) {
        return color.red() > color.green() + 60 && color.red() > color.blue() + 60;
    };
    const QRect canvas = plot.parts().vgPlot.geometry();
    int inked = 0;
    for (int x = canvas.left(); x < canvas.right(); ++x) {
        bool isInked = false;
        for (int y = canvas.top(); y < canvas.bottom(); ++y)
            isInked = isInked || isRed(picture.pixelColor(x, y));
        inked += isInked ? 1 : 0;
    }
    // Dashes of 18 pixels, with round ends, and gaps of 6.
    EXPECT_NEAR(double(inked) / canvas.width(), 19.0 / 24, 0.06);
}
