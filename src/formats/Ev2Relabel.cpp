// SPDX-License-Identifier: Apache-2.0
#include "formats/Ev2Relabel.h"

#include "base/files/TextStream.h"
#include "base/text/TextCodec.h"
#include "base/user/RunTimeError.h"
#include "formats/Ev2Layout.h"

#include <algorithm>
#include <set>

namespace tarsil {

namespace {

constexpr std::string_view countKey = ev2layout::modificationCountKey;
constexpr std::string_view listKey = ev2layout::lists[0].name;

/// The rows of a mode: their texts without the mode number, which they share.
struct ModeRows
{
    std::string_view number;
    std::vector<std::string_view> rest; ///< from the first "|"
};

/// Copies a file with sections, with additional modifications and rearranged rows.
class Relabelling
{
public:
    explicit Relabelling(std::string_view text) : m_stream(text, "evolution") { }

    std::string run(const std::vector<std::vector<std::size_t>>& sources,
                    const std::vector<std::string>& modifications);

private:
    void copyThrough(std::string_view header);
    void copyModelSection(const std::vector<std::string>& modifications);
    void addModifications(std::set<std::string, std::less<>> usedKeys,
                          const std::vector<std::string>& modifications);
    void readRows();
    void requireRows(const std::vector<std::vector<std::size_t>>& sources) const;
    void line(std::string_view text) { m_output.append(text).append("\n"); }

    TextStream m_stream;
    std::string m_output;
    std::vector<ModeRows> m_modes;
};

void Relabelling::copyThrough(std::string_view header)
{
    std::string_view text;
    do {
        text = m_stream.readLine();
        line(text);
    } while (text != header);
}

void Relabelling::addModifications(std::set<std::string, std::less<>> usedKeys,
                                   const std::vector<std::string>& modifications)
{
    std::size_t index = 0;
    for (const std::string& modification : modifications) {
        while (!usedKeys.insert(std::to_string(++index)).second) { }
        line(std::string(listKey) + "(" + std::to_string(index) + ")=" + encodeText(modification));
    }
}

/// Copies the lines of the section, with the new count of modifications, and appends the new ones.
void Relabelling::copyModelSection(const std::vector<std::string>& modifications)
{
    std::set<std::string, std::less<>> usedKeys;
    std::vector<std::string_view> lines;
    while (!m_stream.atEndOfStream()) {
        const std::string_view text = m_stream.readLine();
        if (text.empty())
            break;
        lines.push_back(text);
        const ev2layout::KeyValue entry = ev2layout::splitAtFirstEqual(text);
        if (entry.key.find(listKey) != std::string_view::npos) {
            if (const auto key = ev2layout::entryIndex(entry.key))
                usedKeys.emplace(*key);
        }
    }
    for (const std::string_view text : lines) {
        if (ev2layout::splitAtFirstEqual(text).key == countKey)
            line(std::string(countKey) + "="
                 + std::to_string(usedKeys.size() + modifications.size()));
        else
            line(text);
    }
    addModifications(std::move(usedKeys), modifications);
    line("");
}

void Relabelling::readRows()
{
    for (std::size_t i = 0; i < ev2layout::headingLines; ++i)
        line(m_stream.readLine());
    while (!m_stream.atEndOfStream()) {
        const std::string_view text = m_stream.readLine();
        if (text.empty())
            break;
        const std::size_t end = std::min(text.find('|'), text.size());
        if (m_modes.empty() || m_modes.back().number != text.substr(0, end))
            m_modes.push_back({text.substr(0, end), {}});
        m_modes.back().rest.push_back(text.substr(end));
    }
}

void Relabelling::requireRows(const std::vector<std::vector<std::size_t>>& sources) const
{
    const auto isWhole = [&sources](const ModeRows& mode) {
        return mode.rest.size() == sources.size();
    };
    const std::size_t modes = sources.empty() ? 0 : sources.front().size();
    if (m_modes.size() != modes || !std::all_of(m_modes.begin(), m_modes.end(), isWhole))
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange, "EVM",
                           "the rows of the file are not those of its modes");
}

std::string Relabelling::run(const std::vector<std::vector<std::size_t>>& sources,
                             const std::vector<std::string>& modifications)
{
    copyThrough(ev2layout::processingHeader);
    copyThrough(ev2layout::modelHeader);
    copyModelSection(modifications);
    copyThrough(ev2layout::resultHeader);
    readRows();
    requireRows(sources);
    for (std::size_t m = 0; m < m_modes.size(); ++m) {
        for (std::size_t p = 0; p < sources.size(); ++p)
            line(std::string(m_modes[m].number).append(m_modes[sources[p][m]].rest[p]));
    }
    return std::move(m_output);
}

} // namespace

std::string relabelledEv2(std::string_view text,
                          const std::vector<std::vector<std::size_t>>& sources,
                          const std::vector<std::string>& modifications)
{
    return Relabelling(text).run(sources, modifications);
}

} // namespace tarsil
