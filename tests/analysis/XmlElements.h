// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace tarsil::test {

/// An element of an XML file.
struct XmlElement
{
    std::string name; ///< without the prefix of its namespace
    std::map<std::string, std::string> attributes; ///< by their whole names
    std::string text; ///< its own characters, without those of elements in it

    /// The value of an attribute; empty when there is none.
    std::string attribute(const std::string& name) const;
};

/// The elements of an XML file in the order of their start tags. Fails the test where the file is
/// not well-formed.
std::vector<XmlElement> xmlElements(std::string_view xml);

} // namespace tarsil::test
