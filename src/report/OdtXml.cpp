// SPDX-License-Identifier: Apache-2.0
#include "report/OdtXml.h"

#include <array>

namespace tarsil {

namespace {

constexpr std::array<std::pair<const char*, const char*>, 10> namespaces = {
    {{"xmlns:office", "urn:oasis:names:tc:opendocument:xmlns:office:1.0"},
     {"xmlns:style", "urn:oasis:names:tc:opendocument:xmlns:style:1.0"},
     {"xmlns:text", "urn:oasis:names:tc:opendocument:xmlns:text:1.0"},
     {"xmlns:table", "urn:oasis:names:tc:opendocument:xmlns:table:1.0"},
     {"xmlns:draw", "urn:oasis:names:tc:opendocument:xmlns:drawing:1.0"},
     {"xmlns:fo", "urn:oasis:names:tc:opendocument:xmlns:xsl-fo-compatible:1.0"},
     {"xmlns:svg", "urn:oasis:names:tc:opendocument:xmlns:svg-compatible:1.0"},
     {"xmlns:meta", "urn:oasis:names:tc:opendocument:xmlns:meta:1.0"},
     {"xmlns:dc", "http://purl.org/dc/elements/1.1/"},
     {"xmlns:xlink", "http://www.w3.org/1999/xlink"}}};

} // namespace

OdtXml::OdtXml(const char* root) : m_xml(&m_bytes)
{
    m_xml.writeStartDocument();
    m_xml.writeStartElement(QLatin1String(root));
    for (const auto& [name, uri] : namespaces)
        m_xml.writeAttribute(QLatin1String(name), QLatin1String(uri));
    m_xml.writeAttribute(QStringLiteral("office:version"), QStringLiteral("1.2"));
}

void OdtXml::begin(const char* element, Attributes attributes)
{
    m_xml.writeStartElement(QLatin1String(element));
    for (const auto& [name, value] : attributes)
        m_xml.writeAttribute(QLatin1String(name), value);
}

void OdtXml::add(const char* element, Attributes attributes)
{
    begin(element, attributes);
    end();
}

/// The format collapses blanks, so each blank after another one is an element.
void OdtXml::addText(const QString& text)
{
    QString characters; // units are written together: a character may consist of two
    bool isAfterBlank = true;
    for (const QChar unit : text) {
        if (unit == u' ' && isAfterBlank) {
            m_xml.writeCharacters(characters);
            characters.clear();
            m_xml.writeEmptyElement(QStringLiteral("text:s"));
        } else {
            characters += unit;
        }
        isAfterBlank = unit == u' ';
    }
    m_xml.writeCharacters(characters);
}

void OdtXml::add(const char* element, Attributes attributes, const QString& text)
{
    begin(element, attributes);
    addText(text);
    end();
}

std::string OdtXml::finish()
{
    m_xml.writeEndDocument();
    return m_bytes.toStdString();
}

QString pointsText(double points)
{
    constexpr int decimals = 2;
    return QString::number(points, 'f', decimals) + QStringLiteral("pt");
}

} // namespace tarsil
