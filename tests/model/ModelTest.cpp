#include "ModelFixtures.h"

#include "model/MdlMix.h"
#include "model/Session.h"

#include "support/TestFiles.h"

#include <gtest/gtest.h>

namespace tarsil {

namespace {

using test::errorOf;
using test::ev2Header;
using test::ev2Row;
using test::readEv2Text;

void readTwoModes(EVM& evolution)
{
    readEv2Text(ev2Header("Airplane=GOLAND\nAeroel_modes=2\nNo_of_speeds=2\n") + ev2Row(21)
                    + ev2Row(21) + "5|1|2|3|4|5|6|7\n",
                evolution);
    evolution.Modes[0]->Tag = "B1";
}

void expectSameValues(const AeMode& a, const AeMode& b)
{
    EXPECT_EQ(a.Id, b.Id);
    EXPECT_EQ(a.Tag, b.Tag);
    ASSERT_EQ(a.Points.size(), b.Points.size());
    for (std::size_t i = 0; i < a.Points.size(); ++i) {
        EXPECT_NE(&a.Points[i], &b.Points[i]);
        EXPECT_EQ(a.Points[i].speed, b.Points[i].speed);
        EXPECT_EQ(a.Points[i].G, b.Points[i].G);
        EXPECT_EQ(a.Points[i].mpf.size(), b.Points[i].mpf.size());
    }
}

TEST(Point, copiesItsEightValuesFactorsAndParentOnClone)
{
    AeMode mode;
    Point source;
    source.kfreq = 1;
    source.re = 2;
    source.im = 3;
    source.speed = 4;
    source.G = 5;
    source.f = 6;
    source.spare1 = 7;
    source.spare2 = 8;
    source.mpf.append(0.5F);
    source.mpf.append(0.25F);
    source.Parent = &mode;
    Point copy;
    copy.mpf.append(9);
    copy.Clone(source);
    EXPECT_EQ(copy.kfreq, 1);
    EXPECT_EQ(copy.re, 2);
    EXPECT_EQ(copy.im, 3);
    EXPECT_EQ(copy.speed, 4);
    EXPECT_EQ(copy.G, 5);
    EXPECT_EQ(copy.f, 6);
    EXPECT_EQ(copy.spare1, 7);
    EXPECT_EQ(copy.spare2, 8);
    ASSERT_EQ(copy.mpf.size(), 2U);
    EXPECT_EQ(copy.mpf[0], 0.5F);
    EXPECT_EQ(copy.mpf[1], 0.25F);
    EXPECT_EQ(copy.Parent, &mode);
    copy.Clone(copy);
    EXPECT_EQ(copy.mpf.size(), 2U);
}

TEST(Point, holdsFiveFactorsAtMost)
{
    Point point;
    for (int i = 0; i < 5; ++i)
        point.mpf.append(static_cast<float>(i));
    const auto error = errorOf([&] { point.mpf.append(5); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->number(), ErrorNumber::SubscriptOutOfRange);
}

TEST(Point, costsSixtyFourBytes)
{
    EXPECT_EQ(sizeof(Point), 64U);
}

TEST(EVM, sharesNoPointAfterChange)
{
    EVM source;
    readTwoModes(source);
    EVM changed;
    changed.FileName = "kept.evm";
    changed.Param.Airplane = "kept";
    changed.Change(source);
    EXPECT_EQ(changed.FileName, "kept.evm");
    EXPECT_EQ(changed.Param.Airplane, "kept");
    EXPECT_EQ(changed.numberOfSpeeds, 2);
    EXPECT_EQ(changed.na, 2);
    EXPECT_TRUE(changed.isNewFormat);
    ASSERT_EQ(changed.Modes.size(), 2U);
    for (std::size_t i = 0; i < 2; ++i) {
        expectSameValues(*changed.Modes[i], *source.Modes[i]);
        EXPECT_EQ(changed.Modes[i]->Parent, &changed);
        for (const Point& point : changed.Modes[i]->Points)
            EXPECT_EQ(point.Parent, changed.Modes[i].get());
    }
    changed.Modes[0]->Points[0].G = 99;
    EXPECT_EQ(source.Modes[0]->Points[0].G, 6.0F);
}

TEST(EVM, mayChangeToItself)
{
    EVM evolution;
    readTwoModes(evolution);
    evolution.Change(evolution);
    ASSERT_EQ(evolution.Modes.size(), 2U);
    EXPECT_EQ(evolution.Modes[0]->Points[1].mpf.size(), 5U);
    EXPECT_EQ(evolution.Param.Airplane, "GOLAND");
}

TEST(MdlMix, gathersIndependentCopiesInTheirOrder)
{
    EVM source;
    readTwoModes(source);
    const auto mixed =
        mdlMix::gather({source.Modes[1].get(), source.Modes[0].get(), source.Modes[1].get()});
    EXPECT_EQ(mixed->na, 3);
    EXPECT_EQ(mixed->numberOfSpeeds, 2); // the longest mode's points
    ASSERT_EQ(mixed->Modes.size(), 3U);
    expectSameValues(*mixed->Modes[0], *source.Modes[1]);
    expectSameValues(*mixed->Modes[1], *source.Modes[0]);
    expectSameValues(*mixed->Modes[2], *source.Modes[1]);
    EXPECT_EQ(mixed->Modes[0]->Parent, mixed.get());
}

TEST(MdlMix, gathersNothing)
{
    EXPECT_TRUE(mdlMix::gather({})->Modes.empty());
}

TEST(Session, opensFilesInOrder)
{
    const test::TemporaryFolder folder;
    Session session;
    session.open(folder.write("a b.ev2", ev2Header("") + ev2Row(8)));
    EXPECT_TRUE(errorOf([&] { session.open(folder.file("missing.ev2")); }));
    session.open(folder.write("c.ev2", ev2Header("") + ev2Row(8)));
    ASSERT_EQ(session.evolutions.size(), 2U);
    EXPECT_EQ(session.evolutions[0]->FileName, "a b.ev2");
    EXPECT_EQ(session.evolutions[1]->FileName, "c.ev2");
}

} // namespace

} // namespace tarsil
