#include "plot/ClippingContext.h"

#include <gtest/gtest.h>

#include <vector>

using namespace tarsil;

namespace {

/// Remembers what is drawn; every character is 6 wide and 10 high, 8 above the baseline.
class RecordingContext : public DeviceContext
{
public:
    void drawLine(QPoint from, QPoint to, const Pen&) override
    {
        lines.push_back(QRect(from + m_origin, to + m_origin));
    }
    void drawText(QPoint, const QString& text, const Font&, ColorValue, TextAlignment) override
    {
        texts += text;
    }
    QSize textExtent(const QString& text, const Font&) const override
    {
        return {static_cast<int>(6 * text.size()), 10};
    }
    int textAscent(const Font&) const override { return 8; }
    void fillRectangle(const QRect& rectangle, ColorValue) override
    {
        fills.push_back(rectangle.translated(m_origin));
    }
    void setClip(const QRect&) override { ADD_FAILURE() << "a clip reached the surface"; }
    void clearClip() override { }
    void setOrigin(QPoint origin) override { m_origin = origin; }

    std::vector<QRect> lines; ///< in pixels of the surface, from top left to bottom right
    std::vector<QRect> fills;
    QString texts;

private:
    QPoint m_origin;
};

class Clipping : public ::testing::Test
{
protected:
    Clipping()
    {
        context.setOrigin({100, 50});
        context.setClip(QRect(100, 50, 11, 11)); // (0, 0) to (10, 10) of the calls
    }

    RecordingContext surface;
    ClippingContext context {surface};
};

QRect line(int x0, int y0, int x1, int y1)
{
    return {QPoint(x0, y0), QPoint(x1, y1)};
}

} // namespace

TEST_F(Clipping, cutsLinesAtTheBorder)
{
    context.drawLine({2, 2}, {8, 8}, {}); // inside
    context.drawLine({5, 5}, {5, 40}, {}); // leaves at the bottom
    context.drawLine({-5, -5}, {20, 20}, {}); // through both corners
    context.drawLine({-5, 0}, {5, 10}, {}); // enters at the left
    const std::vector<QRect> expected = {line(102, 52, 108, 58), line(105, 55, 105, 60),
                                         line(100, 50, 110, 60), line(100, 55, 105, 60)};
    EXPECT_EQ(surface.lines, expected);
}

TEST_F(Clipping, leavesOutLinesBeyondTheBorder)
{
    context.drawLine({20, 0}, {20, 10}, {});
    context.drawLine({-5, 5}, {-1, 8}, {});
    context.drawLine({-6, 5}, {5, -6}, {}); // past the corner
    context.drawLine({0, 11}, {10, 11}, {});
    EXPECT_TRUE(surface.lines.empty());
}

TEST_F(Clipping, drawsEverythingWithoutAClip)
{
    context.clearClip();
    context.drawLine({-5, -5}, {20, 20}, {});
    context.drawText({-50, 0}, QStringLiteral("a"), {}, 0, TextAlignment::TopLeft);
    context.fillRectangle(QRect(-5, -5, 100, 100), 0);
    EXPECT_EQ(surface.lines.size(), 1U);
    EXPECT_EQ(surface.texts, QStringLiteral("a"));
    EXPECT_EQ(surface.fills.front(), QRect(95, 45, 100, 100));
}

TEST_F(Clipping, cutsRectangles)
{
    context.fillRectangle(QRect(5, 5, 100, 100), 0);
    context.fillRectangle(QRect(50, 50, 10, 10), 0);
    ASSERT_EQ(surface.fills.size(), 1U);
    EXPECT_EQ(surface.fills.front(), QRect(105, 55, 6, 6));
}

TEST_F(Clipping, keepsTextsThatReachIn)
{
    const auto draw = [this](const char* text, QPoint place, TextAlignment alignment) {
        context.drawText(place, QString::fromUtf8(text), {}, 0, alignment);
    };
    draw("a", {10, 10}, TextAlignment::TopLeft);
    draw("B", {11, 11}, TextAlignment::TopLeft); // begins beyond the corner
    draw("c", {12, 0}, TextAlignment::TopRight);
    draw("D", {0, 0}, TextAlignment::TopRight); // ends before the border
    draw("e", {-2, 0}, TextAlignment::TopCenter);
    draw("f", {5, 12}, TextAlignment::BottomCenter);
    draw("G", {5, 40}, TextAlignment::BottomCenter);
    draw("h", {5, 18}, TextAlignment::BaselineLeft);
    draw("I", {5, -3}, TextAlignment::BaselineLeft);
    EXPECT_EQ(surface.texts, QStringLiteral("acefh"));
}
