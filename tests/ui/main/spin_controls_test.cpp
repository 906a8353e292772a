#include "tests/support/row_name.h"
#include "tests/ui/main/window_fixture.h"

#include <QTest>

namespace quillon::ui {
namespace {

struct SpinRow
{
    const char* name;
    int lowest;
    int highest;
    int start;
    int arrow;
    int page;
};

class SpinTable : public WindowTest, public ::testing::WithParamInterface<SpinRow>
{
protected:
    void SetUp() override { Open(); }
};

TEST_P(SpinTable, HasItsRangeStartAndSteps)
{
    const auto& spin = Spin(GetParam().name);

    EXPECT_EQ(spin.minimum(), GetParam().lowest);
    EXPECT_EQ(spin.maximum(), GetParam().highest);
    EXPECT_EQ(spin.value(), GetParam().start);
    EXPECT_EQ(spin.singleStep(), GetParam().arrow);
    EXPECT_EQ(spin.pageStep(), GetParam().page);
}

TEST_P(SpinTable, GoesDownWithTheUpperArrowAndUpWithTheLowerOne)
{
    Find("FrameAntennaGain").show();
    Find("FrameCoaxLoss").show();
    auto& spin = Spin(GetParam().name);
    spin.setEnabled(true);
    const int middle = (GetParam().lowest + GetParam().highest) / 2;

    spin.setValue(middle);
    ClickUp(GetParam().name);
    EXPECT_EQ(spin.value(), middle - GetParam().arrow);

    spin.setValue(middle);
    ClickDown(GetParam().name);
    EXPECT_EQ(spin.value(), middle + GetParam().arrow);
}

TEST_P(SpinTable, MovesByItsPageStep)
{
    auto& spin = Spin(GetParam().name);
    spin.setEnabled(true);
    const int middle = (GetParam().lowest + GetParam().highest) / 2;

    spin.setValue(middle);
    QTest::keyClick(&spin, Qt::Key_PageUp);
    EXPECT_EQ(spin.value(), middle - GetParam().page);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Spins, SpinTable, ::testing::Values(
    SpinRow{"vsOutputPower(0)",            -10, 1499, 1400, 10, 10},
    SpinRow{"vsOutputPower(1)",            -10, 1499,    0, 10, 10},
    SpinRow{"vsOutputPower(2)",            -10, 1499, 1400, 10, 10},
    SpinRow{"vsOutputPower(3)",            -10, 1499,    0, 10, 10},
    SpinRow{"vsFrequency(1)",                0,   13,    8,  1,  1},
    SpinRow{"vsFrequency(2)",                0,   13,    8,  1,  1},
    SpinRow{"vsVSWR(0)",                     6,    8,    8,  1,  1},
    SpinRow{"vsVSWR(1)",                     1,   10,    9,  1,  1},
    SpinRow{"vsVSWR(2)",                     6,    8,    8,  1,  1},
    SpinRow{"vsVSWR(3)",                     1,   10,    9,  1,  1},
    SpinRow{"vsSystemOneCoaxLength",         1, 3500, 3400,  1, 10},
    SpinRow{"vsSystemTwoCoaxLength",         1, 3500, 3400,  1, 10},
    SpinRow{"vsSystemOneNumConnectors",      1,   25,   23,  1,  1},
    SpinRow{"vsSystemTwoNumConnectors",      1,   25,   23,  1,  1},
    SpinRow{"vsAntennaGain(0)",           -200,  100,   10, 10,  1},
    SpinRow{"vsAntennaGain(1)",           -200,  100,   10,  1,  1},
    SpinRow{"vsCoaxLoss",                    1, 1000,  999,  1,  1}), support::RowName());
// clang-format on

} // namespace
} // namespace quillon::ui
