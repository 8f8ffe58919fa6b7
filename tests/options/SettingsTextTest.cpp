// SPDX-License-Identifier: Apache-2.0
#include "options/SettingsText.h"

#include "support/TestFiles.h"

#include <gtest/gtest.h>

#include <QSettings>

#include <array>
#include <random>

using namespace tarsil;

namespace {

QString key()
{
    return QStringLiteral("Options/vgfScale");
}

/// The text that Qt reads from a file with these bytes; empty when it reads none.
std::optional<QString> readByToolkit(const std::string& bytes)
{
    const test::TemporaryFolder folder; // a new name, because Qt caches files
    const QSettings file(QString::fromStdString(folder.write("a.ini", bytes)),
                         QSettings::IniFormat);
    static_cast<void>(file.allKeys());
    const QVariant value = file.value(key());
    const bool isText = !value.isValid() || value.typeId() == QMetaType::QString
        || value.typeId() == QMetaType::QStringList;
    if (file.status() != QSettings::NoError || !isText)
        return std::nullopt;
    return value.toStringList().join(u',');
}

std::string writtenByToolkit(const QString& value)
{
    const test::TemporaryFolder folder;
    const std::string path = folder.file("a.ini");
    QSettings file(QString::fromStdString(path), QSettings::IniFormat);
    file.setValue(key(), value);
    file.sync();
    return test::fileBytes(path);
}

std::optional<QString> readByUs(const std::string& bytes)
{
    const SettingsText text(bytes);
    if (!text.isWhole())
        return std::nullopt;
    return text.value("Options", "vgfScale").value_or(QString());
}

std::string writtenByUs(const QString& value)
{
    SettingsText text({});
    text.setValue("Options", "vgfScale", value);
    return text.bytes();
}

} // namespace

TEST(SettingsText, readsWhatTheToolkitWritesAndTheOtherWayRound)
{
    constexpr std::u16string_view letters = u"aF0 9\"\\,;=@()|%\n\t\r\x01\x7F?'[]#xü€\x3B1";
    std::mt19937 random(7); // reproducible
    for (int i = 0; i < 1500; ++i) {
        QString value;
        for (auto length = random() % 8; length > 0; --length)
            value += QChar(letters[random() % letters.size()]);
        EXPECT_EQ(readByUs(writtenByToolkit(value)), value) << value.toStdString();
        EXPECT_EQ(readByToolkit(writtenByUs(value)), value) << value.toStdString();
    }
}

TEST(SettingsText, readsForeignBytesAsTheToolkitDoes)
{
    constexpr std::array<std::string_view, 22> pieces = {
        "vgfScale", "=",   " = ",       "1|2",     "\"", "\\",      "\n", "\r\n",
        "\\x41",    "\\7", ",",         ";",       " ",  "\t",      "é",  "@",
        "@@x",      "[",   "[Options]", "[Other]", "]",  "@Rect(1)"};
    constexpr auto npos = std::string::npos;
    std::mt19937 random(11);
    for (int i = 0; i < 3000; ++i) {
        std::string bytes = "[Options]\nvgfScale=";
        for (auto count = random() % 10; count > 0; --count)
            bytes += pieces[random() % pieces.size()];
        // Two known differences from Qt: an open quote at the end is damage only here, and a value
        // with "@" and commas is a list only for Qt.
        if (!SettingsText(bytes).isWhole() || (bytes.find('@') != npos && bytes.find(',') != npos))
            continue;
        EXPECT_EQ(readByUs(bytes), readByToolkit(bytes)) << bytes;
    }
}

TEST(SettingsText, keepsASymbolBeyondTheFirstPlane)
{
    const QString value = QString::fromUtf8("wing \xF0\x9F\x9B\xA9.inp");
    EXPECT_EQ(readByUs(writtenByToolkit(value)), value);
    EXPECT_EQ(readByToolkit(writtenByUs(value)), value);
    const QString mark(1, QChar(0xFEFF)); // which the toolkit itself reads as a byte order mark
    EXPECT_EQ(readByUs(writtenByUs(mark)), mark);
}

TEST(SettingsText, changesNothingButTheValueThatIsSet)
{
    SettingsText text(
        "\xEF\xBB\xBF; mine\r\n[Options]\r\nvgfScale = 1 ; old\r\nother=2\r\n\r\n[Next]\r\na=b");
    text.setValue("Options", "vgfScale", QStringLiteral("3, 4"));
    text.setValue("Options", "vgfThicks", QStringLiteral("7|5|5"));
    text.setValue("Last", "c", QStringLiteral("d"));
    EXPECT_EQ(
        text.bytes(),
        "\xEF\xBB\xBF; mine\r\n[Options]\r\nvgfScale=\"3, 4\"; old\r\nother=2\nvgfThicks=7|5|5"
        "\r\n\r\n[Next]\r\na=b\n[Last]\nc=d\n");
    EXPECT_TRUE(text.isWhole());
}

TEST(SettingsText, isNotWholeWhenAQuoteOrEscapeReachesBeyondItsEnd)
{
    EXPECT_FALSE(SettingsText("[Options]\na=\"1").isWhole());
    EXPECT_FALSE(SettingsText("[Options]\na=1\\").isWhole());
    for (const char* const escapedLineEnd : {"\\\n", "\\\r", "\\\r\n", "\\\n\r", "\\\r\r\n"})
        EXPECT_FALSE(SettingsText(std::string("[Options]\na=1") + escapedLineEnd).isWhole());
    EXPECT_TRUE(SettingsText("[Options]\na=1\\\n2").isWhole());
    EXPECT_FALSE(SettingsText("[Options\na=1\n").isWhole());
    EXPECT_FALSE(SettingsText("[Options]\na\n").isWhole());
    EXPECT_TRUE(SettingsText("\n ; \n[Options] x\na=\"1\"\n").isWhole());
}
