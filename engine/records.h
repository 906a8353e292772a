#pragma once

#include "engine/fixed_text.h"
#include "engine/system_id.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

namespace quillon::engine {

/// The records' 16-bit truth value: 0 is false, -1 is true.
using Boolean = std::int16_t;
inline constexpr Boolean kFalse = 0;
inline constexpr Boolean kTrue = -1;

/// The inputs of one antenna system.
struct SystemData
{
    FixedText<25> AntennaBrand;
    FixedText<25> AntennaModel;
    float AntennaGain = 0;           ///< dBd; from GainToDBd when chosen in a list, as typed otherwise
    std::string GainType;            ///< unit of the catalogue's gain figure, "dBi" or "dBd"
    Boolean UseAntennaList = kFalse; ///< the system has an antenna; ERP is computed only while it has
    FixedText<15> CoaxBrand;
    FixedText<20> CoaxModel;
    std::int16_t CoaxType = 0;    ///< place of the cable in its maker's list, from 0
    float CoaxLoss = 0;           ///< dB per 100 ft at Frequency
    float CoaxLength = 0;         ///< ft
    Boolean UseCoaxList = kFalse; ///< the system has a coax
    float ConnectorLoss = 0;      ///< dB of all connectors
    float Frequency = 0;          ///< MHz
    std::int16_t Connectors = 0;  ///< number of connectors
    float XmitPower = 0;          ///< transmitter output power, W
    float VSWR = 0;               ///< standing-wave ratio

    [[nodiscard]] bool operator==(const SystemData&) const = default;
};

/// The results of one antenna system, in this order.
struct SystemResults
{
    float AntennaGainDBd = 0;   ///< dBd, used for the system gain; set together with SystemData::AntennaGain by a list
    float ERP = 0;              ///< effective radiated power, W
    float SystemGain = 0;       ///< dB
    float CoaxDBLoss = 0;       ///< dB
    float CoaxPowerLoss = 0;    ///< W lost in the coax
    float VSWRPowerLoss = 0;    ///< W lost by mismatch
    float VSWRAttenuation = 0;  ///< mismatch loss, dB, from the VSWR table
    float ConnectorLoss = 0;    ///< dB of all connectors
    float FeedPointPower = 0;   ///< W reaching the antenna
    float Reserved = 0;         ///< never written: keeps the record's eleven places
    float AntennaPowerGain = 0; ///< W added by the antenna

    [[nodiscard]] bool operator==(const SystemResults&) const = default;
};

/// Six flags per system. Flag numbers run from 1 as in every place that speaks of them.
class SystemState
{
public:
    /// @param number  1 to 6. @throws std::out_of_range for any other number.
    [[nodiscard]] Boolean Flag(int number) const { return m_flags.at(static_cast<std::size_t>(number) - 1); }

    void SetFlag(int number, Boolean value) { m_flags.at(static_cast<std::size_t>(number) - 1) = value; }

    [[nodiscard]] bool operator==(const SystemState&) const = default;

private:
    std::array<Boolean, 6> m_flags{};
};

/// SystemState flag that enables the computation of its system.
inline constexpr int kComputeFlag = 3;
/// SystemState flag that says that the pair of systems stands in the saved-systems file as shown.
inline constexpr int kSavedFlag = 4;

/// Both systems' records: one object for the whole run, made where the program starts and handed down.
struct AntennaSystems
{
    PerSystem<SystemData> Data;
    PerSystem<SystemResults> Results;
    PerSystem<SystemState> State;
    std::array<float, 9> CoaxSpec{}; ///< figures of the cable loaded last, whichever system it was loaded for
};

} // namespace quillon::engine
