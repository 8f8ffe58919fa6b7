// SPDX-License-Identifier: Apache-2.0

// Texts are readable on light and on dark desktops, and every window fits on a small screen.

#include "app/EveryWindow.h"
#include "app/HintColor.h"
#include "support/Contrast.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QLineEdit>
#include <QStyle>
#include <QStyleFactory>
#include <QTextBlock>
#include <QTextBrowser>

#include <gmock/gmock.h>

#include <array>

using namespace tarsil;
using test::describe;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::SizeIs;

namespace {

constexpr double leastContrast = 4.5; // WCAG 2.1, success criterion 1.4.3

/// A small screen, and one of 1536 x 1024 pixels at a scale of 150 %.
constexpr std::array<QSize, 2> smallScreens = {QSize(1024, 700), QSize(1024, 682)};

QPalette lightDesktop()
{
    return QApplication::style()->standardPalette();
}

/// The colours of Breeze Dark. Like those of some desktops they have none for hints, which are
/// black then.
QPalette darkDesktop()
{
    const QColor text(0xfc, 0xfc, 0xfc);
    QPalette palette(QColor(0x31, 0x36, 0x3b), QColor(0x2a, 0x2e, 0x32));
    palette.setColor(QPalette::Base, QColor(0x1b, 0x1e, 0x20));
    palette.setColor(QPalette::AlternateBase, QColor(0x23, 0x26, 0x29));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText,
                            QPalette::BrightText, QPalette::HighlightedText})
        palette.setColor(role, text);
    palette.setColor(QPalette::Highlight, QColor(0x2a, 0x6e, 0x9c));
    palette.setColor(QPalette::Link, QColor(0x1d, 0x99, 0xf3));
    palette.setColor(QPalette::PlaceholderText, Qt::black);
    return palette;
}

QString nameOfDesktop(bool isDark)
{
    return isDark ? QStringLiteral("Dark") : QStringLiteral("Light");
}

/// The colours of a desktop, before the first window is made.
class WithDesktop : public ::testing::WithParamInterface<bool>
{
protected:
    WithDesktop()
    {
        QApplication::setPalette(GetParam() ? darkDesktop() : lightDesktop());
        makeHintsReadable();
    }

public:
    ~WithDesktop() override { QApplication::setPalette(QPalette()); }
};

/// Text that a person reads, and its ground.
struct ShownText
{
    std::string name;
    QColor ink;
    QColor ground;
};

/// What a widget is painted on.
QColor groundOf(const QWidget& widget)
{
    const QWidget* filled = &widget;
    while (!filled->isWindow() && !filled->autoFillBackground())
        filled = filled->parentWidget();
    return filled->palette().color(filled->backgroundRole());
}

void addCells(const QAbstractItemView& view, const QModelIndex& parent, const std::string& name,
              std::vector<ShownText>& texts)
{
    const QAbstractItemModel& model = *view.model();
    const auto colorOf = [&view](const QVariant& brush, QPalette::ColorRole usual) {
        return brush.isNull() ? view.palette().color(usual) : brush.value<QBrush>().color();
    };
    for (int row = 0; row < model.rowCount(parent); ++row) {
        for (int column = 0; column < model.columnCount(parent); ++column) {
            const QModelIndex cell = model.index(row, column, parent);
            texts.push_back({name + " cell \"" + cell.data().toString().toStdString() + "\"",
                             colorOf(cell.data(Qt::ForegroundRole), QPalette::Text),
                             colorOf(cell.data(Qt::BackgroundRole), QPalette::Base)});
        }
        addCells(view, model.index(row, 0, parent), name, texts);
    }
}

void addFragments(const QTextBrowser& browser, const std::string& name,
                  std::vector<ShownText>& texts)
{
    const QPalette& palette = browser.palette();
    for (QTextBlock block = browser.document()->begin(); block.isValid(); block = block.next()) {
        for (auto part = block.begin(); !part.atEnd(); ++part) {
            const QTextCharFormat format = part.fragment().charFormat();
            const bool isColored = format.foreground().style() != Qt::NoBrush;
            const bool hasGround = format.background().style() != Qt::NoBrush;
            texts.push_back(
                {name + " text \"" + part.fragment().text().left(20).toStdString() + "\"",
                 isColored ? format.foreground().color() : palette.color(QPalette::Text),
                 hasGround ? format.background().color() : palette.color(QPalette::Base)});
        }
    }
}

/// Buttons of the status bar that are off look as if they could not be used.
bool isOffOnPurpose(const QWidget& widget)
{
    return widget.objectName().startsWith(u"stBar_") && widget.inherits("QToolButton")
        && !static_cast<const QAbstractButton&>(widget).isChecked();
}

void addTexts(const QWidget& window, const QWidget& widget, std::vector<ShownText>& texts)
{
    const std::string name = describe(window, widget);
    const QPalette& palette = widget.palette();
    if (const auto* const view = qobject_cast<const QAbstractItemView*>(&widget)) {
        if (view->model() != nullptr)
            addCells(*view, {}, name, texts);
    } else if (const auto* const browser = qobject_cast<const QTextBrowser*>(&widget)) {
        addFragments(*browser, name, texts);
    } else if (widget.inherits("QLabel")) {
        texts.push_back({name, palette.color(widget.foregroundRole()), groundOf(widget)});
    } else if (widget.inherits("QPushButton") || widget.inherits("QToolButton")) {
        texts.push_back(
            {name, palette.color(QPalette::ButtonText), palette.color(QPalette::Button)});
    } else if (const auto* const input = qobject_cast<const QLineEdit*>(&widget);
               input != nullptr && input->text().isEmpty()) {
        texts.push_back(
            {name, palette.color(QPalette::PlaceholderText), palette.color(QPalette::Base)});
    } else if (widget.inherits("QLineEdit") || widget.inherits("QTextEdit")) {
        texts.push_back({name, palette.color(QPalette::Text), palette.color(QPalette::Base)});
    }
}

std::vector<std::string> unreadableIn(const QWidget& window)
{
    std::vector<ShownText> texts;
    for (const auto* const widget : window.findChildren<QWidget*>()) {
        if (widget->isVisible() && widget->isEnabled() && !isOffOnPurpose(*widget))
            addTexts(window, *widget, texts);
    }
    std::vector<std::string> unreadable;
    for (const ShownText& text : texts) {
        if (test::contrast(text.ink, text.ground) < leastContrast)
            unreadable.push_back(text.name + ": " + text.ink.name().toStdString() + " on "
                                 + text.ground.name().toStdString());
    }
    return unreadable;
}

class Desktops : public WithDesktop, public test::EveryWindow
{ };

class SmallScreen : public test::EveryWindow, public ::testing::WithParamInterface<QSize>
{ };

/// Notes are shortened where there is no room, and show the whole text in their tool tip.
bool isShortenedOnPurpose(const QWidget& widget)
{
    return widget.objectName() == QStringLiteral("stBar_Note")
        || widget.objectName() == QStringLiteral("stBar_PlotNote");
}

/// Whether a label, a button or an input of a dialog is smaller than its text needs.
bool isCut(const QWidget& widget)
{
    if (const auto* const input = qobject_cast<const QLineEdit*>(&widget)) {
        constexpr int leastMargin = 2;
        return input->fontMetrics().horizontalAdvance(input->text()) + 2 * leastMargin
            > input->width();
    }
    const auto* const label = qobject_cast<const QLabel*>(&widget);
    if (label != nullptr && label->wordWrap())
        return widget.height() < label->heightForWidth(widget.width());
    return widget.width() < widget.sizeHint().width()
        || widget.height() < widget.sizeHint().height();
}

std::vector<std::string> cutIn(const QWidget& window)
{
    std::vector<std::string> cut;
    for (const auto* const widget : window.findChildren<QWidget*>()) {
        const bool isInput = widget->inherits("QLineEdit") && window.inherits("QDialog");
        const bool hasText =
            widget->inherits("QLabel") || widget->inherits("QAbstractButton") || isInput;
        if (hasText && widget->isVisible() && !test::isPartOfToolkit(*widget)
            && !isShortenedOnPurpose(*widget) && isCut(*widget))
            cut.push_back(describe(window, *widget));
    }
    return cut;
}

std::string sizeText(QSize size)
{
    return std::to_string(size.width()) + "x" + std::to_string(size.height());
}

} // namespace

TEST_P(Desktops, showReadableTexts)
{
    plot().rows().setMode(plot().rows().at(0).id, 99); // a row with a warning
    visit([](QWidget& shown) { EXPECT_THAT(unreadableIn(shown), ElementsAre()); });
}

INSTANTIATE_TEST_SUITE_P(Looks, Desktops, ::testing::Bool(), [](const auto& tested) {
    return nameOfDesktop(tested.param).toStdString();
});

TEST_P(SmallScreen, showsEveryWindowWhole)
{
    const QSize smallScreen = GetParam();
    window.resize(smallScreen);
    visit([smallScreen](QWidget& shown) {
        const QSize least = shown.minimumSizeHint().expandedTo(shown.minimumSize());
        EXPECT_EQ(least.boundedTo(smallScreen), least)
            << shown.objectName().toStdString() << " needs " << sizeText(least);
        if (shown.isWindow())
            shown.resize(shown.size().boundedTo(smallScreen));
        QApplication::processEvents();
        EXPECT_THAT(cutIn(shown), ElementsAre());
    });
}

INSTANTIATE_TEST_SUITE_P(Looks, SmallScreen, ::testing::ValuesIn(smallScreens),
                         [](const auto& tested) { return sizeText(tested.param); });

TEST(LooksCheck, findsPlantedFaults)
{
    QWidget window;
    QLabel label(QStringLiteral("far too long for its place"), &window);
    QPalette grey;
    grey.setColor(QPalette::WindowText, window.palette().color(QPalette::Window).darker(110));
    label.setPalette(grey);
    label.setFixedSize(20, 20);
    window.show();
    EXPECT_THAT(unreadableIn(window), ElementsAre(HasSubstr("QLabel")));
    EXPECT_THAT(cutIn(window), SizeIs(1));
}
