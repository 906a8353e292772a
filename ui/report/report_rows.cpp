#include "ui/report/report_rows.h"

#include "engine/mask.h"
#include "engine/number_text.h"
#include "store/code_page.h"
#include "ui/report/coax_loss_text.h"

#include <array>
#include <cstddef>

namespace quillon::ui {

namespace {

using engine::SystemData;
using engine::SystemResults;

constexpr std::string_view kPlain;
constexpr std::string_view kNoUnit;
constexpr std::monostate kCoaxLossText;

constexpr std::array<ReportRow, 17> kRows{{
    {2, "Antenna Brand", &SystemData::AntennaBrand, kPlain, kNoUnit},
    {3, "Antenna Model", &SystemData::AntennaModel, kPlain, kNoUnit},
    {5, "Coax Cable Brand", &SystemData::CoaxBrand, kPlain, kNoUnit},
    {6, "Coax Cable Type", &SystemData::CoaxModel, kPlain, kNoUnit},
    {8, "Antenna System ERP", &SystemResults::ERP, "#####0.00", " Watts ERP"},
    {9, "Antenna Power Gain", &SystemResults::AntennaPowerGain, kPlain, " Watts"},
    {10, "Antenna Gain dBd", &SystemData::AntennaGain, kPlain, " dB"},
    {11, "Feedpoint Power", &SystemResults::FeedPointPower, kPlain, " Watts"},
    {13, "Coax Loss / 100 Ft", kCoaxLossText, kPlain, kNoUnit},
    {14, "Coax Cable Length", &SystemData::CoaxLength, kPlain, " Ft."},
    {15, "Coax Loss dB", &SystemResults::CoaxDBLoss, kPlain, " dB"},
    {16, "Coax Power Loss", &SystemResults::CoaxPowerLoss, kPlain, " Watts"},
    {18, "Transmit Frequency", &SystemData::Frequency, kPlain, " MHz"},
    {19, "Transmit Power", &SystemData::XmitPower, kPlain, " Watts"},
    {20, "SWR Value", &SystemData::VSWR, "0.0", kNoUnit},
    // As given: the attenuation in dB stands under "W" and the power lost under "dB", while the comparison beside them
    // takes the power first.
    {21, "SWR Attenuation W", &SystemResults::VSWRAttenuation, "#0.0000", kNoUnit},
    {22, "SWR Attenuation dB", &SystemResults::VSWRPowerLoss, "###0.0", kNoUnit},
}};

/// Turns whatever a row's value is into text.
class TextOf
{
public:
    TextOf(const ReportRow& row, const SystemData& data, const SystemResults& results, std::string_view separator)
        : m_row(row)
        , m_data(data)
        , m_results(results)
        , m_separator(separator)
    {
    }

    std::string operator()(std::monostate /*coaxLoss*/) const { return CoaxLossText(m_data, m_separator); }

    template <std::size_t Width>
    std::string operator()(engine::FixedText<Width> SystemData::*name) const
    {
        return store::ToUtf8((m_data.*name).Padded());
    }

    std::string operator()(float SystemData::*number) const { return Number(m_data.*number); }

    std::string operator()(float SystemResults::*number) const { return Number(m_results.*number); }

private:
    [[nodiscard]] std::string Number(float number) const
    {
        // As given: numbers without a mask keep the point in every locale.
        return m_row.mask.empty() ? engine::ShortestText(number)
                                  : engine::FormatWithMask(number, m_row.mask, m_separator);
    }

    const ReportRow& m_row;
    const SystemData& m_data;
    const SystemResults& m_results;
    std::string_view m_separator;
};

} // namespace

std::span<const ReportRow> ReportRows() noexcept
{
    return kRows;
}

std::string ReportText(const ReportRow& row, const engine::AntennaSystems& systems, engine::SystemId system,
                       std::string_view separator)
{
    const TextOf textOf(row, systems.Data[system], systems.Results[system], separator);
    return std::visit(textOf, row.value).append(row.suffix);
}

} // namespace quillon::ui
