// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <QXmlStreamWriter>

#include <initializer_list>
#include <string>
#include <utility>

namespace tarsil {

/// Writes a part of a document in the Open Document Format. Names have the usual prefixes
/// ("text:p"), which the root element declares.
class OdtXml
{
public:
    using Attributes = std::initializer_list<std::pair<const char*, QString>>;

    /// Begins with the root element, such as "office:document-content".
    explicit OdtXml(const char* root);

    void begin(const char* element, Attributes attributes = {});
    void end() { m_xml.writeEndElement(); }
    void add(const char* element, Attributes attributes = {});
    void addText(const QString& text);

    /// An element with a text.
    void add(const char* element, Attributes attributes, const QString& text);

    /// Ends the root element and returns the bytes.
    std::string finish();

private:
    QByteArray m_bytes;
    QXmlStreamWriter m_xml;
};

/// A length: "8.5pt".
QString pointsText(double points);

} // namespace tarsil
