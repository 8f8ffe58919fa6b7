// SPDX-License-Identifier: Apache-2.0
#include "GeneratedFiles.h"

#include <array>
#include <cmath>
#include <cstdio>
#include <fstream>

namespace tarsil::benchmarks {

namespace {

struct Values
{
    int mode;
    int point;
    double reduced;
    double speed;
    double damping;
    double frequency;
};

Values valuesAt(int mode, int point)
{
    const double speed = 20.0 + 0.17 * point + 0.0001 * mode;
    const double frequency = 1.0 + 0.9 * (mode % 70) + 0.4 * std::sin(0.003 * point + mode);
    const double damping = -0.05 + 0.08 * std::sin(0.002 * point + 1.3 * mode);
    return {mode, point, 0.2 + 0.0001 * (point % 5000), speed, damping, frequency};
}

/// Appends a text formatted by printf, of any length.
template <typename... Arguments>
void append(std::string& text, const char* format, Arguments... arguments)
{
    std::array<char, 200> buffer {};
    const int length = std::snprintf(buffer.data(), buffer.size(), format, arguments...);
    text.append(buffer.data(), static_cast<std::size_t>(length));
}

std::string header(Layout layout, int modes, int speeds)
{
    std::string text;
    if (layout == Layout::FixedColumns)
        append(text, "WING\nCLEAN\nsubcase 1\n%60s%4d%8d\n", "", speeds, modes);
    else if (layout == Layout::Semicolons)
        append(text, "Aeroel. Modes:;;;%d\nNo. of Speeds:;;;%d\n[Result Data Summary]\nheadings\n",
               modes, speeds);
    else
        append(text,
               "[PROCESSING DATA INFO]\nProgram_version=1\n\n[MODEL DATA INFO]\nMach_number=0.7\n"
               "Aeroel_modes=%d\nNo_of_speeds=%d\n\n[RESULT DATA SUMMARY]\n-\n-\n-\n-\n",
               modes, speeds);
    return text;
}

void appendFixedColumns(std::string& text, const Values& values, bool isSecond)
{
    append(text, "%3d%7.3f%9.3f%12.5E%9.3f", values.mode % 1000, values.reduced, values.speed,
           -values.damping, values.frequency);
    if (isSecond)
        text += '\n';
}

void appendRow(std::string& text, const Values& values, char separator, int factors, int step)
{
    const double imaginary = 6.283185 * values.frequency;
    append(text, "%d|%d|%.7E|%.7E|0|%.4f|%.7E|%.7E|0|0|", values.mode, values.point + 1, imaginary,
           imaginary * values.damping, values.speed, values.damping, values.frequency);
    for (int i = 0; i < factors; ++i) {
        append(text, "%.4f|", std::fabs(std::sin(values.speed + i)));
        for (int k = 1; k < step; ++k)
            append(text, "%d|", i + k);
    }
    // The neighbours of the last factor complete the 21 or 26 fields.
    if (factors > 0)
        text += step == 2 ? "" : "0";
    text += '\n';
    if (separator != '|')
        for (auto place = text.size() - 1; place > 0 && text[place - 1] != '\n'; --place)
            text[place - 1] = text[place - 1] == '|' ? separator : text[place - 1];
}

void appendPoint(std::string& text, Layout layout, const Values& values, bool isSecond)
{
    switch (layout) {
    case Layout::FixedColumns:
        return appendFixedColumns(text, values, isSecond);
    case Layout::Sections:
        return appendRow(text, values, '|', 0, 0);
    case Layout::SectionsWith21Fields:
        return appendRow(text, values, '|', 5, 2);
    case Layout::SectionsWith26Fields:
        return appendRow(text, values, '|', 5, 3);
    case Layout::Semicolons:
        return appendRow(text, values, ';', 5, 2);
    }
}

} // namespace

std::string_view layoutName(Layout layout)
{
    constexpr std::array<std::string_view, 5> names = {
        ".evm", ".ev2 without factors", ".ev2 of 21 fields", ".ev2 of 26 fields", "semicolons"};
    return names[static_cast<std::size_t>(layout)];
}

std::string_view extension(Layout layout)
{
    if (layout == Layout::FixedColumns)
        return ".evm";
    return layout == Layout::Semicolons ? ".csv" : ".ev2";
}

void writeEvolution(const std::string& path, Layout layout, int modes, int speeds)
{
    std::ofstream file(path, std::ios::binary);
    std::string text = header(layout, modes, speeds);
    bool isSecond = false;
    for (int mode = 1; mode <= modes; ++mode) {
        for (int point = 0; point < speeds; ++point, isSecond = !isSecond)
            appendPoint(text, layout, valuesAt(mode, point), isSecond);
        file << text;
        text.clear();
    }
    if (isSecond)
        file << '\n';
}

void writeLargeEvolution(const std::string& path, Layout layout, std::size_t bytes)
{
    constexpr int speeds = 5000;
    std::string row;
    appendPoint(row, layout, valuesAt(100, 2000), false);
    writeEvolution(path, layout, static_cast<int>(bytes / row.size() / speeds), speeds);
}

} // namespace tarsil::benchmarks
