// SPDX-License-Identifier: Apache-2.0
#include "ReferenceReaders.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <charconv>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <string_view>

namespace tarsil::benchmarks {

namespace {

/// Numbers by std::from_chars, from views.
struct FromChars
{
    using Text = std::string_view;

    static Text part(std::string_view line, std::size_t first, std::size_t width)
    {
        return line.substr(first, width);
    }

    template <typename Number>
    static Number number(Text text)
    {
        while (!text.empty() && text.front() == ' ')
            text.remove_prefix(1);
        Number value {};
        std::from_chars(text.data(), text.data() + text.size(), value);
        return value;
    }

    static float single(Text text) { return number<float>(text); }
    static int integer(Text text) { return number<int>(text); }
};

/// Numbers by std::stof, from copies.
struct Stof
{
    using Text = std::string;

    static Text part(const std::string& line, std::size_t first, std::size_t width)
    {
        return line.substr(first, width);
    }

    static float single(const Text& text) { return std::stof(text); }
    static int integer(const Text& text) { return std::stoi(text); }
};

/// The bytes of a file, mapped into memory.
class MappedFile
{
public:
    explicit MappedFile(const std::string& path)
    {
        const int handle = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
        struct stat status = {};
        if (handle < 0 || ::fstat(handle, &status) != 0)
            giveUp(path);
        m_size = static_cast<std::size_t>(status.st_size);
        m_start = ::mmap(nullptr, m_size, PROT_READ, MAP_PRIVATE | MAP_POPULATE, handle, 0);
        if (m_start == MAP_FAILED)
            giveUp(path);
        ::close(handle);
    }
    ~MappedFile() { ::munmap(m_start, m_size); }
    MappedFile(const MappedFile&) = delete;
    MappedFile& operator=(const MappedFile&) = delete;

    std::string_view bytes() const { return {static_cast<const char*>(m_start), m_size}; }

private:
    [[noreturn]] static void giveUp(const std::string& path)
    {
        std::cerr << path << " cannot be mapped\n";
        std::exit(EXIT_FAILURE);
    }

    void* m_start = nullptr;
    std::size_t m_size = 0;
};

class MappedLines
{
public:
    using Line = std::string_view;

    explicit MappedLines(const std::string& path) : m_file(path), m_rest(m_file.bytes()) { }

    bool next(Line& line)
    {
        if (m_rest.empty())
            return false;
        const std::size_t end = m_rest.find('\n');
        line = m_rest.substr(0, end);
        m_rest.remove_prefix(end == Line::npos ? m_rest.size() : end + 1);
        return true;
    }

private:
    MappedFile m_file;
    std::string_view m_rest;
};

class StreamLines
{
public:
    using Line = std::string;

    explicit StreamLines(const std::string& path) : m_file(path, std::ios::binary) { }

    bool next(Line& line) { return static_cast<bool>(std::getline(m_file, line)); }

private:
    std::ifstream m_file;
};

template <typename Numbers, typename Line>
Point pointOfColumns(const Line& line, std::size_t offset)
{
    Point point;
    point.kfreq = Numbers::single(Numbers::part(line, offset + 3, 7));
    point.speed = Numbers::single(Numbers::part(line, offset + 10, 9));
    point.G = -Numbers::single(Numbers::part(line, offset + 19, 12));
    point.f = Numbers::single(Numbers::part(line, offset + 31, 9));
    return point;
}

template <typename Numbers, typename Lines>
ReferenceModes readFixedColumns(const std::string& path)
{
    Lines lines(path);
    typename Lines::Line line;
    for (int i = 0; i < 4; ++i)
        lines.next(line);
    const auto speeds = static_cast<std::size_t>(Numbers::integer(Numbers::part(line, 60, 4)));
    ReferenceModes modes;
    while (lines.next(line)) {
        for (std::size_t offset = 0; offset + 40 <= line.size(); offset += 40) {
            if (modes.empty() || modes.back().size() == speeds)
                modes.emplace_back().reserve(speeds);
            Numbers::integer(Numbers::part(line, offset, 3));
            modes.back().push_back(pointOfColumns<Numbers>(line, offset));
        }
    }
    return modes;
}

/// Splits a row at its separators.
template <typename Numbers, typename Line>
void split(const Line& line, char separator, std::vector<typename Numbers::Text>& fields)
{
    fields.clear();
    std::size_t start = 0;
    for (;;) {
        const std::size_t end = line.find(separator, start);
        fields.push_back(Numbers::part(line, start, end - start));
        if (end == Line::npos)
            return;
        start = end + 1;
    }
}

template <typename Numbers>
Point pointOfFields(const std::vector<typename Numbers::Text>& fields)
{
    Point point;
    point.im = Numbers::single(fields[2]);
    point.re = Numbers::single(fields[3]);
    point.speed = Numbers::single(fields[5]);
    point.G = Numbers::single(fields[6]);
    point.f = Numbers::single(fields[7]);
    const std::size_t step = fields.size() == 26 ? 3 : 2;
    for (std::size_t i = 0; fields.size() > 11 && i < 5; ++i)
        point.mpf.append(Numbers::single(fields[10 + i * step]));
    return point;
}

template <typename Numbers, typename Lines>
ReferenceModes readRows(const std::string& path, Layout layout)
{
    Lines lines(path);
    typename Lines::Line line;
    const bool semicolons = layout == Layout::Semicolons;
    const std::string_view header = semicolons ? "[Result Data Summary]" : "[RESULT DATA SUMMARY]";
    while (lines.next(line) && line != header) { }
    for (int i = semicolons ? 1 : 4; i > 0; --i)
        lines.next(line);
    ReferenceModes modes;
    std::vector<typename Numbers::Text> fields;
    int mode = 0;
    while (lines.next(line)) {
        split<Numbers>(line, semicolons ? ';' : '|', fields);
        const int number = Numbers::integer(fields[0]);
        if (modes.empty() || number != mode) {
            const std::size_t expected = modes.empty() ? 0 : modes.back().size();
            modes.emplace_back().reserve(expected);
        }
        mode = number;
        modes.back().push_back(pointOfFields<Numbers>(fields));
    }
    return modes;
}

template <typename Numbers, typename Lines>
ReferenceModes read(const std::string& path, Layout layout)
{
    if (layout == Layout::FixedColumns)
        return readFixedColumns<Numbers, Lines>(path);
    return readRows<Numbers, Lines>(path, layout);
}

} // namespace

ReferenceModes readWithFromChars(const std::string& path, Layout layout)
{
    return read<FromChars, MappedLines>(path, layout);
}

ReferenceModes readWithStof(const std::string& path, Layout layout)
{
    return read<Stof, StreamLines>(path, layout);
}

} // namespace tarsil::benchmarks
