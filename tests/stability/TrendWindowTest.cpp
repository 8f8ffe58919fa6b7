// SPDX-License-Identifier: Apache-2.0
#include "stability/TrendWindow.h"

#include "aircraft/AirplaneInfo.h"
#include "analysis/ModeBuilder.h"
#include "document/Document.h"
#include "stability/TrendView.h"
#include "support/ScriptedUserInterface.h"
#include "support/TestFiles.h"

#include <QClipboard>
#include <QComboBox>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QTableView>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace tarsil;
using test::addMode;
using ::testing::StartsWith;

namespace {

/// The visible window over a document with two evolutions, whose modes start at 250 KEAS at Mach
/// 0.4 and at 275 KEAS at Mach 0.5.
class TrendWindowTest : public ::testing::Test
{
protected:
    TrendWindowTest() : window(document, user)
    {
        OwnedEvolutions all;
        for (const float end : {300.0F, 350.0F}) {
            EVM& evolution = *all.emplace_back(std::make_shared<EVM>());
            evolution.FileName = "wing" + std::to_string(all.size()) + ".ev2";
            evolution.Param.Mach = 0.3F + 0.1F * static_cast<float>(all.size());
            addMode(evolution, 1, {{200, -0.1F, 10}, {end, 0.1F, 12}});
        }
        document.evolutions().add(std::move(all));
        window.show();
    }

    void showAll()
    {
        std::vector<const EVM*> evolutions;
        for (const auto& one : document.evolutions().all())
            evolutions.push_back(one.get());
        window.showEvolutions(evolutions);
    }

    template <typename Widget>
    Widget& part(const char* name)
    {
        return *window.findChild<Widget*>(QString::fromLatin1(name));
    }

    std::string cell(int row, int column)
    {
        const auto& model = *part<QTableView>("trendGrid").model();
        return model.index(row, column).data().toString().toStdString();
    }

    QImage picture() { return part<TrendView>("trendView").grab().toImage(); }

    test::TemporaryFolder folder;
    test::ScriptedUserInterface user;
    Document document;
    TrendWindow window;
};

} // namespace

TEST_F(TrendWindowTest, showsThePointsAsPictureAndTable)
{
    const QImage before = picture();
    showAll();
    EXPECT_NE(picture(), before);
    EXPECT_EQ(cell(0, 0), "wing1.ev2");
    EXPECT_EQ(cell(0, 6), "250");
    EXPECT_EQ(cell(1, 6), "275");
    EXPECT_EQ(cell(2, 4), "0.03");
}

TEST_F(TrendWindowTest, asksForTicksWhenThereAreNone)
{
    EXPECT_THAT(part<QLabel>("hintLabel").text().toStdString(),
                StartsWith("Tick modal evolutions"));
    showAll();
    EXPECT_THAT(part<QLabel>("hintLabel").text().toStdString(),
                StartsWith("Ticked modal evolutions: 2"));
}

TEST_F(TrendWindowTest, followsTheSettings)
{
    showAll();
    const QImage before = picture();
    part<QComboBox>("againstCmb").setCurrentIndex(3);
    EXPECT_NE(picture(), before);
    part<QLineEdit>("levelsInp").setText(QStringLiteral("0.05"));
    EXPECT_EQ(cell(0, 4), "0.05");
}

TEST_F(TrendWindowTest, keepsTheLastLevelsWhileWordsAreTyped)
{
    showAll();
    QLineEdit& levels = part<QLineEdit>("levelsInp");
    const QString usual = levels.toolTip();
    levels.setText(QStringLiteral("0, high"));
    EXPECT_NE(levels.toolTip(), usual);
    EXPECT_EQ(cell(0, 6), "250");
    QLineEdit& factor = part<QLineEdit>("factorInp");
    const QString usualFactor = factor.toolTip();
    factor.setText(QStringLiteral("0"));
    EXPECT_NE(factor.toolTip(), usualFactor);
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(TrendWindowTest, followsAirplaneParametersAndRemoval)
{
    showAll();
    AirplaneInfo airplane;
    airplane.FlutterEnvs.push_back({250, 200, 180, "0.40"});
    document.setAirplane(airplane);
    EXPECT_EQ(cell(0, 13), "230");
    document.evolutions().setParameters(*document.evolutions().all()[0], {"", "FULL", 0.5F});
    EXPECT_EQ(cell(0, 1), "FULL");
    EXPECT_EQ(cell(0, 13), "");
    document.remove({document.evolutions().all()[0].get()});
    EXPECT_EQ(cell(0, 0), "wing2.ev2");
}

TEST_F(TrendWindowTest, writesPictureAndTable)
{
    showAll();
    user.saveFiles = {folder.file("trend.svg"), folder.file("trend.csv"), folder.file("trend.doc")};
    part<QPushButton>("pictureBtn").click();
    EXPECT_THAT(test::fileBytes(folder.file("trend.svg")), StartsWith("<?xml"));
    part<QPushButton>("tableBtn").click();
    EXPECT_THAT(test::fileBytes(folder.file("trend.csv")), StartsWith("File,"));
    EXPECT_TRUE(user.messages.empty());
    part<QPushButton>("pictureBtn").click();
    EXPECT_EQ(user.messages.size(), 1U) << "no picture has this extension";
    part<QPushButton>("tableBtn").click();
    EXPECT_EQ(user.messages.size(), 1U) << "the user cancelled";
}

TEST_F(TrendWindowTest, copiesThePicture)
{
    showAll();
    part<QPushButton>("copyBtn").click();
    EXPECT_TRUE(
        QGuiApplication::clipboard()->mimeData()->hasFormat(QStringLiteral("image/svg+xml")));
}
