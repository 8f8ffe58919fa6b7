// SPDX-License-Identifier: Apache-2.0
#include "support/Ink.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace tarsil::test {

namespace {

/// The difference of a colour from white, in red, green and blue.
struct InkColor
{
    int red;
    int green;
    int blue;

    int strength() const { return std::max({red, green, blue}); }
};

InkColor inkAt(const QImage& image, int column, int row)
{
    const QRgb pixel = image.pixel(column, row);
    return {255 - qRed(pixel), 255 - qGreen(pixel), 255 - qBlue(pixel)};
}

/// Whether one colour could be a paler shade of the other: the directions agree.
bool isSameHue(const InkColor& a, const InkColor& b)
{
    const auto product = [](const InkColor& x, const InkColor& y) {
        return static_cast<double>(x.red * y.red + x.green * y.green + x.blue * y.blue);
    };
    return product(a, b) > 0.8 * std::sqrt(product(a, a) * product(b, b));
}

constexpr int strongInk = 110; ///< pixels that must be found in the other picture
constexpr int anyInk = 24; ///< pixels that count as found

bool hasInkNear(const QImage& image, QPoint position, int distance, const InkColor& wanted)
{
    const QRect around(position - QPoint(distance, distance),
                       position + QPoint(distance, distance));
    const QRect rectangle = around & image.rect();
    for (int row = rectangle.top(); row <= rectangle.bottom(); ++row) {
        for (int column = rectangle.left(); column <= rectangle.right(); ++column) {
            const InkColor ink = inkAt(image, column, row);
            if (ink.strength() >= anyInk && isSameHue(ink, wanted))
                return true;
        }
    }
    return false;
}

} // namespace

QRect inkBounds(const QImage& image)
{
    QRect bounds;
    for (int row = 0; row < image.height(); ++row) {
        for (int column = 0; column < image.width(); ++column) {
            if (inkAt(image, column, row).strength() >= strongInk)
                bounds |= QRect(column, row, 1, 1);
        }
    }
    return bounds;
}

double inkShare(const QImage& image, const QRect& area, const QImage& other, int distance)
{
    const QRect rectangle = area & image.rect();
    int inked = 0;
    int found = 0;
    for (int row = rectangle.top(); row <= rectangle.bottom(); ++row) {
        for (int column = rectangle.left(); column <= rectangle.right(); ++column) {
            const InkColor ink = inkAt(image, column, row);
            if (ink.strength() < strongInk)
                continue;
            ++inked;
            found += hasInkNear(other, {column, row}, distance, ink) ? 1 : 0;
        }
    }
    return inked == 0 ? 0 : static_cast<double>(found) / inked;
}

void expectSameInk(const QImage& a, const QImage& b, int distance, double share)
{
    ASSERT_EQ(a.size(), b.size());
    EXPECT_GE(inkShare(a, a.rect(), b, distance), share) << "of the first picture in the second";
    EXPECT_GE(inkShare(b, b.rect(), a, distance), share) << "of the second picture in the first";
}

} // namespace tarsil::test
