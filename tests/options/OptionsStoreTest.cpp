// SPDX-License-Identifier: Apache-2.0
#include "options/OptionsStore.h"

#include "base/user/RunTimeError.h"
#include "support/Errors.h"
#include "support/TestFiles.h"

#include <gtest/gtest.h>

#include <QByteArray>

#include <sys/resource.h>
#include <sys/stat.h>

#include <cerrno>
#include <csignal>
#include <filesystem>
#include <system_error>
#include <vector>

using namespace tarsil;
using test::errorNumberOf;
using test::errorOf;

namespace {

class OptionsStoreTest : public ::testing::Test
{
protected:
    /// A store with a file of this text.
    OptionsStore storeOf(std::string_view text) const
    {
        return OptionsStore(folder.write("tarsil.ini", text));
    }

    test::TemporaryFolder folder;
};

OptionTexts texts(const char* file, const char* scale, const char* thicks)
{
    return {QString::fromUtf8(file), QString::fromUtf8(scale), QString::fromUtf8(thicks), {}, {}};
}

} // namespace

TEST_F(OptionsStoreTest, saysNothingWithoutAFileAndMakesNone)
{
    const OptionsStore store(folder.file("none.ini"));
    EXPECT_EQ(store.read(), OptionTexts());
    EXPECT_FALSE(std::filesystem::exists(folder.file("none.ini")));
}

TEST_F(OptionsStoreTest, saysNothingForKeysThatAreNotThere)
{
    EXPECT_EQ(storeOf("").read(), OptionTexts());
    EXPECT_EQ(storeOf("vgfScale=1\n\n[Other]\nvgfThicks=2\n[Options]\nvgfThicks=7|5|5\n").read(),
              texts("", "", "7|5|5"));
}

TEST_F(OptionsStoreTest, writesPlainTextInItsSection)
{
    const OptionsStore store(folder.file("tarsil.ini"));
    store.write(texts("/home/me/wing.inp", "0|700|0|-0.25|0|50", "7|5|5"), {});
    EXPECT_EQ(test::fileBytes(store.path()),
              "[Options]\n"
              "AcInfoDataFile=/home/me/wing.inp\n"
              "vgfScale=0|700|0|-0.25|0|50\n"
              "vgfThicks=7|5|5\n");
}

TEST_F(OptionsStoreTest, readsBackWhateverWasTyped)
{
    const OptionsStore store(folder.file("tarsil.ini"));
    for (const OptionTexts& one :
         {texts("/a b, c/Flügel; x=1 \"q\".inp", " 1|2 ", "@Invalid()"),
          texts("C:\\temp\\new\\wing.inp", "%|[Options]|#", "\t"), OptionTexts()}) {
        store.write(one, store.read());
        EXPECT_EQ(OptionsStore(store.path()).read(), one) << one.acInfoDataFile.toStdString();
    }
}

TEST_F(OptionsStoreTest, readsWhatAPersonWroteWithCommasAndBlanks)
{
    EXPECT_EQ(
        storeOf("; mine\n[Options]\n\nvgfScale = 0,5|700\nAcInfoDataFile= wing.inp \n").read(),
        texts("wing.inp", "0,5|700", ""));
}

TEST_F(OptionsStoreTest, makesTheFolderOfItsFile)
{
    const OptionsStore store(folder.file("config/tarsil/tarsil.ini"));
    store.write(texts("wing.inp", "", ""), {});
    EXPECT_EQ(store.read(), texts("wing.inp", "", ""));
}

TEST_F(OptionsStoreTest, leavesNothingBesideItsFile)
{
    const OptionsStore store(folder.file("tarsil.ini"));
    store.write(texts("wing.inp", "", ""), {});
    store.write(texts("other.inp", "", ""), texts("wing.inp", "", ""));
    const std::filesystem::directory_iterator files(folder.path());
    EXPECT_EQ(std::distance(begin(files), end(files)), 1);
}

TEST_F(OptionsStoreTest, writesThroughASymbolicLink)
{
    folder.write("real.ini", "");
    std::filesystem::create_symlink(folder.file("real.ini"), folder.file("tarsil.ini"));
    OptionsStore(folder.file("tarsil.ini")).write(texts("wing.inp", "", ""), {});
    EXPECT_TRUE(std::filesystem::is_symlink(folder.file("tarsil.ini")));
    EXPECT_EQ(OptionsStore(folder.file("real.ini")).read(), texts("wing.inp", "", ""));
}

TEST_F(OptionsStoreTest, reportsThatAFileIsDamagedAndUsesNothingOfIt)
{
    const std::string zeros(100, '\0');
    for (const std::string& text :
         {std::string("[Options\nvgfScale=1|2\n"), std::string("[Options]\nvgfScale\n"), zeros,
          std::string("[Options]\nvgfScale=@Rect(1 2 3 4)\n")}) {
        const OptionsStore store = storeOf(text);
        const auto error = errorOf([&store] { static_cast<void>(store.read()); });
        ASSERT_TRUE(error) << text;
        EXPECT_EQ(error->number(), ErrorNumber::TypeMismatch) << text;
        EXPECT_EQ(error->description(),
                  "Type mismatch: damaged settings in " + store.path()
                      + ", which will be kept as tarsil.ini.damaged when options are changed");
        EXPECT_EQ(error->source(), "OptionsStore");
    }
}

TEST_F(OptionsStoreTest, replacesADamagedFileByAWholeOne)
{
    const OptionsStore store = storeOf("[Options\nvgfScale\n");
    store.write(texts("wing.inp", "", "7|5|5"), {});
    EXPECT_EQ(OptionsStore(store.path()).read(), texts("wing.inp", "", "7|5|5"));
}

TEST_F(OptionsStoreTest, keepsADamagedFileBesideTheNewOne)
{
    const std::string kept = folder.write("tarsil.ini.damaged", "an older one");
    for (const char* const damaged : {"[Options]\nvgfScale=0|100|0|-1|0|10\nvgfThicks\n",
                                      "[Options]\nvgfScale=@Rect(1 2 3 4)\n"}) {
        const OptionsStore store = storeOf(damaged);
        EXPECT_EQ(errorNumberOf([&store] { static_cast<void>(store.read()); }),
                  ErrorNumber::TypeMismatch); // as when the program starts
        store.write(texts("wing.inp", "", ""), {});
        EXPECT_EQ(test::fileBytes(kept), damaged);
        EXPECT_EQ(store.read(), texts("wing.inp", "", ""));
        store.write(texts("other.inp", "", ""), texts("wing.inp", "", ""));
        EXPECT_EQ(test::fileBytes(kept), damaged) << "the file after it is whole";
    }
}

TEST_F(OptionsStoreTest, changesNothingWhenTheDamagedFileCannotBeKept)
{
    const OptionsStore store = storeOf("[Options\nvgfScale\n");
    std::filesystem::create_directory(folder.file("tarsil.ini.damaged"));
    EXPECT_EQ(errorNumberOf([&store] { store.write(texts("wing.inp", "", ""), {}); }),
              ErrorNumber::PathFileAccess);
    EXPECT_EQ(test::fileBytes(store.path()), "[Options\nvgfScale\n");
    const std::filesystem::directory_iterator files(folder.path());
    EXPECT_EQ(std::distance(begin(files), end(files)), 2);
}

TEST_F(OptionsStoreTest, canNeitherReadNorWriteAFolder)
{
    const OptionsStore store(folder.file("tarsil.ini"));
    std::filesystem::create_directory(store.path());
    EXPECT_EQ(errorNumberOf([&store] { static_cast<void>(store.read()); }),
              ErrorNumber::PathFileAccess);
    EXPECT_EQ(errorNumberOf([&store] { store.write(texts("wing.inp", "", ""), {}); }),
              ErrorNumber::PathFileAccess);
    EXPECT_TRUE(std::filesystem::is_empty(store.path()));
    const std::filesystem::directory_iterator files(folder.path());
    EXPECT_EQ(std::distance(begin(files), end(files)), 1);
}

TEST_F(OptionsStoreTest, cannotWriteBelowAFile)
{
    folder.write("file", "kept");
    const OptionsStore store(folder.file("file/tarsil.ini"));
    EXPECT_EQ(errorNumberOf([&store] { store.write(texts("wing.inp", "", ""), {}); }),
              ErrorNumber::PathNotFound);
    EXPECT_EQ(test::fileBytes(folder.file("file")), "kept");
}

TEST_F(OptionsStoreTest, keepsAFileThatNobodyMayWrite)
{
    const OptionsStore store = storeOf("[Options]\nvgfThicks=7|5|5\n");
    std::filesystem::permissions(store.path(), std::filesystem::perms::owner_read);
    EXPECT_EQ(errorNumberOf([&store] { store.write(texts("wing.inp", "", ""), {}); }),
              ErrorNumber::PermissionDenied);
    EXPECT_EQ(OptionsStore(store.path()).read(), texts("", "", "7|5|5"));
}

TEST_F(OptionsStoreTest, writesNothingWhenNothingChanged)
{
    const OptionsStore store(folder.file("tarsil.ini"));
    store.write(OptionTexts(), OptionTexts());
    EXPECT_FALSE(std::filesystem::exists(store.path()));
    const OptionsStore damaged = storeOf("[Options\n");
    damaged.write(texts("wing.inp", "", ""), texts("wing.inp", "", ""));
    EXPECT_EQ(test::fileBytes(store.path()), "[Options\n");
}

TEST_F(OptionsStoreTest, leavesWhatAnotherProgramHasWrittenMeanwhile)
{
    const OptionsStore store = storeOf("[Options]\nvgfScale=0|1|0|-1|0|10\nvgfThicks=7|5|5\n");
    const OptionTexts read = store.read();
    storeOf("; of another hand\n[Options]\nvgfScale=0|2|0|-1|0|10\nvgfThicks=7|5|5\nnewer=1\n");
    store.write(texts("", "0|1|0|-1|0|10", "4|3|2"), read);
    EXPECT_EQ(test::fileBytes(store.path()),
              "; of another hand\n[Options]\nvgfScale=0|2|0|-1|0|10\nvgfThicks=4|3|2\nnewer=1\n"
              "AcInfoDataFile=\n");
}

TEST_F(OptionsStoreTest, refusesAtOnceWhatIsNoPlainFile)
{
    const OptionsStore store(folder.file("tarsil.ini"));
    ASSERT_EQ(::mkfifo(store.path().c_str(), 0600), 0); // opening it would block
    const auto error = errorOf([&store] { static_cast<void>(store.read()); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->description(),
              "Path/File access error: cannot read the settings in " + store.path());
    EXPECT_EQ(errorNumberOf([&store] { store.write(texts("wing.inp", "", ""), {}); }),
              ErrorNumber::PathFileAccess);
    EXPECT_EQ(errorNumberOf([] { static_cast<void>(OptionsStore("/dev/null").read()); }),
              ErrorNumber::PathFileAccess);
}

TEST_F(OptionsStoreTest, keepsTheOldFileOnAFullDisk)
{
    const std::string old = "[Options]\nvgfThicks=7|5|5\n" + std::string(5000, '\n');
    const OptionsStore store = storeOf(old);
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit before {};
    getrlimit(RLIMIT_FSIZE, &before);
    const rlimit limit {4096, before.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limit);
    const auto error = errorOf([&store] { store.write(texts("", "", "4|3|2"), {}); });
    setrlimit(RLIMIT_FSIZE, &before);
    ASSERT_TRUE(error);
    EXPECT_EQ(error->description(),
              "Path/File access error: " + store.path() + " ("
                  + std::generic_category().message(EFBIG) + ")");
    EXPECT_EQ(test::fileBytes(store.path()), old);
}

TEST_F(OptionsStoreTest, liesWhereTheDesktopKeepsTheSettingsOfAUser)
{
    const QByteArray before = qgetenv("XDG_CONFIG_HOME");
    qputenv("XDG_CONFIG_HOME", QByteArray::fromStdString(folder.path().string()));
    EXPECT_EQ(OptionsStore::defaultPath(), folder.file("tarsil/tarsil.ini"));
    if (before.isNull())
        qunsetenv("XDG_CONFIG_HOME");
    else
        qputenv("XDG_CONFIG_HOME", before);
}

TEST_F(OptionsStoreTest, keepsTheUnitsOfImportsForTheirFolder)
{
    const OptionsStore store = storeOf("[Options]\nvgfThicks=7|5|5\n");
    const QString runs = QStringLiteral("/runs/a=b; c");
    const QString others = QStringLiteral("/others");
    EXPECT_EQ(store.value(remembered::importUnits, runs), std::nullopt);
    store.remember(remembered::importUnits, {{runs, QStringLiteral("ft/s|1|ratio|")}});
    store.remember(remembered::importUnits, {{others, QStringLiteral("m/s|1|kg/m3|")}});
    store.remember(remembered::importUnits, {{runs, QStringLiteral("kt|1|ratio|equivalent")}});
    EXPECT_EQ(store.value(remembered::importUnits, runs), QStringLiteral("kt|1|ratio|equivalent"));
    EXPECT_EQ(store.value(remembered::importUnits, others), QStringLiteral("m/s|1|kg/m3|"));
    EXPECT_EQ(store.read(), texts("", "", "7|5|5"));
}

TEST_F(OptionsStoreTest, forgetsTheFolderThatWasImportedFromLongestAgo)
{
    const OptionsStore store(folder.file("tarsil.ini"));
    const auto nameOf = [](std::size_t i) { return QStringLiteral("/runs/%1").arg(i); };
    for (std::size_t i = 0; i <= remembered::importUnits.most; ++i)
        store.remember(remembered::importUnits, {{nameOf(i), QStringLiteral("m/s|1|ratio|")}});
    EXPECT_EQ(store.value(remembered::importUnits, nameOf(0)), std::nullopt);
    EXPECT_TRUE(store.value(remembered::importUnits, nameOf(1)));
    EXPECT_TRUE(store.value(remembered::importUnits, nameOf(remembered::importUnits.most)));
}

TEST_F(OptionsStoreTest, keepsADamagedFileBesideUnitsOfImports)
{
    const OptionsStore store = storeOf("no line of settings\n");
    EXPECT_EQ(
        errorNumberOf([&] { (void)store.value(remembered::importUnits, QStringLiteral("/runs")); }),
        ErrorNumber::TypeMismatch);
    store.remember(remembered::importUnits,
                   {{QStringLiteral("/runs"), QStringLiteral("m/s|1|ratio|")}});
    EXPECT_TRUE(store.value(remembered::importUnits, QStringLiteral("/runs")));
    EXPECT_EQ(test::fileBytes(store.path() + ".damaged"), "no line of settings\n");
}

TEST_F(OptionsStoreTest, remembersTheLastFilesNewestFirst)
{
    const OptionsStore store = storeOf("[Options]\nvgfThicks=7|5|5\n");
    const QString wing = QStringLiteral("/runs/wing.tsw");
    const QString tail = QStringLiteral("/runs/tail.tsw");
    store.rememberQuietly(remembered::workspaces, {{wing, QStringLiteral("1")}});
    store.rememberQuietly(remembered::workspaces, {{tail, QStringLiteral("2")}});
    store.rememberQuietly(remembered::workspaces, {{wing, QStringLiteral("3")}});
    EXPECT_EQ(
        store.pairsIfReadable(remembered::workspaces),
        (std::vector<RememberedPair> {{wing, QStringLiteral("3")}, {tail, QStringLiteral("2")}}));
    EXPECT_EQ(store.read(), texts("", "", "7|5|5"));
}

TEST_F(OptionsStoreTest, leavesADamagedFileAloneForWhatNobodyAskedFor)
{
    const OptionsStore store = storeOf("no line of settings\n");
    store.rememberQuietly(remembered::windows, {{QStringLiteral("wndMain"), QStringLiteral("1")}});
    EXPECT_TRUE(store.pairsIfReadable(remembered::windows).empty());
    EXPECT_EQ(test::fileBytes(store.path()), "no line of settings\n");
}

TEST_F(OptionsStoreTest, writesNothingWhenAListStaysTheSame)
{
    const OptionsStore store(folder.file("tarsil.ini"));
    const std::vector<RememberedPair> window {{QStringLiteral("wndMain"), QStringLiteral("1")}};
    store.rememberQuietly(remembered::windows, window);
    std::filesystem::permissions(
        folder.path(), std::filesystem::perms::owner_read | std::filesystem::perms::owner_exec);
    const auto written = std::filesystem::last_write_time(store.path());
    store.rememberQuietly(remembered::windows, window);
    EXPECT_EQ(std::filesystem::last_write_time(store.path()), written);
    std::filesystem::permissions(folder.path(), std::filesystem::perms::owner_all);
}

TEST_F(OptionsStoreTest, writesTheLookOfCurvesOnlyOnceTheUserHasChosenOne)
{
    const OptionsStore store(folder.file("tarsil.ini"));
    OptionTexts chosen = texts("", "", "7|5|5");
    store.write(chosen, {});
    const std::string usual = "[Options]\nAcInfoDataFile=\nvgfScale=\nvgfThicks=7|5|5\n";
    ASSERT_EQ(test::fileBytes(store.path()), usual) << "as before there was a choice";
    chosen.curveColours = QStringLiteral("colour-blind");
    chosen.curveLineStyles = QStringLiteral("on");
    store.write(chosen, store.read());
    EXPECT_EQ(test::fileBytes(store.path()),
              usual + "curveColours=colour-blind\ncurveLineStyles=on\n");
    EXPECT_EQ(store.read(), chosen);
}
