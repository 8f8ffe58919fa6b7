// A session of a person: made by mouse and keyboard, saved, and there again after a restart.

#include "Hands.h"
#include "Program.h"

#include <QFile>

#include <gtest/gtest.h>

#include <functional>

namespace tarsil::test {

namespace {

const QString mainWindow = QStringLiteral("^Tarsil 4\\.0$");

// Places on the screen of 1000 x 800 pixels, which the default layout divides: the explorer is the
// upper quarter of the left half, the plot window the right half.
const QRect treeArea(2, 80, 495, 122);
const QRect plotArea(505, 45, 490, 720); // without the frame and its title
constexpr QPoint onCanvas(700, 480);
constexpr QPoint aside(250, 208); // where the pointer is in no picture: the title of a window
constexpr QPoint selectButton(174, 60);
constexpr QPoint addPlotButton(209, 60);

constexpr QRgb blue = qRgb(0, 0, 255); // of the second curve
constexpr QRgb cyan = qRgb(0, 191, 191); // of the fifth

/// How many pixels of a rectangle have a colour.
int count(const QImage& screen, const QRect& rectangle, QRgb color)
{
    int pixels = 0;
    for (int row = rectangle.top(); row <= rectangle.bottom(); ++row) {
        for (int column = rectangle.left(); column <= rectangle.right(); ++column)
            pixels += (screen.pixel(column, row) | 0xFF000000U) == color ? 1 : 0;
    }
    return pixels;
}

/// The middle of the first line of text on the plot, which is the header. The title above it is
/// that of the active window, so it has no white row.
QPoint headerPlace(const QImage& screen)
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

/// Somebody before the program, who does one thing after the other and looks at what it brings.
class Person
{
public:
    explicit Person(const VirtualDisplay& display) : m_display(display), m_hands(display.name())
    {
        m_hands.point(aside);
        EXPECT_TRUE(m_hands.focusNew(mainWindow));
    }

    void press(const char* keys) { m_hands.press(QString::fromLatin1(keys).split(u' ')); }

    /// Opens a dialog with keys, handles it, and waits until it is gone. "File" and "Format" take
    /// turns for their key, so both are reached from the menu between them.
    template <typename Action>
    void inDialog(const char* keys, const char* title, Action action)
    {
        press(keys);
        ASSERT_TRUE(m_hands.focusNew(QString::fromLatin1(title))) << title;
        action();
        ASSERT_TRUE(waitUntil([&] { return !m_hands.isShown(QString::fromLatin1(title)); }))
            << title;
        ASSERT_TRUE(m_hands.focus(mainWindow));
    }

    void nameFile(const char* keys, const char* title, const QString& path)
    {
        inDialog(keys, title, [&] {
            press("ctrl+a");
            m_hands.type(path);
            press("Return");
        });
    }

    void addEvolution(const char* name)
    {
        const QImage before = area(treeArea);
        nameFile("alt+v Left a", "^Open$", QString::fromStdString(sample(name)));
        EXPECT_TRUE(waitFor(treeArea, [&](const QImage& now) { return now != before; })) << name;
    }

    /// The keyboard to the explorer.
    void goToExplorer() { press("alt+v Down Return"); }

    void typeHeader(const QStringList& lines);
    void selectModes();
    void setLargestSpeed(const QString& speed);

    /// A button of the explorer's toolbar; the rectangle shows that it did something.
    void pushButton(QPoint button, const QRect& rectangle)
    {
        const QImage before = area(rectangle);
        m_hands.click(button);
        EXPECT_TRUE(waitFor(rectangle, [&](const QImage& now) { return now != before; }));
        m_hands.point(aside);
    }

    bool waitForColor(QRgb color)
    {
        return m_display.waitForScreen(
            [color](const QImage& screen) { return count(screen, plotArea, color) > 0; });
    }

    void type(const char* text) { m_hands.type(QString::fromLatin1(text)); }

    /// The picture of the plot once it has, or has not, curves of a colour, and stands still.
    QImage plotWith(QRgb color, bool isThere = true)
    {
        constexpr int enough = 5; // looks in a row that see the same
        int looks = 0;
        QImage picture;
        EXPECT_TRUE(m_display.waitForScreen([&](const QImage& screen) {
            const QImage now = screen.copy(plotArea);
            looks =
                now == picture && (count(screen, plotArea, color) > 0) == isThere ? looks + 1 : 0;
            picture = now;
            return looks == enough;
        }));
        return picture;
    }

    bool seesPlot(const QImage& picture)
    {
        return waitFor(plotArea, [&picture](const QImage& now) { return now == picture; });
    }

    bool isAsked() const { return m_hands.isShown(QStringLiteral("^Tarsil$")); }

private:
    QImage area(const QRect& rectangle) const { return m_display.screen().copy(rectangle); }

    template <typename Condition>
    bool waitFor(const QRect& rectangle, Condition condition)
    {
        return m_display.waitForScreen(
            [&](const QImage& screen) { return condition(screen.copy(rectangle)); });
    }

    const VirtualDisplay& m_display;
    Hands m_hands;
};

/// Double click, type, and a click beside it.
void Person::typeHeader(const QStringList& lines)
{
    press("alt+v Up Return"); // the plot window is the active one
    const QRgb ground = m_display.screen().pixel(990, 10) | 0xFF000000U; // of bars and tools
    const auto isEditing = [ground](const QImage& screen) {
        constexpr int leastBar = 1000; // pixels
        return count(screen, plotArea, ground) > leastBar;
    };
    m_hands.doubleClick(headerPlace(m_display.screen()));
    ASSERT_TRUE(m_display.waitForScreen(isEditing));
    for (const QString& line : lines) {
        if (&line != &lines.front())
            press("Return");
        m_hands.type(line);
    }
    m_hands.click(onCanvas);
    EXPECT_TRUE(m_display.waitForScreen(std::not_fn(isEditing)));
    m_hands.point(aside);
}

/// The second, third and fourth mode of the selected evolution, from the pop-up of the tree.
void Person::selectModes()
{
    inDialog("Menu Down Down Return", "^Select Multiple Modes$",
             [this] { press("Down shift+Down shift+Down Tab space Return"); });
}

void Person::setLargestSpeed(const QString& speed)
{
    inDialog("alt+v Right Return", "^Plot Properties$", [&] {
        press("Tab ctrl+a");
        m_hands.type(speed);
        press("Return");
    });
}

/// Whether a program ends without a question.
void quit(Person& person, Program& program)
{
    person.press("ctrl+q");
    EXPECT_EQ(program.exitStatus(), 0) << (person.isAsked() ? "it asked" : "");
}

} // namespace

TEST(RealSession, isThereAgainAfterARestart)
{
    const VirtualDisplay display;
    ASSERT_FALSE(display.name().isEmpty()) << "Xvfb did not start";
    const TemporaryFolder folder;
    const QString file = QString::fromStdString(folder.file("two stores.tsw"));
    QImage first;
    QImage second;
    {
        Program program(display, {});
        Person person(display);
        person.addEvolution("goland_clean_m040.ev2");
        person.addEvolution("goland_tipstore_m050.ev2");
        person.goToExplorer();
        person.press("Home Down Down Down space Down space");
        person.pushButton(selectButton, plotArea);
        EXPECT_TRUE(person.waitForColor(blue));
        person.selectModes();
        EXPECT_TRUE(person.waitForColor(cyan));
        person.typeHeader({QStringLiteral("Goland wing; two stores"), QStringLiteral("as built")});
        person.setLargestSpeed(QStringLiteral("450"));

        person.pushButton(addPlotButton, treeArea);
        person.goToExplorer();
        person.press("End F2 ctrl+a");
        person.type("Second");
        person.press("Return");
        person.plotWith(blue, false);
        person.pushButton(selectButton, plotArea);
        EXPECT_TRUE(person.waitForColor(blue));
        person.goToExplorer();
        person.press("End Up Return");
        first = person.plotWith(cyan);
        person.press("Down Return");
        second = person.plotWith(cyan, false);
        person.nameFile("ctrl+s", "^Save", file);
        EXPECT_TRUE(waitUntil([&file] { return QFile::exists(file); }));
        quit(person, program);
    }
    EXPECT_NE(first, second);
    const std::string saved = fileBytes(file.toStdString());
    EXPECT_NE(saved.find("NoOfSeries=5\r\n"), std::string::npos) << saved;
    EXPECT_NE(saved.find("Caption=Second\r\n"), std::string::npos) << saved;
    EXPECT_NE(saved.find("Goland wing; two stores\\par"), std::string::npos) << saved;

    for (const bool isOnCommandLine : {true, false}) {
        SCOPED_TRACE(isOnCommandLine ? "from the command line" : "from the File menu");
        Program program(display, isOnCommandLine ? QStringList {file} : QStringList());
        Person person(display);
        if (!isOnCommandLine)
            person.nameFile("alt+v Left o", "^Open$", file);
        EXPECT_TRUE(person.seesPlot(first));
        person.goToExplorer();
        person.press("End Return");
        EXPECT_TRUE(person.seesPlot(second));
        quit(person, program);
    }
}

} // namespace tarsil::test
