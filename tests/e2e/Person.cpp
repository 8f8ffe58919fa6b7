// SPDX-License-Identifier: Apache-2.0
#include "Person.h"

#include <algorithm>
#include <vector>

namespace tarsil::test {

namespace {

const QString mainWindow = QStringLiteral("Tarsil 4\\.0$");
constexpr const char* tree = "tvwEvolExplorer";
constexpr const char* grid = "flxSerieViewer";
constexpr int enoughLooks = 5; // consecutive equal screenshots
constexpr int wheelDown = 5; // button numbers
constexpr int wheelUp = 4;
constexpr int rightButton = 3;

QString textOf(const char* text)
{
    return QString::fromUtf8(text);
}

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

/// The middle of the first line of text on the plot, which is the header.
QPoint headerPosition(const QImage& screen, const QRect& plot)
{
    constexpr int width = 80;
    const int left = plot.center().x() - width;
    const auto isWhite = [&](int row) {
        return count(screen, {left, row, width, 1}, qRgb(255, 255, 255)) == width;
    };
    int row = plot.top();
    while (row < plot.bottom() && !isWhite(row))
        ++row;
    while (row < plot.bottom() && isWhite(row))
        ++row;
    constexpr int halfLine = 6;
    return {left + width / 2, row + halfLine};
}

} // namespace

Person::Person(const VirtualDisplay& display, const Program& program)
    : m_display(display), m_program(program), m_hands(display.name())
{
    if (display.name().isEmpty())
        throw StepFailed(QStringLiteral("Xvfb did not start"));
    if (!m_hands.focusNew(mainWindow))
        throw StepFailed(QStringLiteral("the main window does not appear"));
    leave();
}

/// Waits until something is on the screen.
QRect Person::find(const QStringList& request) const
{
    QRect found;
    waitUntil([&] {
        found = m_program.find(request);
        return !found.isEmpty();
    });
    if (found.isEmpty())
        throw StepFailed(QStringLiteral("not on the screen: ") + request.join(u' '));
    return found;
}

/// Turns the wheel over a view until an entry is visible.
QRect Person::findByScrolling(const char* view, const QStringList& request) const
{
    constexpr int turns = 20;
    QRect found = m_program.find(request);
    for (const int button : {wheelDown, wheelUp}) {
        for (int turn = 0; turn < turns && found.isEmpty(); ++turn) {
            m_hands.click(area(view).center(), button);
            found = m_program.find(request);
        }
    }
    return find(request);
}

QRect Person::area(const char* widget) const
{
    return find({QStringLiteral("widget"), textOf(widget)});
}

QRect Person::cell(int row, int column) const
{
    return find(
        {QStringLiteral("cell"), textOf(grid), QString::number(row), QString::number(column)});
}

/// Moves the pointer to the status bar, which no picture shows.
void Person::leave() const
{
    m_hands.point(area("stBar").center());
}

void Person::press(const char* keys) const
{
    m_hands.press(QString::fromLatin1(keys).split(u' '));
}

void Person::clickAt(QPoint position, int button) const
{
    m_hands.click(position, button);
}

void Person::clickOn(const char* widget) const
{
    clickAt(area(widget).center());
}

void Person::fill(const char* field, const QString& text) const
{
    clickOn(field);
    press("ctrl+a");
    type(text);
}

/// The keys search the open list.
void Person::chooseIn(const char* list, const QString& entry) const
{
    clickOn(list);
    type(entry);
    press("Return");
}

void Person::select(const char* view, const QString& entry) const
{
    clickAt(findByScrolling(view, {QStringLiteral("item"), textOf(view), entry}).center());
}

void Person::tick(const QString& entry) const
{
    select(tree, entry);
    press("space");
}

void Person::choose(const char* menu, const char* command) const
{
    clickAt(find({QStringLiteral("action"), textOf(menu)}).center());
    clickAt(find({QStringLiteral("action"), textOf(command)}).center());
}

void Person::goToExplorer() const
{
    choose("mnuView", "mnuModalEvolExplorer");
    leave();
}

void Person::chooseFor(const QString& entry, const char* command) const
{
    const QRect node = findByScrolling(tree, {QStringLiteral("item"), textOf(tree), entry});
    clickAt(node.center(), rightButton);
    clickAt(find({QStringLiteral("action"), textOf(command)}).center());
}

/// The program must have noticed the focus: until then the same names are found in another window.
void Person::goTo(const QString& title)
{
    if (!m_hands.focusNew(title))
        throw StepFailed(title + QStringLiteral(" does not open"));
    find({QStringLiteral("window"), title});
}

void Person::inDialog(const std::function<void()>& open, const char* title,
                      const std::function<void()>& action)
{
    open();
    goTo(textOf(title));
    action();
    if (!waitUntil([&] { return !m_hands.isShown(textOf(title)); }))
        throw StepFailed(textOf(title) + QStringLiteral(" does not close"));
    if (!m_hands.focus(mainWindow))
        throw StepFailed(QStringLiteral("no main window"));
}

/// Waits until the box is closed, because the window below does not accept input before.
void Person::inBox(const std::function<void()>& action)
{
    const QString title = QStringLiteral("^Tarsil$");
    goTo(title);
    action();
    if (!waitUntil([&] { return !m_hands.isNewShown(title); }))
        throw StepFailed(QStringLiteral("the box does not close"));
}

void Person::answer(const char* button)
{
    inBox([&] { clickOn(button); });
}

void Person::answerWith(const QString& text)
{
    inBox([&] {
        type(text);
        clickOn("OK");
    });
}

bool Person::closesBoxOf(const char* dialog)
{
    answer("OK");
    return waitUntil([&] { return m_hands.isFocused(textOf(dialog)); });
}

void Person::nameFile(const std::function<void()>& open, const char* title, const QString& path)
{
    inDialog(open, title, [&] {
        fill("fileNameEdit", path);
        press("Return");
    });
}

void Person::addEvolution(const char* name)
{
    nameFile([this] { choose("FileMenu", "AddMenu"); }, "^Open$",
             QString::fromStdString(sample(name)));
    find({QStringLiteral("item"), textOf(tree), textOf(name)});
}

void Person::addPlot(const QString& caption)
{
    clickOn("AddPlot");
    select(tree, QStringLiteral("Plot2"));
    press("F2 ctrl+a");
    type(caption);
    press("Return");
}

void Person::activatePlot(const QString& caption) const
{
    select(tree, caption);
    press("Return");
}

void Person::typeHeader(const QStringList& lines)
{
    choose("mnuView", "mnuVgfPlot");
    const QRect area = plot();
    const QRgb ground = m_display.screen().pixel(this->area("stBar").center()) | 0xFF000000U;
    const auto isEditing = [ground, area](const QImage& screen) {
        constexpr int leastBar = 1000; // pixels
        return count(screen, area, ground) > leastBar;
    };
    m_hands.doubleClick(headerPosition(m_display.screen(), area));
    if (!m_display.waitForScreen(isEditing))
        throw StepFailed(QStringLiteral("the header is not edited"));
    for (const QString& line : lines) {
        if (&line != &lines.front())
            press("Return");
        type(line);
    }
    clickAt(area.center() + QPoint(0, area.height() / 8));
    if (!m_display.waitForScreen(std::not_fn(isEditing)))
        throw StepFailed(QStringLiteral("the header is still edited"));
    leave();
}

void Person::selectModes(const QString& evolution)
{
    inDialog([&] { chooseFor(evolution, "popSelMultModes"); }, "^Select Multiple Modes$",
             [this] {
                 for (const char* mode : {"2", "3", "4"}) {
                     select("lst_AllModes", textOf(mode));
                     clickOn("cmd_Add");
                 }
                 clickOn("cmd_Ok");
             });
}

void Person::setLargestSpeed(const QString& speed)
{
    inDialog([this] { choose("mnuFormat", "mnuSetScale"); }, "^Plot Properties$",
             [&] {
                 fill("inpVmax", speed);
                 clickOn("OKButton");
             });
}

/// Performs an action and waits for a change in a rectangle.
void Person::changes(const QRect& rectangle, const std::function<void()>& action) const
{
    leave();
    const QImage before = look(rectangle);
    action();
    leave();
    if (!seesChange(rectangle, before))
        throw StepFailed(QStringLiteral("nothing changes"));
}

void Person::drawTicked()
{
    changes(plot(), [this] { clickOn("Select"); });
}

QPoint Person::inPlot(QPointF part) const
{
    const QRect area = plot();
    return area.topLeft() + QPointF(part.x() * area.width(), part.y() * area.height()).toPoint();
}

void Person::dragInPlot(QPointF from, QPointF to, int button) const
{
    changes(plot(), [&] { m_hands.drag(inPlot(from), inPlot(to), button); });
}

void Person::turnWheel(QPointF position) const
{
    constexpr int wheelUp = 4;
    changes(plot(), [&] { m_hands.click(inPlot(position), wheelUp); });
}

void Person::doubleClickInPlot(QPointF position) const
{
    m_hands.doubleClick(inPlot(position));
}

QPoint Person::pixelOf(QRgb color) const
{
    const QRect area = plot();
    const QImage picture = look(area);
    for (int row = area.height() / 6; row < area.height(); ++row) {
        for (int column = area.width() / 5; column < picture.width(); ++column) {
            if (picture.pixel(column, row) == color)
                return area.topLeft() + QPoint(column, row);
        }
    }
    throw StepFailed(QStringLiteral("no curve of this colour"));
}

void Person::chooseAt(QPoint position, const char* command) const
{
    clickAt(position, rightButton);
    clickAt(find({QStringLiteral("action"), textOf(command)}).center());
}

void Person::dragRow(int row, int below)
{
    changes(area(grid), [&] {
        const QRect target = cell(below, 0);
        m_hands.drag(cell(row, 0).center(), {target.center().x(), target.bottom() - 1});
    });
}

bool Person::waitForColor(QRgb color) const
{
    const QRect area = plot();
    return m_display.waitForScreen(
        [color, area](const QImage& screen) { return count(screen, area, color) > 0; });
}

QImage Person::plotWith(QRgb color, bool isThere) const
{
    int looks = 0;
    QImage picture;
    const QRect area = plot();
    const bool isSeen = m_display.waitForScreen([&](const QImage& screen) {
        const QImage now = screen.copy(area);
        looks = now == picture && (count(screen, area, color) > 0) == isThere ? looks + 1 : 0;
        picture = now;
        return looks == enoughLooks;
    });
    if (!isSeen)
        throw StepFailed(QStringLiteral("the plot does not come to rest"));
    return picture;
}

bool Person::seesPlot(const QImage& picture) const
{
    return waitFor(plot(), [&picture](const QImage& now) { return now == picture; });
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
