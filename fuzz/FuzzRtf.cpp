// SPDX-License-Identifier: Apache-2.0
#include "FuzzTarget.h"

#include "rtf/RtfOutput.h"
#include "rtf/RtfReader.h"
#include "rtf/RtfStoredValue.h"
#include "rtf/RtfWriter.h"

#include <algorithm>
#include <string>
#include <utility>

namespace {

using namespace tarsil;

/// What writing keeps of a text: everything except control characters and empty runs.
RichText asWritten(const RichText& text)
{
    RichText kept {{}, text.last};
    for (TextRun run : text.runs) {
        std::erase_if(run.text, isLeftOutOfRtf);
        if (run.text.empty())
            continue;
        if (!kept.runs.empty() && kept.runs.back().format == run.format)
            kept.runs.back().text += run.text;
        else
            kept.runs.push_back(std::move(run));
    }
    return kept;
}

bool endsWithEmptyLine(const RichText& text)
{
    return text.runs.empty() || text.runs.back().text.back() == u'\n';
}

void requireProportion(const RichText& text, std::size_t bytes)
{
    std::size_t units = 0;
    for (const TextRun& run : text.runs) {
        fuzz::require(!run.text.empty(), "a run has characters");
        units += run.text.size();
    }
    fuzz::require(units <= bytes, "no more characters than bytes");
}

void requirePlainSource(const std::string& rtf)
{
    const auto isPlain = [](char c) { return (c >= ' ' && c <= '~') || c == '\r' || c == '\n'; };
    fuzz::require(std::all_of(rtf.begin(), rtf.end(), isPlain), "a source is plain ASCII");
    fuzz::require(rtfFromStoredValue(storedValueFromRtf(rtf)) == rtf,
                  "a stored value is its source");
}

/// Writing and reading a text must reproduce it, in both forms and repeatedly.
void requireFixedPoint(const RichText& text)
{
    const RichText expected = asWritten(text);
    for (const RtfForm form : {RtfForm::Full, RtfForm::Short}) {
        const std::string rtf = writeRtf(text, form);
        requirePlainSource(rtf);
        const RichText again = readRtf(rtf, {.family = "Other", .points = 77});
        fuzz::require(again.runs == expected.runs, "what is written is read again as it was");
        fuzz::require(!endsWithEmptyLine(expected) || again.last == expected.last,
                      "an empty last line keeps its format");
        fuzz::require(writeRtf(again, form) == rtf, "what is read again is written as it was");
    }
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view source = fuzz::textOf(data, size);
    const RichText document = readRtf(source, {});
    requireProportion(document, size);
    requireFixedPoint(document);
    const RichText selection = readRtf(source, {}, RtfScope::Selection);
    requireProportion(selection, size);
    requireFixedPoint(selection);
    requireFixedPoint(readRtf(rtfFromStoredValue(source), {}));
    return 0;
}
