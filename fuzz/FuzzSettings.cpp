// SPDX-License-Identifier: Apache-2.0
#include "FuzzTarget.h"

#include "options/SettingsText.h"

#include <QString>

#include <string>

namespace {

using namespace tarsil;

constexpr const char* keys[] = {"AcInfoDataFile", "vgfScale", "vgfThicks"};

/// A value that is set must be read back; the other values and the validity of the text must stay.
void requireChange(const SettingsText& before, const char* changed, const QString& value)
{
    SettingsText text = before;
    text.setValue("Options", changed, value);
    const SettingsText again(text.bytes());
    fuzz::require(again.isWhole(), "a text that is changed stays whole");
    fuzz::require(again.value("Options", changed) == value, "a value is read as it was set");
    for (const char* key : keys) {
        if (key != changed)
            fuzz::require(again.value("Options", key) == before.value("Options", key),
                          "the other values stay");
    }
    text.setValue("Options", changed, value);
    fuzz::require(text.bytes() == again.bytes(), "setting a value again changes nothing");
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string bytes(fuzz::textOf(data, size));
    const SettingsText text(bytes);
    fuzz::require(text.bytes() == bytes, "reading changes nothing");
    QString longest;
    for (const char* key : keys)
        longest = std::max(longest, text.value("Options", key).value_or(QString()));
    if (!text.isWhole())
        return 0;
    const QString given = QString::fromUtf8(bytes.data(), static_cast<qsizetype>(bytes.size()));
    for (const char* key : keys) {
        requireChange(text, key, given);
        requireChange(text, key, longest);
    }
    return 0;
}
