// The metafile of a plot as another program shows it: LibreOffice, where it is installed.

#include "analysis/ModeBuilder.h"
#include "support/Ink.h"
#include "support/TestFiles.h"
#include "vgf/EvmPlot.h"

#include <QProcess>
#include <QStandardPaths>

#include <gtest/gtest.h>

using namespace tarsil;
using test::addMode;

namespace {

/// The page that the program makes of a metafile.
QImage shownByOffice(const QString& office, const test::TemporaryFolder& folder,
                     const std::string& name)
{
    constexpr int patience = 120000; // milliseconds; the first start prepares a profile
    const QString path = QString::fromStdString(folder.path().string());
    QProcess process;
    process.start(
        office,
        {QStringLiteral("-env:UserInstallation=file://") + path + QStringLiteral("/profile"),
         QStringLiteral("--headless"), QStringLiteral("--convert-to"), QStringLiteral("png"),
         QStringLiteral("--outdir"), path, QString::fromStdString(folder.file(name + ".emf"))});
    EXPECT_TRUE(process.waitForFinished(patience)) << process.errorString().toStdString();
    return QImage(QString::fromStdString(folder.file(name + ".png")))
        .convertToFormat(QImage::Format_RGB32);
}

} // namespace

TEST(EmfElsewhere, looksLikeTheScreen)
{
    const QString office = QStandardPaths::findExecutable(QStringLiteral("soffice"));
    if (office.isEmpty())
        GTEST_SKIP() << "LibreOffice is not installed";
    EVM evolution;
    EvmPlot plot;
    plot.resize({800, 600});
    // A curve from corner to corner shows where the canvas' clip is, and its ends where the axes
    // are.
    plot.addSeries(addMode(evolution, 1, {{0, -0.02F, 10}, {350, -0.1F, 20}, {700, 0.05F, 80}}))
        .ColorIndex = rgb(0, 0, 255);
    plot.addSeries(addMode(evolution, 2, {{0, -0.2F, 45}, {700, -0.1F, 30}})).ColorIndex =
        rgb(255, 0, 0);
    plot.Header().setTextRTF("{\\rtf1{\\fonttbl{\\f0 Arial;}}{\\colortbl ;\\red0\\green128\\blue0;}"
                             "\\f0\\fs36 The header of this plot \\cf1\\b in green\\par}");
    plot.setBoxText(1, QStringLiteral("legend\nsecond"));
    plot.AddRef(352.1F, QStringLiteral("Vd"));
    plot.AddDampLine(-0.1F, QStringLiteral("g = 10 %"));

    const test::TemporaryFolder folder;
    plot.ExportPic(QString::fromStdString(folder.file("plot.emf")));
    const QImage page = shownByOffice(office, folder, "plot");
    ASSERT_FALSE(page.isNull());

    // The page is larger than the picture and shows it at a scale of its own: the inks are laid
    // over each other.
    const QImage screen = plot.Image();
    const QRect onScreen = test::inkBounds(screen);
    const QRect onPage = test::inkBounds(page);
    const double scale = double(onPage.width()) / onScreen.width();
    EXPECT_NEAR(double(onPage.height()) / onScreen.height(), scale, 0.01 * scale);
    const QImage fitted = screen.copy(onScreen).scaled(onPage.size(), Qt::IgnoreAspectRatio,
                                                       Qt::SmoothTransformation);
    // Two pixels for rounding and for letters drawn by other means.
    test::expectSameInk(page.copy(onPage), fitted, 2, 0.99);
}
