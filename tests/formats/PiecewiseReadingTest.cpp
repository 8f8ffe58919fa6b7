// SPDX-License-Identifier: Apache-2.0

// A file is read in pieces; the result must not depend on where they end.

#include "base/files/FileLines.h"
#include "base/files/TextStream.h"
#include "formats/Ev2Format.h"
#include "formats/EvmFormat.h"
#include "formats/FormatFixtures.h"
#include "support/TestFiles.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <sstream>

using namespace tarsil;

namespace {

using Reader = void (*)(TextStream&, EVM&);

/// The values of an evolution, or its error, as a text.
std::string valuesOf(const std::function<void(EVM&)>& read)
{
    EVM evolution;
    std::ostringstream text;
    text << std::hexfloat;
    const auto error = test::errorOf([&] { read(evolution); });
    if (error)
        text << error->description();
    for (const auto& mode : evolution.Modes) {
        text << "\nmode " << mode->Id << ':';
        for (const Point& point : mode->Points) {
            text << '\n'
                 << point.kfreq << ' ' << point.re << ' ' << point.im << ' ' << point.speed << ' '
                 << point.G << ' ' << point.f;
            for (const float factor : point.mpf)
                text << ' ' << factor;
        }
    }
    return text.str();
}

void expectSameInPieces(const std::string& path, Reader reader)
{
    const std::string bytes = test::fileBytes(path);
    const std::string whole = valuesOf([&](EVM& evolution) {
        TextStream stream(bytes, "x");
        reader(stream, evolution);
    });
    for (const std::size_t piece : {1, 40, 81, 200, 1000}) {
        const std::string values = valuesOf([&](EVM& evolution) {
            FileLines file(path, piece);
            TextStream stream(file, "x");
            reader(stream, evolution);
        });
        EXPECT_EQ(values, whole) << path << " in pieces of " << piece;
    }
}

/// Modes whose numbers alternate from line to line, so that a part of each line is needed after it.
std::string manyModes()
{
    std::string text = test::evmHeader("2", "40");
    for (int i = 1; i <= 40; ++i) {
        std::string number = std::to_string(i);
        number.insert(0, 3 - number.size(), ' ');
        text += number + "  0.500   10.000 1.00000E-02    5.000" + number
            + "  0.500   20.000 2.00000E-02    6.000\n";
    }
    return text;
}

} // namespace

TEST(PiecewiseReading, givesTheSameEvolutions)
{
    const test::TemporaryFolder folder;
    expectSameInPieces(folder.write("many.evm", manyModes()), readEvm);
    expectSameInPieces(folder.write("blank.evm", manyModes() + "   \n\n" + std::string(5000, ' ')),
                       readEvm);
    expectSameInPieces(folder.write("short.evm", manyModes().substr(0, 1000) + "\n \n"), readEvm);
    std::string rows = test::ev2Header("No_of_speeds=2\n");
    for (const char* mode : {"1", "1", "12", "12", "123", "x"})
        rows += std::string(mode) + test::ev2Row(21).substr(1);
    expectSameInPieces(folder.write("rows.ev2", rows), readEv2);
    const auto samples = std::filesystem::path(test::sample("goland.tsw")).parent_path();
    for (const auto& entry : std::filesystem::directory_iterator(samples)) {
        if (entry.path().extension() == ".ev2")
            expectSameInPieces(entry.path().string(), readEv2);
    }
}

TEST(PiecewiseReading, ofAFileThatIsCutMeanwhileIsAnErrorLikeAnyOther)
{
    const test::TemporaryFolder folder;
    const std::string path = folder.write("many.evm", manyModes());
    FileLines file(path, 1000);
    TextStream stream(file, "x");
    std::filesystem::resize_file(path, 1200);
    EVM evolution;
    const auto error = test::errorOf([&] { readEvm(stream, evolution); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->number(), ErrorNumber::PathFileAccess);
}
