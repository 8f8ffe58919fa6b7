// SPDX-License-Identifier: Apache-2.0

// Metafiles: 100 curves of 1000 segments written to a file, compared with gnuplot's emf terminal on
// the same data; the memory used by small and large pictures.

#include "RatioTable.h"
#include "emf/EmfSink.h"
#include "emf/MetafileContext.h"

#include <QGuiApplication>
#include <QProcess>
#include <QStandardPaths>
#include <QStringList>
#include <QTemporaryDir>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>

namespace {

using namespace tarsil;
using benchmarks::printRow;

constexpr int curveCount = 100;
constexpr int segmentCount = 1000;
constexpr int styleCount = 5; // solid and four dashed ones
constexpr int turns = 15;

std::string pathIn(const QTemporaryDir& folder, const char* name)
{
    return folder.filePath(QString::fromLatin1(name)).toStdString();
}

QPoint pointOf(int curve, int index)
{
    const double height = 600 + 400 * std::sin(0.013 * index + curve) + 2 * curve;
    return {100 + index, static_cast<int>(height)};
}

void drawCurves(DeviceContext& context, int curves, int styles)
{
    for (int curve = 0; curve < curves; ++curve) {
        const Pen pen {curve % styles, 1, BaseColors[static_cast<std::size_t>(curve) % 7]};
        for (int i = 0; i < segmentCount; ++i)
            context.drawLine(pointOf(curve, i), pointOf(curve, i + 1), pen);
    }
}

/// Writes a picture of the curves as the program saves it, flushed to the disk.
void writePicture(const std::string& path, int curves, int styles)
{
    EmfFile file(path);
    MetafileContext context(file, QStringLiteral("a benchmark"));
    drawCurves(context, curves, styles);
    context.close();
    file.commit();
}

void writePictureInMemory(int styles)
{
    EmfMemory memory;
    MetafileContext context(memory, QStringLiteral("a benchmark"));
    drawCurves(context, curveCount, styles);
    context.close();
}

/// Writes the curves for gnuplot: pairs of singles, or lines of text with two empty lines after
/// each curve.
void writeData(const std::string& binaryPath, const std::string& textPath)
{
    std::ofstream binary(binaryPath, std::ios::binary);
    std::ofstream text(textPath, std::ios::binary);
    for (int curve = 0; curve < curveCount; ++curve) {
        for (int i = 0; i <= segmentCount; ++i) {
            const QPoint point = pointOf(curve, i);
            const float values[] = {static_cast<float>(point.x()), static_cast<float>(point.y())};
            binary.write(reinterpret_cast<const char*>(values), sizeof values);
            text << point.x() << ' ' << point.y() << '\n';
        }
        text << "\n\n";
    }
}

QString plotCommand(const std::string& output, const std::string& data, bool isBinary)
{
    constexpr int pointBytes = 2 * sizeof(float);
    const std::string points = std::to_string(segmentCount + 1);
    const std::string curveBytes = std::to_string((segmentCount + 1) * pointBytes);
    std::string command = "set terminal emf size 1280,960; set output '" + output
        + "'; unset key; plot for [i=0:" + std::to_string(curveCount - 1) + "] '" + data + "' ";
    if (isBinary)
        command += "binary record=" + points + " format='%float%float' skip=i*" + curveBytes + ' ';
    else
        command += "index i ";
    return QString::fromStdString(command + "using 1:2 with lines");
}

void runGnuplot(const QString& program, const QString& command)
{
    if (QProcess::execute(program, {QStringLiteral("-e"), command}) == 0)
        return;
    std::cerr << "gnuplot failed\n";
    std::exit(EXIT_FAILURE);
}

std::string megabytesOf(const std::string& path)
{
    char text[40];
    const auto bytes = static_cast<double>(std::filesystem::file_size(path));
    std::snprintf(text, sizeof text, "%.2f MB", bytes / 1e6);
    return text;
}

void measureAgainstGnuplot(const QTemporaryDir& folder, const QString& program)
{
    const std::string own = pathIn(folder, "own.emf");
    const std::string theirs = pathIn(folder, "gnuplot.emf");
    const std::string binary = pathIn(folder, "curves.bin");
    const std::string text = pathIn(folder, "curves.txt");
    writeData(binary, text);
    const std::string what = "metafile of 100 curves x 1000 segments, on the disk";
    const auto solid = [&] { writePicture(own, curveCount, 1); };
    const auto measure = [&](const QString& command, const std::string& against) {
        const auto reference = [&] { runGnuplot(program, command); };
        printRow(what, against, benchmarks::bestOfTurns(turns, solid, reference), "< 1");
    };
    measure(plotCommand(theirs, binary, true), "gnuplot and its start, binary data");
    printRow("its file", "", megabytesOf(theirs), "(for comparison)");
    measure(plotCommand(theirs, text, false), "gnuplot and its start, data as text");
    measure(QStringLiteral("exit"), "gnuplot's start alone");
}

void measurePictures(const QTemporaryDir& folder)
{
    const std::string path = pathIn(folder, "own.emf");
    for (const int styles : {1, styleCount}) {
        const std::string what =
            styles == 1 ? "metafile of solid curves" : "metafile of curves in five styles";
        const auto onDisk = [&] { writePicture(path, curveCount, styles); };
        const auto inMemory = [&] { writePictureInMemory(styles); };
        printRow(what + ", on the disk", "in memory",
                 benchmarks::bestOfTurns(turns, onDisk, inMemory), "at most 25 ms");
        printRow(what + ", size", "", megabytesOf(path), "(for comparison)");
    }
}

/// A value from /proc/self/status, in KiB.
double statusValue(const std::string& name)
{
    std::ifstream status("/proc/self/status");
    std::string word;
    double value = 0;
    while (status >> word) {
        if (word == name + ":")
            status >> value;
    }
    return value;
}

/// The peak growth of the resident memory while a picture is written.
void measureMemory(const QTemporaryDir& folder, int curves, const std::string& aim)
{
    std::ofstream("/proc/self/clear_refs") << "5"; // resets the peak
    const double before = statusValue("VmRSS");
    writePicture(pathIn(folder, "own.emf"), curves, styleCount);
    char text[40];
    std::snprintf(text, sizeof text, "%.0f KiB", statusValue("VmHWM") - before);
    printRow("growth of the resident memory, " + std::to_string(curves) + " curves x 1000 segments",
             "", text, aim);
}

} // namespace

int main(int argc, char** argv)
{
    const QGuiApplication application(argc, argv);
    const QTemporaryDir folder;
    measureMemory(folder, curveCount, "at most 4 MiB");
    measureMemory(folder, 10 * curveCount, "next to nothing more");
    measurePictures(folder);
    const QString program = QStandardPaths::findExecutable(QStringLiteral("gnuplot"));
    if (program.isEmpty())
        printRow("metafile of 100 curves x 1000 segments", "gnuplot", "not installed", "< 1");
    else
        measureAgainstGnuplot(folder, program);
    return EXIT_SUCCESS;
}
