// SPDX-License-Identifier: Apache-2.0
#include "emf/DeviceContextContract.h"
#include "emf/MetafileSurface.h"
#include "support/RecordingContext.h"
#include "surface/Picture.h"
#include "surface/SvgSurface.h"

namespace tarsil::test {

namespace {

class Record
{
public:
    RecordingContext& context() { return m_context; }
    QRect ink() const { return m_context.ink(); }

private:
    RecordingContext m_context;
};

} // namespace

INSTANTIATE_TYPED_TEST_SUITE_P(Metafile, DeviceContextContract, MetafileSurface);
INSTANTIATE_TYPED_TEST_SUITE_P(Painter, DeviceContextContract, Picture);
INSTANTIATE_TYPED_TEST_SUITE_P(Recording, DeviceContextContract, Record);
INSTANTIATE_TYPED_TEST_SUITE_P(Svg, DeviceContextContract, SvgSurface);

TEST(RecordingContext, writesDownEachCall)
{
    RecordingContext context;
    context.setOrigin({1, 2});
    context.setClip({3, 4, 5, 6});
    context.drawLine({0, 1}, {2, 3}, {penstyle::dashDotDot, 2, rgb(1, 2, 255)});
    context.drawText({7, 8}, QStringLiteral("two words"), {QStringLiteral("Arial"), 9, true}, 0,
                     TextAlignment::BottomCenter);
    context.fillRectangle({0, 0, 9, 8}, rgb(255, 255, 255));
    context.clearClip();
    const std::vector<std::string> expected = {
        "origin 1,2",
        "clip 3,4 5x6",
        "line 0,1 2,3 dash-dot-dot 2 #0102ff",
        "text BottomCenter 7,8 Arial 9 bold #000000 two words",
        "fill 0,0 9x8 #ffffff",
        "clip none"};
    EXPECT_EQ(context.calls(), expected);
}

} // namespace tarsil::test
