#include "bench/recalculation/textbook.h"

#include <array>
#include <cmath>
#include <cstdio>
#include <string_view>

namespace quillon::bench {
namespace {

using engine::ResultLabel;

double PowerRatio(double dB)
{
    return std::pow(10.0, dB / 10.0);
}

/// The part of the power that a mismatch lets through.
double Passed(double vswr)
{
    const double reflection = (vswr - 1) / (vswr + 1);
    return 1 - reflection * reflection;
}

/// What a textbook's formulas give for one system.
struct Performance
{
    explicit Performance(const Sample& sample)
        : coaxDB(sample.coaxLength / 100.0 * sample.coaxLoss)
        , systemGain(sample.antennaGain - coaxDB - sample.connectorLoss)
        , coaxRatio(PowerRatio(-coaxDB))
        , coaxLoss(sample.xmitPower - sample.xmitPower * coaxRatio)
        , passed(Passed(sample.vswr))
        , feedPoint((sample.xmitPower - coaxLoss) * passed)
        , mismatchDB(-10 * std::log10(passed))
        , mismatchLoss(sample.xmitPower - coaxLoss - feedPoint)
        , antennaRatio(PowerRatio(sample.antennaGain))
        , erp(feedPoint * antennaRatio)
        , added(erp - feedPoint)
    {
    }

    double coaxDB;
    double systemGain;
    double coaxRatio;
    double coaxLoss;
    double passed;
    double feedPoint;
    double mismatchDB;
    double mismatchLoss;
    double antennaRatio;
    double erp;
    double added;
};

/// Prints texts one after the other into one buffer and hands each to the display.
class Printer
{
public:
    explicit Printer(engine::ResultsDisplay& display)
        : m_display(display)
    {
    }

    void Result(ResultLabel label, const char* format, double value)
    {
        m_display.ShowResult(label, engine::SystemId::One, Print(format, value));
    }

    template <class... Values>
    void Formula(ResultLabel label, const char* format, Values... values)
    {
        m_display.ShowFormula(label, engine::SystemId::One, Print(format, values...));
    }

private:
    template <class... Values>
    std::string_view Print(const char* format, Values... values)
    {
        const int length = std::snprintf(m_text.data(), m_text.size(), format, values...);
        return {m_text.data(), static_cast<std::size_t>(length)};
    }

    engine::ResultsDisplay& m_display;
    std::array<char, 256> m_text{};
};

} // namespace

void ShowTextbookResults(const Sample& sample, engine::ResultsDisplay& display)
{
    const Performance is(sample);
    Printer print(display);
    const double power = sample.xmitPower;
    print.Result(ResultLabel::CoaxDBLoss, "%.2f", is.coaxDB);
    print.Result(ResultLabel::AntennaGain, "%.2f", sample.antennaGain);
    print.Formula(ResultLabel::AntennaGain, "Antenna Gain Figure is in %s so 2.14 dB subtracted", kGainType);
    print.Result(ResultLabel::SystemGain, "%.7g", is.systemGain);
    print.Formula(ResultLabel::SystemGain, "%.7g + ((%.7g + %.7g) * -1) = %.7g", double{sample.antennaGain}, is.coaxDB,
                  double{sample.connectorLoss}, is.systemGain);
    print.Formula(ResultLabel::CoaxPowerLoss, "%.7g - (%.7g * %.7g) = %.7g", power, power, is.coaxRatio, is.coaxLoss);
    print.Result(ResultLabel::CoaxPowerLoss, "%.2f", is.coaxLoss);
    print.Result(ResultLabel::FeedPointPower, "%.2f", is.feedPoint);
    print.Result(ResultLabel::VSWRAttenuation, "%.4f", is.mismatchDB);
    print.Result(ResultLabel::VSWRPowerLoss, "%.2f", is.mismatchLoss);
    print.Formula(ResultLabel::AntennaPowerGain, "(%.7g * %.7g) - %.7g = %.7g", is.feedPoint, is.antennaRatio,
                  is.feedPoint, is.added);
    print.Result(ResultLabel::AntennaPowerGain, "%.2f", is.added);
    print.Formula(ResultLabel::FeedPointPower, "(%.7g * %.7g) = %.7g", is.feedPoint, is.antennaRatio, is.erp);
    print.Result(ResultLabel::ERP, "%.2f", is.erp);
    display.CompareSystems();
}

} // namespace quillon::bench
