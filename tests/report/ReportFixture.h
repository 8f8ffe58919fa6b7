// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "model/EVM.h"
#include "report/ReportBuilder.h"
#include "support/TestFiles.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace tarsil::test {

/// Tests with the content of a report about two evolutions of the samples.
class ReportFixture : public ::testing::Test
{
protected:
    /// A plot "Clean <wing>" with modes 1 and 2 of the first evolution, a reference speed and a
    /// damping line; the second evolution is edited. Saved on 7 March 2026 at 15:20:00 by "rivera".
    ReportFixture();

    ReportContent content() const { return reportContent(input).value(); }

    std::string file(std::string_view name) const { return folder.file(name); }

    TemporaryFolder folder;
    std::vector<std::unique_ptr<EVM>> evolutions;
    ReportInput input;
};

/// All tables of a document, in its order.
std::vector<const Sheet*> tablesOf(const ReportContent& content);

/// The texts of all headings, paragraphs, captions and cells.
std::vector<std::string> textsOf(const ReportContent& content);

} // namespace tarsil::test
