// SPDX-License-Identifier: Apache-2.0
// The command "Write Report ...".

#include "app/WndMainFixture.h"

#include <gmock/gmock.h>

using namespace tarsil;
using test::fileBytes;
using test::sample;
using ::testing::HasSubstr;
using ::testing::Not;

namespace {

class ReportDocument : public test::WndMainTest
{
protected:
    std::string html() { return fileBytes(folder.file("out.html")); }
};

} // namespace

TEST_F(ReportDocument, isWrittenAboutTheOpenWorkspace)
{
    load({sample("goland.tsw")});
    user.messages.clear();
    user.texts = {"0", "400"};
    user.saveFiles = {folder.file("out.html")};
    choose("writeDocument");
    EXPECT_TRUE(user.messages.empty());
    EXPECT_THAT(html(), HasSubstr("<h1>goland</h1>"));
    EXPECT_THAT(html(), HasSubstr("Figure 2: Tip store"));
    EXPECT_THAT(html(), HasSubstr("largest damping up to 400 KEAS"));
    EXPECT_THAT(html(), HasSubstr("266.24 +- 0.01 KEAS"));
    EXPECT_THAT(html(), Not(HasSubstr("changes that are not in its file")));
    EXPECT_THAT(user.note, HasSubstr("out.html"));
}

TEST_F(ReportDocument, saysThatTheWorkspaceHasChanges)
{
    load({sample("goland.tsw")});
    plot().properties().setCaption(QStringLiteral("Another"));
    user.texts = {"0", "400"};
    user.saveFiles = {folder.file("out.html")};
    choose("writeDocument");
    EXPECT_THAT(html(), HasSubstr("changes that are not in its file"));
    EXPECT_THAT(html(), HasSubstr("Figure 1: Another"));
}

TEST_F(ReportDocument, asksForMachNumbersThatFilesDoNotHave)
{
    load({sample("goland_clean_m040.evm")});
    window.document().evolutions().setParameters(*window.document().evolutions().all().front(),
                                                 {"wing", "clean", 0});
    user.texts = {"0", "400", "0.4"};
    user.saveFiles = {folder.file("out.html")};
    choose("writeDocument");
    EXPECT_EQ(user.questions.size(), 3U);
    EXPECT_THAT(html(), HasSubstr("Workspace</th><td>not saved"));
}

TEST_F(ReportDocument, asksForAMachNumberOnlyOnce)
{
    load({sample("goland_clean_m040.evm")});
    window.document().evolutions().setParameters(*window.document().evolutions().all().front(),
                                                 {"wing", "clean", 0});
    user.texts = {"0", "400", "0.4"};
    choose("mnuFlutCalc");
    EXPECT_EQ(user.questions.size(), 3U);
    user.questions.clear();
    user.texts = {"0", "400"};
    user.saveFiles = {folder.file("out.html")};
    choose("writeDocument");
    EXPECT_EQ(user.questions.size(), 2U) << "the answer is known from the flutter table";
    EXPECT_THAT(html(), HasSubstr("<td class=\"number\">0.4</td>"));
    user.questions.clear();
    user.texts = {"0", "400", "0.4"};
    choose("mnuFlutCalc");
    EXPECT_EQ(user.questions.size(), 3U) << "the flutter table always asks";
    EXPECT_EQ(user.initials.back(), "0.4");
}

TEST_F(ReportDocument, isNotWrittenWithoutAnswers)
{
    load({sample("goland.tsw")});
    user.texts = {"0"};
    choose("writeDocument");
    EXPECT_TRUE(user.fileQuestions.empty());
    user.texts = {"0", "400"};
    choose("writeDocument");
    EXPECT_EQ(user.fileQuestions.size(), 1U);
    const std::string old = folder.write("out.pdf", "old");
    user.texts = {"0", "400"};
    user.saveFiles = {folder.file("out")};
    choose("writeDocument");
    EXPECT_EQ(fileBytes(old), "old") << "the user does not replace it";
}

TEST_F(ReportDocument, isAPdfWithoutAnotherExtension)
{
    load({sample("goland.tsw")});
    user.texts = {"0", "400"};
    user.saveFiles = {folder.file("wing m0.40")};
    choose("writeDocument");
    EXPECT_EQ(fileBytes(folder.file("wing m0.40.pdf")).substr(0, 5), "%PDF-");
}
