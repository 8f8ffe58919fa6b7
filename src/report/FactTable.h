// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "report/ReportContent.h"

#include <string>
#include <string_view>

namespace tarsil {

/// A table of labels and values.
class FactTable
{
public:
    /// Adds a row unless the value is blank.
    void add(std::string_view label, const std::string& value, CellStyle style = CellStyle::Plain);

    ReportTable take();

private:
    Sheet m_sheet;
};

/// Size, date and digest of a file now. When it cannot be read, the reason is in place of the
/// digest, and the rest is empty.
struct ShownFacts
{
    std::string size;
    std::string modified;
    std::string sha256;
};

ShownFacts shownFactsOf(const std::string& path);

} // namespace tarsil
