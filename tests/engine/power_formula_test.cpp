#include "engine/power_formula.h"

#include "engine/arithmetic_error.h"
#include "engine/number_writer.h"

#include <gtest/gtest.h>

#include <climits>
#include <limits>
#include <stdexcept>
#include <string>

namespace quillon::engine {
namespace {

TEST(PowerKind, NumbersAre1To4)
{
    EXPECT_EQ(ToPowerKind(1), PowerKind::AntennaPowerGain);
    EXPECT_EQ(ToPowerKind(2), PowerKind::SystemPower);
    EXPECT_EQ(ToPowerKind(3), PowerKind::CoaxPowerLoss);
    EXPECT_EQ(ToPowerKind(4), PowerKind::ERP);
}

TEST(PowerKind, AnyOtherNumberIsARangeError)
{
    for (const int number : {0, 5, -1, INT_MIN, INT_MAX}) {
        EXPECT_THROW((void)ToPowerKind(number), std::out_of_range) << number;
    }
}

class PowerSourceTest : public ::testing::Test
{
protected:
    PowerSourceTest()
    {
        data.AntennaGain = 5.04F;
        data.XmitPower = 100.0F;
        results.AntennaGainDBd = 9.0F;
        results.FeedPointPower = 74.13F;
        results.SystemGain = 3.68F;
        results.CoaxDBLoss = 1.35F;
    }

    void Expect(PowerKind kind, float dB, float power, bool usesLossCoefficient) const
    {
        const PowerSource source = SourceOf(kind, data, results);
        EXPECT_EQ(source.dB, dB);
        EXPECT_EQ(source.power, power);
        EXPECT_EQ(source.usesLossCoefficient, usesLossCoefficient);
    }

    SystemData data;
    SystemResults results;
};

TEST_F(PowerSourceTest, AntennaPowerGainTakesTheRecordsGainAndTheFeedPoint)
{
    Expect(PowerKind::AntennaPowerGain, 5.0F, 74.13F, false);
}

TEST_F(PowerSourceTest, SystemPowerTakesTheSystemGainAndTheTransmitter)
{
    Expect(PowerKind::SystemPower, 3.7F, 100.0F, false);
}

TEST_F(PowerSourceTest, NegativeSystemGainIsNegatedAndTakesTheLossCoefficient)
{
    results.SystemGain = -3.0F;
    Expect(PowerKind::SystemPower, 3.0F, 100.0F, true);
}

TEST_F(PowerSourceTest, SystemGainBelowOneIsAGain)
{
    results.SystemGain = 0.5F;
    Expect(PowerKind::SystemPower, 0.5F, 100.0F, false);
}

TEST_F(PowerSourceTest, SystemGainOfZeroIsAGain)
{
    results.SystemGain = 0.0F;
    Expect(PowerKind::SystemPower, 0.0F, 100.0F, false);
}

TEST_F(PowerSourceTest, CoaxPowerLossTakesTheLossCoefficientAndRoundsHalvesUp)
{
    Expect(PowerKind::CoaxPowerLoss, 1.4F, 100.0F, true);
}

TEST_F(PowerSourceTest, ERPTakesTheRecordsGainAndTheFeedPoint)
{
    Expect(PowerKind::ERP, 5.0F, 74.13F, false);
}

TEST_F(PowerSourceTest, OnlyTheSystemGainIsNegated)
{
    data.AntennaGain = -0.1F;
    Expect(PowerKind::ERP, -0.1F, 74.13F, false);
}

std::string FormulaText(PowerKind kind, const PowerStep& step, const char* separator = ".")
{
    NumberWriter text(separator);
    WritePowerFormula(text, kind, step);
    return std::string(text.Text());
}

TEST(PowerFromCoefficient, AntennaPowerGainIsWhatTheAntennaAdds)
{
    const PowerStep step = PowerFromCoefficient(PowerKind::AntennaPowerGain, 3.162F, 74.13F);
    EXPECT_EQ(step.result, 160.26904F) << "not rounded";
    EXPECT_EQ(FormulaText(PowerKind::AntennaPowerGain, step), "(74.13 * 3.162) - 74.13 = 160.269");
}

TEST(PowerFromCoefficient, SystemPowerIsRoundedToHundredths)
{
    const PowerStep step = PowerFromCoefficient(PowerKind::SystemPower, 2.344F, 1.234F);
    EXPECT_EQ(step.result, 2.89F) << "2.892496";
    EXPECT_EQ(FormulaText(PowerKind::SystemPower, step), "1.234 * 2.344 = 2.89");
}

TEST(PowerFromCoefficient, CoaxPowerLossIsRoundedToHundredths)
{
    const PowerStep step = PowerFromCoefficient(PowerKind::CoaxPowerLoss, 0.5249F, 1234.5F);
    EXPECT_EQ(step.result, 586.51F) << "1234.5 - 647.98905";
    EXPECT_EQ(FormulaText(PowerKind::CoaxPowerLoss, step), "1234.5 - (1234.5 * 0.5249) = 586.51");
}

TEST(PowerFromCoefficient, ERPIsNotRounded)
{
    const PowerStep step = PowerFromCoefficient(PowerKind::ERP, 3.162F, 74.13F);
    EXPECT_EQ(step.result, 234.39905F);
    EXPECT_EQ(FormulaText(PowerKind::ERP, step), "(74.13 * 3.162) = 234.399");
}

TEST(PowerFromCoefficient, FormulasUseTheSeparatorGiven)
{
    const PowerStep step = PowerFromCoefficient(PowerKind::ERP, 3.162F, 74.13F);
    EXPECT_EQ(FormulaText(PowerKind::ERP, step, ","), "(74,13 * 3,162) = 234,399");
}

TEST(PowerFromCoefficient, OverflowThrows)
{
    constexpr float kLargest = std::numeric_limits<float>::max();
    for (const PowerKind kind :
         {PowerKind::AntennaPowerGain, PowerKind::SystemPower, PowerKind::CoaxPowerLoss, PowerKind::ERP}) {
        EXPECT_THROW((void)PowerFromCoefficient(kind, 10.0F, kLargest), ArithmeticError);
    }
}

TEST(FormulaLabel, ERPFormulaStandsAtTheFeedPointPowerAsGiven)
{
    EXPECT_EQ(FormulaLabel(PowerKind::AntennaPowerGain), ResultLabel::AntennaPowerGain);
    EXPECT_EQ(FormulaLabel(PowerKind::SystemPower), ResultLabel::SystemGain);
    EXPECT_EQ(FormulaLabel(PowerKind::CoaxPowerLoss), ResultLabel::CoaxPowerLoss);
    EXPECT_EQ(FormulaLabel(PowerKind::ERP), ResultLabel::FeedPointPower);
}

} // namespace
} // namespace quillon::engine
