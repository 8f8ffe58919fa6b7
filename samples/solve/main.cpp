// SPDX-License-Identifier: Apache-2.0

// This program solves the flutter of the Goland wing and writes the sample files into a folder.
#include "Cases.h"
#include "Crossing.h"
#include "Ev2Writer.h"
#include "EvmWriter.h"
#include "NumberText.h"
#include "SummaryWriter.h"

#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <stdexcept>
#include <vector>

namespace {

using namespace tarsil::goland;

std::string withWindowsLineEnds(const std::string& text)
{
    std::string result;
    for (const char letter : text) {
        result += letter == '\n' ? std::string("\r\n") : std::string(1, letter);
    }
    return result;
}

void writeFile(const std::filesystem::path& path, const std::string& text)
{
    std::ofstream file(path, std::ios::binary);
    file << text;
    file.close();
    if (!file) {
        throw std::runtime_error("cannot write " + path.string());
    }
}

void report(const FlutterCase& flutterCase, const FlutterCurves& curves)
{
    const Air air = airOf(flutterCase);
    std::cout << fileStem(flutterCase) << '\n';
    for (const Crossing& crossing : findCrossings(curves)) {
        const double speed = trueSpeed(crossing.knots, air);
        std::cout << "    mode " << crossing.mode
                  << (crossing.becomesUnstable ? " becomes unstable at " : " becomes stable at ")
                  << fixedText(crossing.knots, 0, 1) << " KEAS, " << fixedText(speed, 0, 2)
                  << " m/s TAS, Mach " << fixedText(speed / air.soundSpeed, 0, 3) << ", "
                  << fixedText(crossing.frequency, 0, 3) << " Hz\n";
    }
}

void writeCase(const FlutterCase& flutterCase, const FlutterCurves& curves,
               const std::filesystem::path& folder)
{
    const std::string stem = fileStem(flutterCase);
    const std::string text = ev2Text(flutterCase, curves);
    writeFile(folder / (stem + ".ev2"),
              flutterCase.windowsLineEnds ? withWindowsLineEnds(text) : text);
    if (flutterCase.oldFile) {
        writeFile(folder / (stem + ".evm"), withWindowsLineEnds(evmText(flutterCase, curves)));
    }
    report(flutterCase, curves);
}

void writeCases(const std::filesystem::path& folder)
{
    std::filesystem::create_directories(folder);
    std::vector<SolvedCase> printed;
    for (const FlutterCase& flutterCase : sampleCases()) {
        const FlutterCurves curves = solveCase(flutterCase);
        writeCase(flutterCase, curves, folder);
        if (flutterCase.configuration.store.mass == 0) {
            printed.push_back({flutterCase, curves});
        }
    }
    writeFile(folder / "goland_clean.f06", summaryText(printed));
}

} // namespace

int main(int argumentCount, char* arguments[])
{
    if (argumentCount != 2) {
        std::cerr << "usage: goland-solve OUTPUT_FOLDER\n";
        return 2;
    }
    try {
        writeCases(arguments[1]);
    } catch (const std::exception& error) {
        std::cerr << "goland-solve: " << error.what() << '\n';
        return 1;
    }
    return 0;
}
