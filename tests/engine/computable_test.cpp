#include "engine/computable.h"
#include "tests/support/row_name.h"

#include <gtest/gtest.h>

#include <limits>

namespace quillon::engine {
namespace {

constexpr float kLargest = std::numeric_limits<float>::max();

SystemData UsualInputs()
{
    SystemData data;
    data.AntennaGain = 5;
    data.CoaxLoss = 1.31F;
    data.CoaxLength = 200;
    data.Frequency = 14.25F;
    data.Connectors = 2;
    data.XmitPower = 100;
    data.VSWR = 1.1F;
    return data;
}

struct Row
{
    const char* name;
    float SystemData::*figure;
    float value;
    bool canCompute;
};

class Computable : public ::testing::TestWithParam<Row>
{
};

TEST_P(Computable, InputsOverflowNowhere)
{
    SystemData data = UsualInputs();
    data.*GetParam().figure = GetParam().value;
    EXPECT_EQ(CanCompute(data), GetParam().canCompute);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Figures, Computable, ::testing::Values(
    Row{"usual power", &SystemData::XmitPower, 1500, true},
    Row{"no power", &SystemData::XmitPower, 0, true},
    Row{"power that the antenna takes beyond 32 bits", &SystemData::XmitPower, kLargest, false},
    Row{"usual length", &SystemData::CoaxLength, 3499, true},
    Row{"length whose loss is off the table", &SystemData::CoaxLength, kLargest, true},
    Row{"loss times length beyond 32 bits", &SystemData::CoaxLoss, kLargest, false},
    Row{"standing-wave ratio off its table", &SystemData::VSWR, 50, true},
    Row{"gain off its table", &SystemData::AntennaGain, -30, true}), support::RowName());
// clang-format on

} // namespace
} // namespace quillon::engine
