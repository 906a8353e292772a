#include "tests/ui/main/test_catalogue.h"

namespace quillon::ui {

namespace {

constexpr std::string_view kWirecraft = R"([BEAM FOUR]
GainType=dBi
Gain20=71
Gain17=74
Gain15=78
Gain10=82

[ALL BANDS]
GainType=dBd
Gain160=10
Gain80=11
Gain60=12
Gain40=13
Gain30=14
Gain20=15
Gain17=16
Gain15=17
Gain12=18
Gain10=19
Gain6=20
Gain2=21
Gain1.25=22
Gain.70=23

[MIXED ORDER]
Gain10=30
gain20=40
GAINTYPE=dBd

[NO UNIT]
Gain20=50

[SEVENTEEN-LETTERS]
GainType=dBd
Gain20=30

[WIDE ANGLE BEAM XL]
GainType=dBd
Gain20=20

[TWENTY]
GainType=dBd
Gain20=200

[MINUS ONE]
GainType=dBd
Gain20=-10

[MINUS TWO]
GainType=dBd
Gain20=-20

[UNIT ONLY]
GainType=dBi
)";

constexpr std::string_view kHalo = R"([LOOP]
GainType=dBd
Gain2=5
Gain6=3
)";

constexpr std::string_view kHamwire = R"([DIPOLE]
GainType=dBi
Gain40=22
)";

constexpr std::string_view kCableworks = R"([RG-8X]
Loss1=0.3
Loss10=1.0
Loss50=2.5
Loss100=3.7
Loss200=5.4
Loss400=8.0
Loss700=11.0
Loss900=12.6
Loss1000=13.5
Spec1=0.242
Spec2=50

[RG-58]
Loss1=0.4
Loss10=1.4
Loss50=3.3
Loss100=4.9
Loss200=7.3
Loss400=11.2
Loss700=16.9
Loss900=20.1
Loss1000=21.5
Spec1=0.195
Spec2=53.5

[OPEN LINE]
Loss10=0.1
Loss50=0.2
Spec1=0
Spec2=450

[ONE POINT]
Loss10=2.0

[NO FIGURES]
)";

constexpr std::string_view kTimes = R"([LMR-A]
K1=0.12
K2=0.0003
Spec1=0.405
Spec2=50
)";

} // namespace

void PutCatalogues(support::TempFolder& folder)
{
    folder.Put("Antennas/WIRECRAFT.DAT", kWirecraft);
    folder.Put("Antennas/HALO.DAT", kHalo);
    folder.Put("Antennas/Hamwire.DAT", kHamwire);
    folder.Put("Antennas/alpha.DAT", "");
    folder.Put("Antennas/ANTENNAS.ZEP", "[HALO]\r\nNumEntries=1\r\n");
    folder.Put("Coax/CABLEWORKS.DAT", kCableworks);
    folder.Put("Coax/TIMES MICROWAVE.DAT", kTimes);
}

engine::SystemData SavedRecord()
{
    engine::SystemData data;
    data.AntennaBrand = "WIRECRAFT";
    data.AntennaModel = "BEAM FOUR";
    data.AntennaGain = 5.0F;
    data.CoaxBrand = "CABLEWORKS";
    data.CoaxModel = "RG-8X";
    data.CoaxLoss = 1.31F;
    data.CoaxLength = 100;
    data.Frequency = 14.25F;
    data.Connectors = 2;
    data.XmitPower = 100;
    data.VSWR = 1.1F;
    return data;
}

} // namespace quillon::ui
