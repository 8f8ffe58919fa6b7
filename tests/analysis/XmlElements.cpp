// SPDX-License-Identifier: Apache-2.0
#include "analysis/XmlElements.h"

#include "base/text/TextCodec.h"
#include "base/text/Utf16.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>

namespace tarsil::test {

namespace {

constexpr std::string_view blanks = " \t\r\n";

std::string characterOf(unsigned long codePoint)
{
    std::u16string text;
    appendUtf16(text, static_cast<char32_t>(codePoint));
    return utf8FromUtf16(text);
}

/// The character of a reference such as "amp" or "#xE4"; empty when it is unknown.
std::string referenced(const std::string& name)
{
    static const std::map<std::string, std::string> named = {
        {"amp", "&"}, {"lt", "<"}, {"gt", ">"}, {"quot", "\""}, {"apos", "'"}};
    const auto found = named.find(name);
    if (found != named.end())
        return found->second;
    if (name.starts_with("#x"))
        return characterOf(std::stoul(name.substr(2), nullptr, 16));
    if (name.starts_with("#"))
        return characterOf(std::stoul(name.substr(1)));
    ADD_FAILURE() << "an unknown reference: " << name;
    return {};
}

/// Replaces references by their characters, and line ends by line feeds.
std::string characters(std::string_view raw)
{
    std::string text;
    for (std::size_t i = 0; i < raw.size(); ++i) {
        if (raw[i] == '\r') {
            text += raw.substr(i, 2) == "\r\n" ? "" : "\n";
        } else if (raw[i] == '&') {
            const std::size_t end = raw.find(';', i);
            EXPECT_NE(end, std::string_view::npos) << "a reference without an end";
            text += referenced(std::string(raw.substr(i + 1, end - i - 1)));
            i = std::min(end, raw.size());
        } else {
            text += raw[i];
        }
    }
    return text;
}

class XmlScanner
{
public:
    explicit XmlScanner(std::string_view xml) : m_rest(xml) { }

    std::vector<XmlElement> scan()
    {
        while (!m_rest.empty()) {
            addText(until("<"));
            if (!m_rest.empty())
                addTag(until(">"));
        }
        EXPECT_TRUE(m_open.empty()) << "an element without an end";
        return m_elements;
    }

private:
    /// Removes and returns what precedes `end`, and removes `end`.
    std::string_view until(std::string_view end)
    {
        const std::size_t length = std::min(m_rest.find(end), m_rest.size());
        const std::string_view before = m_rest.substr(0, length);
        m_rest.remove_prefix(std::min(length + end.size(), m_rest.size()));
        return before;
    }

    void addText(std::string_view raw)
    {
        if (!m_open.empty())
            m_elements[m_open.back()].text += characters(raw);
        else
            EXPECT_EQ(raw.find_first_not_of(blanks), std::string_view::npos)
                << "text outside the elements";
    }

    void addTag(std::string_view tag)
    {
        if (tag.starts_with('?'))
            return;
        if (tag.starts_with('/')) {
            endElement(tag.substr(1));
            return;
        }
        const bool isEmpty = tag.ends_with('/');
        if (isEmpty)
            tag.remove_suffix(1);
        const std::size_t end = std::min(tag.find_first_of(blanks), tag.size());
        m_names.emplace_back(tag.substr(0, end));
        m_open.push_back(m_elements.size());
        m_elements.push_back({m_names.back().substr(m_names.back().find(':') + 1), {}, {}});
        addAttributes(tag.substr(end));
        if (isEmpty)
            endElement(m_names.back());
    }

    void addAttributes(std::string_view raw)
    {
        for (std::size_t start = raw.find_first_not_of(blanks); start != std::string_view::npos;
             start = raw.find_first_not_of(blanks)) {
            const std::size_t open = raw.find("=\"", start);
            const std::size_t close = raw.find('"', open + 2);
            if (open == std::string_view::npos || close == std::string_view::npos) {
                ADD_FAILURE() << "no attribute: " << raw;
                return;
            }
            m_elements.back().attributes.emplace(
                raw.substr(start, open - start),
                characters(raw.substr(open + 2, close - open - 2)));
            raw.remove_prefix(close + 1);
        }
    }

    void endElement(std::string_view name)
    {
        ASSERT_FALSE(m_names.empty()) << name;
        EXPECT_EQ(m_names.back(), name) << "the end of another element";
        m_names.pop_back();
        m_open.pop_back();
    }

    std::string_view m_rest;
    std::vector<XmlElement> m_elements;
    std::vector<std::size_t> m_open; ///< indices of the elements without an end
    std::vector<std::string> m_names; ///< their names with prefix
};

} // namespace

std::string XmlElement::attribute(const std::string& wanted) const
{
    const auto found = attributes.find(wanted);
    return found == attributes.end() ? std::string() : found->second;
}

std::vector<XmlElement> xmlElements(std::string_view xml)
{
    return XmlScanner(xml).scan();
}

} // namespace tarsil::test
