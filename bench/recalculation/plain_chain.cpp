#include "bench/recalculation/plain_chain.h"

#include <cmath>

namespace quillon::bench {
namespace {

float Rounded(float value, float scale)
{
    return std::round(value * scale) / scale;
}

/// The row of a dB value; null when it is off the table.
const engine::DBRow* Find(const engine::DBTable& table, float dB)
{
    const float tenths = Rounded(dB, 10);
    for (const engine::DBRow& row : table) {
        if (row.dB == tenths) {
            return &row;
        }
    }
    return nullptr;
}

const engine::VSWRRow* Find(const engine::VSWRTable& table, float vswr)
{
    for (const engine::VSWRRow& row : table) {
        if (row.vswr == vswr) {
            return &row;
        }
    }
    return nullptr;
}

} // namespace

engine::SystemResults PlainResults(const Sample& sample, const engine::DBTable& dBTable,
                                   const engine::VSWRTable& vswrTable)
{
    engine::SystemResults results;
    results.AntennaGainDBd = sample.antennaGain;
    results.ConnectorLoss = sample.connectorLoss;
    results.CoaxDBLoss = sample.coaxLength / 100 * sample.coaxLoss;
    results.SystemGain = Rounded((results.CoaxDBLoss + results.ConnectorLoss) * -1 + results.AntennaGainDBd, 100);
    if (const engine::DBRow* row = Find(dBTable, results.CoaxDBLoss)) {
        results.CoaxPowerLoss = Rounded(sample.xmitPower - row->lossCoefficient * sample.xmitPower, 100);
    }
    const float leavingCoax = sample.xmitPower - results.CoaxPowerLoss;
    if (const engine::VSWRRow* row = Find(vswrTable, sample.vswr)) {
        results.FeedPointPower = row->factor * leavingCoax;
        results.VSWRAttenuation = row->lossDB;
        results.VSWRPowerLoss = Rounded(leavingCoax - results.FeedPointPower, 10000);
    }
    if (const engine::DBRow* row = Find(dBTable, sample.antennaGain)) {
        results.AntennaPowerGain = row->gainCoefficient * results.FeedPointPower - results.FeedPointPower;
    }
    // As in the program, the ERP is a lookup of its own.
    if (const engine::DBRow* row = Find(dBTable, sample.antennaGain)) {
        results.ERP = Rounded(row->gainCoefficient * results.FeedPointPower, 100);
    }
    return results;
}

} // namespace quillon::bench
