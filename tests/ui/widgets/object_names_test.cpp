#include "ui/widgets/object_names.h"

#include <gtest/gtest.h>

namespace quillon::ui {
namespace {

using engine::SystemId;

TEST(ObjectNames, AnIndexStandsInParentheses)
{
    EXPECT_EQ(IndexedName(QStringLiteral("vsOutputPower"), 3), QStringLiteral("vsOutputPower(3)"));
}

TEST(ObjectNames, SystemsCountFromOne)
{
    EXPECT_EQ(NameFor(QStringLiteral("txtFrequency"), SystemId::One), QStringLiteral("txtFrequency(1)"));
    EXPECT_EQ(NameFor(QStringLiteral("txtFrequency"), SystemId::Two), QStringLiteral("txtFrequency(2)"));
}

TEST(ObjectNames, SomeControlsSpellTheirSystemOut)
{
    EXPECT_EQ(SpelledName(QStringLiteral("cboSystem%1Coax"), SystemId::One), QStringLiteral("cboSystemOneCoax"));
    EXPECT_EQ(SpelledName(QStringLiteral("cboSystem%1Coax"), SystemId::Two), QStringLiteral("cboSystemTwoCoax"));
}

TEST(ObjectNames, PairedControlsCountFromZeroThroughBothSystems)
{
    EXPECT_EQ(PairIndex(SystemId::One, 0), 0);
    EXPECT_EQ(PairIndex(SystemId::One, 1), 1);
    EXPECT_EQ(PairIndex(SystemId::Two, 0), 2);
    EXPECT_EQ(PairIndex(SystemId::Two, 1), 3);
}

} // namespace
} // namespace quillon::ui
