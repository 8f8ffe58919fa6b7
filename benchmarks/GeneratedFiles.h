// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tarsil::benchmarks {

/// The layouts of a modal evolution file; for results with "|" also the number of fields.
enum class Layout {
    FixedColumns,
    Sections,
    SectionsWith21Fields,
    SectionsWith26Fields,
    Semicolons
};

std::string_view layoutName(Layout layout);

/// The file extension of a layout.
std::string_view extension(Layout layout);

/// Writes an evolution with these numbers of modes and speeds; all its numbers differ.
void writeEvolution(const std::string& path, Layout layout, int modes, int speeds);

/// Writes an evolution of about `bytes` bytes with 5000 speeds for each mode.
void writeLargeEvolution(const std::string& path, Layout layout, std::size_t bytes);

} // namespace tarsil::benchmarks
