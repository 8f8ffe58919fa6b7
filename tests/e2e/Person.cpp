#include "Person.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace tarsil::test {

namespace {

const QString mainWindow = QStringLiteral("^Tarsil 4\\.0$");
constexpr int enoughLooks = 5; // consecutive equal screenshots
constexpr QPoint onCanvas(700, 480);
constexpr QPoint aside(400, 787); // the status bar, which no picture shows

/// The number of pixels of a colour in a rectangle.
int count(const QImage& screen, const QRect& rectangle, QRgb color)
{
    int pixels = 0;
    for (int row = rectangle.top(); row <= rectangle.bottom(); ++row) {
        for (int column = rectangle.left(); column <= rectangle.right(); ++column)
            pixels += (screen.pixel(column, row) | 0xFF000000U) == color ? 1 : 0;
    }
    return pixels;
}

/// The middle of the first line of text on the plot, which is the header. The title bar above is
/// not confused with it: the active window's has no white row.
QPoint headerPosition(const QImage& screen)
{
    constexpr int left = 600;
    constexpr int width = 80;
    const auto isWhite = [&screen](int row) {
        return count(screen, {left, row, width, 1}, qRgb(255, 255, 255)) == width;
    };
    int row = plotArea.top();
    while (row < plotArea.bottom() && !isWhite(row))
        ++row;
    while (row < plotArea.bottom() && isWhite(row))
        ++row;
    constexpr int halfLine = 6;
    return {left + width / 2, row + halfLine};
}

} // namespace

Person::Person(const VirtualDisplay& display) : m_display(display), m_hands(display.name())
{
    m_hands.point(aside);
    EXPECT_TRUE(m_hands.focusNew(mainWindow));
}

void Person::press(const char* keys) const
{
    m_hands.press(QString::fromLatin1(keys).split(u' '));
}

void Person::press(const char* keys, int times) const
{
    for (int i = 0; i < times; ++i)
        press(keys);
}

void Person::inDialog(const char* keys, const char* title, const std::function<void()>& action)
{
    press(keys);
    ASSERT_TRUE(m_hands.focusNew(QString::fromLatin1(title))) << title;
    action();
    ASSERT_TRUE(waitUntil([&] { return !m_hands.isShown(QString::fromLatin1(title)); })) << title;
    ASSERT_TRUE(m_hands.focus(mainWindow));
}

bool Person::closesBoxOf(const char* dialog)
{
    EXPECT_TRUE(m_hands.focusNew(QStringLiteral("^Tarsil$"))) << dialog;
    press("Return");
    return waitUntil([&] { return m_hands.isFocused(QString::fromLatin1(dialog)); });
}

void Person::nameFile(const char* keys, const char* title, const QString& path)
{
    inDialog(keys, title, [&] {
        press("ctrl+a");
        type(path);
        press("Return");
    });
}

void Person::addEvolution(const char* name)
{
    const QImage before = look(treeArea);
    nameFile("alt+v Left a", "^Open$", QString::fromStdString(sample(name)));
    EXPECT_TRUE(seesChange(treeArea, before)) << name;
}

void Person::typeHeader(const QStringList& lines)
{
    press("alt+v Up Return"); // activates the plot window
    const QRgb ground = m_display.screen().pixel(990, 10) | 0xFF000000U; // of menu bar and toolbars
    const auto isEditing = [ground](const QImage& screen) {
        constexpr int leastBar = 1000; // pixels
        return count(screen, plotArea, ground) > leastBar;
    };
    m_hands.doubleClick(headerPosition(m_display.screen()));
    ASSERT_TRUE(m_display.waitForScreen(isEditing));
    for (const QString& line : lines) {
        if (&line != &lines.front())
            press("Return");
        type(line);
    }
    m_hands.click(onCanvas);
    EXPECT_TRUE(m_display.waitForScreen(std::not_fn(isEditing)));
    m_hands.point(aside);
}

void Person::selectModes()
{
    inDialog("Menu Down Down Return", "^Select Multiple Modes$",
             [this] { press("Down shift+Down shift+Down Tab space Return"); });
}

void Person::setLargestSpeed(const QString& speed)
{
    inDialog("alt+v Right Return", "^Plot Properties$", [&] {
        press("Tab ctrl+a");
        type(speed);
        press("Return");
    });
}

void Person::pushButton(QPoint button, const QRect& rectangle)
{
    const QImage before = look(rectangle);
    m_hands.click(button);
    EXPECT_TRUE(seesChange(rectangle, before));
    m_hands.point(aside);
}

void Person::drag(QPoint from, QPoint to, const QRect& rectangle)
{
    const QImage before = look(rectangle);
    m_hands.drag(from, to);
    m_hands.point(aside);
    EXPECT_TRUE(seesChange(rectangle, before));
}

bool Person::waitForColor(QRgb color) const
{
    return m_display.waitForScreen(
        [color](const QImage& screen) { return count(screen, plotArea, color) > 0; });
}

QImage Person::plotWith(QRgb color, bool isThere) const
{
    int looks = 0;
    QImage picture;
    EXPECT_TRUE(m_display.waitForScreen([&](const QImage& screen) {
        const QImage now = screen.copy(plotArea);
        looks = now == picture && (count(screen, plotArea, color) > 0) == isThere ? looks + 1 : 0;
        picture = now;
        return looks == enoughLooks;
    }));
    return picture;
}

bool Person::seesPlot(const QImage& picture) const
{
    return waitFor(plotArea, [&picture](const QImage& now) { return now == picture; });
}

bool Person::seesChange(const QRect& rectangle, const QImage& before) const
{
    return waitFor(rectangle, [&before](const QImage& now) { return now != before; });
}

/// A rectangle that returns to an earlier look counts as stable: a text cursor blinks faster than a
/// slow machine takes screenshots.
bool Person::standsStill(const QRect& rectangle) const
{
    int looks = 0;
    std::vector<QImage> seen;
    return waitFor(rectangle, [&](const QImage& now) {
        const bool isKnown = std::find(seen.begin(), seen.end(), now) != seen.end();
        looks = isKnown ? looks + 1 : 0;
        if (!isKnown)
            seen.push_back(now);
        return looks == enoughLooks;
    });
}

bool Person::waitFor(const QRect& rectangle,
                     const std::function<bool(const QImage&)>& condition) const
{
    return m_display.waitForScreen(
        [&](const QImage& screen) { return condition(screen.copy(rectangle)); });
}

} // namespace tarsil::test
