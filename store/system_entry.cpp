#include "store/system_entry.h"

#include "engine/arithmetic_error.h"
#include "engine/mask.h"
#include "engine/number_text.h"
#include "store/entry_name.h"
#include "store/profile_lines.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <optional>
#include <system_error>
#include <type_traits>

namespace quillon::store {

using engine::SystemData;
using Fault = DamagedValue::Fault;

namespace {

/// One field of a system's record as it stands in the file.
struct Field
{
    enum class Need { Optional, Required };

    std::string_view name;
    Need need;
    std::string (*text)(const SystemData&);
    std::optional<Fault> (*take)(SystemData&, std::string_view value, Need);
};

template <auto Member>
std::string TextOf(const SystemData& data)
{
    using Type = std::remove_cvref_t<decltype(data.*Member)>;
    if constexpr (std::is_same_v<Type, float>) {
        return engine::ShortestText(data.*Member);
    } else if constexpr (std::is_same_v<Type, std::int16_t>) {
        return std::to_string(data.*Member);
    } else {
        return (data.*Member).Trimmed();
    }
}

std::optional<Fault> TakeNumber(float& figure, float number)
{
    figure = number;
    return std::nullopt;
}

std::optional<Fault> TakeNumber(std::int16_t& figure, float number)
{
    try {
        figure = engine::ToInteger(number);
        return std::nullopt;
    } catch (const engine::ArithmeticError&) {
        return Fault::TooLarge;
    }
}

/// The smallest number that no longer rounds to one of 32 bits.
constexpr double kBeyondFloat = 0x1.ffffffp127;

/// What is wrong with a text that has to be a number within 32 bits and nothing else: "3,9" is no 3.
std::optional<Fault> FaultOfNumber(std::string_view text)
{
    constexpr char kBlank = ' ';
    text.remove_prefix(std::min(text.find_first_not_of(kBlank), text.size()));
    text.remove_suffix(text.size() - (text.find_last_not_of(kBlank) + 1));
    if (text.starts_with('+') && !text.starts_with("+-")) {
        text.remove_prefix(1);
    }
    double number = 0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), number);
    const bool isNumber = read.ec != std::errc::invalid_argument && read.ptr == text.data() + text.size();
    if (!isNumber || !std::isfinite(number)) {
        return Fault::NoNumber;
    }
    // Out of range is what is too close to zero, too, and that is 0.
    const bool tooLarge = read.ec == std::errc() ? std::abs(number) >= kBeyondFloat : engine::NumberFromText(text) != 0;
    return tooLarge ? std::optional(Fault::TooLarge) : std::nullopt;
}

/// @param value  not empty.
template <auto Member>
std::optional<Fault> Take(SystemData& data, std::string_view value, Field::Need need)
{
    using Type = std::remove_cvref_t<decltype(data.*Member)>;
    if constexpr (std::is_arithmetic_v<Type>) {
        if (need == Field::Need::Required) {
            if (const std::optional<Fault> fault = FaultOfNumber(value)) {
                return fault;
            }
        }
        return TakeNumber(data.*Member, engine::ReadNumber(value).value_or(0.0F));
    } else {
        data.*Member = value;
        return std::nullopt;
    }
}

template <auto Member>
constexpr Field MakeField(std::string_view name, Field::Need need = Field::Need::Optional)
{
    return {name, need, &TextOf<Member>, &Take<Member>};
}

/// The order is that of the file.
constexpr std::array kFields{
    MakeField<&SystemData::AntennaBrand>("AntennaBrand"),
    MakeField<&SystemData::AntennaModel>("AntennaModel"),
    MakeField<&SystemData::AntennaGain>("AntennaGain", Field::Need::Required),
    MakeField<&SystemData::CoaxBrand>("CoaxBrand"),
    MakeField<&SystemData::CoaxType>("CoaxType", Field::Need::Required),
    MakeField<&SystemData::CoaxModel>("CoaxModel"),
    MakeField<&SystemData::CoaxLoss>("CoaxLoss", Field::Need::Required),
    MakeField<&SystemData::CoaxLength>("CoaxLength", Field::Need::Required),
    MakeField<&SystemData::Connectors>("Connectors"),
    MakeField<&SystemData::Frequency>("Frequency"),
    MakeField<&SystemData::XmitPower>("XmitPower"),
    MakeField<&SystemData::VSWR>("VSWR"),
};

std::string KeyOf(engine::SystemId system, std::string_view field)
{
    return "System" + std::to_string(Number(system)).append(field);
}

std::string_view ValueOf(const PrivateProfile& file, std::string_view section, std::string_view key)
{
    return WithoutQuotes(file.Value(section, key).value_or("")).substr(0, kLongestEntry);
}

std::optional<Fault> TakeValue(SystemData& data, const Field& field, std::string_view value)
{
    if (!value.empty()) {
        return field.take(data, value, field.need);
    }
    return field.need == Field::Need::Required ? std::optional(Fault::Missing) : std::nullopt;
}

} // namespace

SystemNames NamesOf(const SystemData& data)
{
    return {data.AntennaBrand.Trimmed(), data.AntennaModel.Trimmed(), data.CoaxBrand.Trimmed(),
            data.CoaxModel.Trimmed()};
}

SystemData ResetSystem()
{
    SystemData data;
    data.CoaxLength = 100;
    data.Frequency = engine::RoundWithMask(18.2F, "00.000");
    data.Connectors = 2;
    data.XmitPower = 100;
    data.VSWR = 1.1F;
    return data;
}

std::vector<std::pair<std::string, std::string>> PairEntries(const SystemPair& pair)
{
    std::vector<std::pair<std::string, std::string>> entries;
    for (const engine::SystemId system : engine::kBothSystems) {
        for (const Field& field : kFields) {
            entries.emplace_back(KeyOf(system, field.name), field.text(pair[system]));
        }
    }
    return entries;
}

std::variant<SystemPair, DamagedValue> ReadPair(const PrivateProfile& file, std::string_view name)
{
    SystemPair pair{ResetSystem(), ResetSystem()};
    for (const engine::SystemId system : engine::kBothSystems) {
        for (const Field& field : kFields) {
            const std::string key = KeyOf(system, field.name);
            const std::string_view value = ValueOf(file, name, key);
            if (const std::optional<Fault> fault = TakeValue(pair[system], field, value)) {
                return DamagedValue{key, std::string(value), *fault};
            }
        }
    }
    return pair;
}

engine::PerSystem<SystemNames> ReadNames(const PrivateProfile& file, std::string_view name)
{
    engine::PerSystem<SystemNames> names;
    for (const engine::SystemId system : engine::kBothSystems) {
        SystemData data;
        data.AntennaBrand = ValueOf(file, name, KeyOf(system, "AntennaBrand"));
        data.AntennaModel = ValueOf(file, name, KeyOf(system, "AntennaModel"));
        data.CoaxBrand = ValueOf(file, name, KeyOf(system, "CoaxBrand"));
        data.CoaxModel = ValueOf(file, name, KeyOf(system, "CoaxModel"));
        names[system] = NamesOf(data);
    }
    return names;
}

} // namespace quillon::store
