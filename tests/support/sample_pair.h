#pragma once

#include "store/system_entry.h"

#include <string>

namespace quillon::support {

/// Two systems with all of their saved fields set, each to a figure of its own.
[[nodiscard]] inline store::SystemPair SamplePair()
{
    engine::SystemData one;
    one.AntennaBrand = "Wirecraft";
    one.AntennaModel = "Beam Four";
    one.AntennaGain = 7.1F;
    one.CoaxBrand = "Cableworks";
    one.CoaxType = 2;
    one.CoaxModel = "RG-8X";
    one.CoaxLoss = 3.7F;
    one.CoaxLength = 100;
    one.Connectors = 2;
    one.Frequency = 14.25F;
    one.XmitPower = 100;
    one.VSWR = 1.5F;

    engine::SystemData two;
    two.AntennaBrand = "Mastline";
    two.AntennaModel = "Vertical 5";
    two.AntennaGain = -1.2F;
    two.CoaxBrand = "TIMES MICROWAVE";
    two.CoaxType = 0;
    two.CoaxModel = "LMR-400";
    two.CoaxLoss = 0.75F;
    two.CoaxLength = 62.5F;
    two.Connectors = 4;
    two.Frequency = 7.23F;
    two.XmitPower = 1500;
    two.VSWR = 1.1F;
    return {one, two};
}

/// The keys of SamplePair, each line closed as given.
[[nodiscard]] inline std::string SampleEntries(const std::string& lineEnd)
{
    std::string entries;
    for (const char* line : {"System1AntennaBrand=Wirecraft",
                             "System1AntennaModel=Beam Four",
                             "System1AntennaGain=7.1",
                             "System1CoaxBrand=Cableworks",
                             "System1CoaxType=2",
                             "System1CoaxModel=RG-8X",
                             "System1CoaxLoss=3.7",
                             "System1CoaxLength=100",
                             "System1Connectors=2",
                             "System1Frequency=14.25",
                             "System1XmitPower=100",
                             "System1VSWR=1.5",
                             "System2AntennaBrand=Mastline",
                             "System2AntennaModel=Vertical 5",
                             "System2AntennaGain=-1.2",
                             "System2CoaxBrand=TIMES MICROWAVE",
                             "System2CoaxType=0",
                             "System2CoaxModel=LMR-400",
                             "System2CoaxLoss=0.75",
                             "System2CoaxLength=62.5",
                             "System2Connectors=4",
                             "System2Frequency=7.23",
                             "System2XmitPower=1500",
                             "System2VSWR=1.1"}) {
        entries += line + lineEnd;
    }
    return entries;
}

} // namespace quillon::support
