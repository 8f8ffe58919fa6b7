// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <iosfwd>
#include <string>
#include <string_view>

namespace tarsil::batch {

/// Writes JSON (RFC 8259) piece by piece, with commas. Numbers are passed as text, so that the
/// caller decides on their digits. The caller must keep the order: a key before each value of an
/// object, and an end for each begin.
class JsonWriter
{
public:
    explicit JsonWriter(std::ostream& out) : m_out(out) { }

    void beginObject() { begin('{'); }
    void endObject() { end('}'); }
    void beginArray() { begin('['); }
    void endArray() { end(']'); }

    void key(std::string_view name);

    /// Writes 8-bit text, converted to UTF-8 by `decodeText`. Control characters are escaped, also
    /// those beyond ASCII.
    void text(std::string_view value);
    void number(std::string_view digits) { plain(digits); }
    void boolean(bool value) { plain(value ? "true" : "false"); }
    void null() { plain("null"); }

    /// Writes a key and its value.
    void text(std::string_view name, std::string_view value);
    void number(std::string_view name, std::string_view digits);
    void number(std::string_view name, float value);
    void boolean(std::string_view name, bool value);

private:
    void begin(char bracket);
    void end(char bracket);
    void plain(std::string_view value);
    void separate();

    std::ostream& m_out;
    bool m_needsComma = false;
};

} // namespace tarsil::batch
