#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tarsil::benchmarks {

/// The layouts of a modal evolution file; for results with "|" also the width of the rows.
enum class Layout {
    FixedColumns,
    Sections,
    SectionsWith21Fields,
    SectionsWith26Fields,
    Semicolons
};

std::string_view layoutName(Layout layout);

/// The end that a file name of the layout has.
std::string_view extension(Layout layout);

/// Writes an evolution with these numbers of modes and speeds; every number in it is different.
void writeEvolution(const std::string& path, Layout layout, int modes, int speeds);

/// Writes one of about `bytes` bytes, 5000 speeds in each mode.
void writeLargeEvolution(const std::string& path, Layout layout, std::size_t bytes);

} // namespace tarsil::benchmarks
