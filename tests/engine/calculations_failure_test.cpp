// An operation that cannot complete leaves results and display as they were.

#include "tests/engine/calculations_fixture.h"

#include "engine/arithmetic_error.h"
#include "tests/support/row_name.h"

#include <limits>

namespace quillon::engine {
namespace {

constexpr float kLargest = std::numeric_limits<float>::max();
constexpr float kInfinite = std::numeric_limits<float>::infinity();
constexpr float kNoNumber = std::numeric_limits<float>::quiet_NaN();

struct Failure
{
    const char* name;
    void (*spoil)(SystemData& data, SystemResults& results);
    const char* heard; ///< beeps and search steps up to the failing step
};

class CalculationFailure : public CalculationsTest, public ::testing::WithParamInterface<Failure>
{
};

TEST_P(CalculationFailure, LeavesEverythingAsItWas)
{
    calculations.RefreshData(1);
    GetParam().spoil(One(), ResultsOfOne());
    const SystemResults before = ResultsOfOne();
    display.Clear();
    hooks.Clear();

    EXPECT_THROW(calculations.RefreshData(1), ArithmeticError);

    EXPECT_EQ(ResultsOfOne(), before);
    EXPECT_TRUE(display.Lines().empty());
    EXPECT_EQ(hooks.Record(), GetParam().heard) << "beeps and steps are not taken back";
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Steps, CalculationFailure, ::testing::Values(
    Failure{"coax length and loss multiply beyond a float",
            [](SystemData& data, SystemResults&) { data.CoaxLength = kLargest; data.CoaxLoss = 1000.0F; }, ""},
    Failure{"coax length is infinite though nothing is lost",
            [](SystemData& data, SystemResults&) { data.CoaxLength = kInfinite; data.CoaxLoss = 0.0F; }, ""},
    Failure{"coax loss is no number",
            [](SystemData& data, SystemResults&) { data.CoaxLoss = kNoNumber; }, ""},
    Failure{"antenna gain is infinite",
            [](SystemData& data, SystemResults&) { data.AntennaGain = kInfinite; }, ""},
    Failure{"losses add up beyond a float",
            [](SystemData& data, SystemResults& results) {
                data.CoaxLength = kLargest; data.CoaxLoss = 50.0F; results.ConnectorLoss = kLargest; }, ""},
    Failure{"gain and losses add up beyond a float",
            [](SystemData&, SystemResults& results) {
                results.ConnectorLoss = -kLargest; results.AntennaGainDBd = kLargest; }, ""},
    Failure{"transmitter power is infinite",
            [](SystemData& data, SystemResults&) { data.XmitPower = kInfinite; }, "B........"},
    Failure{"transmitter power is infinite though no table is entered",
            [](SystemData& data, SystemResults&) {
                data.XmitPower = kInfinite; data.CoaxLoss = 20.0F; data.VSWR = 4.0F; }, "B........"},
    Failure{"antenna multiplies the power beyond a float",
            [](SystemData& data, SystemResults&) { data.XmitPower = kLargest; }, "B........B.."}), support::RowName());

// clang-format on

TEST_F(CalculationsTest, AnERPBeyondAFloatIsTakenBackWithAllStepsBeforeIt)
{
    // Without the antenna power gain before it, the ERP fails on its own: 4.0e37 * 10 > 3.4e38.
    SetAntenna(SystemId::One, 10.0F, "dBd");
    ResultsOfOne().FeedPointPower = 4.0e37F;
    EXPECT_THROW(calculations.PowerFromDB(4, 1), ArithmeticError);
    EXPECT_EQ(hooks.Record(), ".") << "no beep without a formula";
    EXPECT_TRUE(display.Lines().empty());
}

TEST_F(CalculationsTest, APowerOfNoNumberIsNotAppliedToTheMismatch)
{
    ResultsOfOne().VSWRAttenuation = 0.25F;
    EXPECT_THROW(calculations.ApplyVSWR(kNoNumber, 1), ArithmeticError);
    EXPECT_THROW(calculations.ApplyVSWR(kInfinite, 1), ArithmeticError);
    EXPECT_EQ(ResultsOfOne().VSWRAttenuation, 0.25F);
}

TEST_F(CalculationsTest, AFailureInOneSystemLeavesTheOtherWorking)
{
    One().XmitPower = kInfinite;
    EXPECT_THROW(calculations.RefreshData(1), ArithmeticError);
    calculations.RefreshData(2);
    EXPECT_EQ(systems.Results[SystemId::Two].ERP, 234.4F);
}

TEST_F(CalculationsTest, CorrectedInputsComputeAgain)
{
    One().CoaxLoss = kNoNumber;
    EXPECT_THROW(calculations.RefreshData(1), ArithmeticError);
    One().CoaxLoss = 1.31F;
    calculations.RefreshData(1);
    EXPECT_EQ(ResultsOfOne().ERP, 234.4F);
}

} // namespace
} // namespace quillon::engine
