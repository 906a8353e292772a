#include "tests/ui/main/window_fixture.h"

#include <algorithm>

namespace quillon::ui {
namespace {

using engine::kFalse;
using engine::kTrue;

class AntennaChoice : public EachSystem
{
protected:
    std::string Brands() const { return Spelled("cboSystem%Antenna", 0); }

    std::string Models() const { return Spelled("cboSystem%Antenna", 1); }

    std::string Bands() const { return Spelled("cboSystem%Antenna", 2); }

    std::string Status() const { return "lblDebugStatus(" + std::to_string(Number() - 1) + ")"; }
};

TEST_P(AntennaChoice, BrandFillsTheModelsInFileOrder)
{
    Choose(Brands(), "WIRECRAFT");
    EXPECT_EQ(Entries(Models()), "BEAM FOUR|ALL BANDS|MIXED ORDER|NO UNIT|SEVENTEEN-LETTERS|WIDE ANGLE BEAM XL|TWENTY|"
                                 "MINUS ONE|MINUS TWO|UNIT ONLY");
    EXPECT_EQ(Text(Models()), "");
}

TEST_P(AntennaChoice, BrandIsStoredAndShown)
{
    Choose(Brands(), "Hamwire");
    EXPECT_EQ(Data().AntennaBrand.Trimmed(), "Hamwire");
    EXPECT_EQ(Text(Own("lblAntennaBrand")), "Hamwire");
}

TEST_P(AntennaChoice, NewBrandReplacesTheModels)
{
    Choose(Brands(), "WIRECRAFT");
    Choose(Brands(), "HALO");
    EXPECT_EQ(Entries(Models()), "LOOP");
    EXPECT_EQ(Text(Models()), "");
}

TEST_P(AntennaChoice, BrandWithoutModelsEmptiesTheModels)
{
    Choose(Brands(), "WIRECRAFT");
    Choose(Brands(), "alpha");
    EXPECT_EQ(List(Models()).count(), 0);
}

TEST_P(AntennaChoice, NewBrandLeavesGainAndFlagUntilABandIsChosen)
{
    ChooseAntenna("WIRECRAFT", "BEAM FOUR", "20 Meters");
    Choose(Brands(), "HALO");
    EXPECT_EQ(Data().AntennaGain, 5.0F);
    EXPECT_EQ(Data().UseAntennaList, kTrue);
    EXPECT_EQ(Text(Own("lblAntennaModel")), "BEAM FOUR");
    EXPECT_EQ(Text(Own("lblAntennaBand")), "Gain = 5 dbd");
}

TEST_P(AntennaChoice, ModelFillsTheBandsInFileOrderWhateverTheCaseOfTheirKeys)
{
    Choose(Brands(), "WIRECRAFT");
    Choose(Models(), "MIXED ORDER");
    EXPECT_EQ(Entries(Bands()), "10 Meters|20 Meters");
    EXPECT_EQ(Text(Bands()), "");
}

TEST_P(AntennaChoice, NewModelReplacesTheBands)
{
    Choose(Brands(), "WIRECRAFT");
    Choose(Models(), "BEAM FOUR");
    EXPECT_EQ(Entries(Bands()), "20 Meters|17 Meters|15 Meters|10 Meters");
    Choose(Models(), "UNIT ONLY");
    EXPECT_EQ(List(Bands()).count(), 0);
}

TEST_P(AntennaChoice, ModelAloneSetsNoGain)
{
    Choose(Brands(), "WIRECRAFT");
    Choose(Models(), "BEAM FOUR");
    EXPECT_EQ(Data().AntennaGain, 0.0F);
    EXPECT_EQ(Data().UseAntennaList, kFalse);
    EXPECT_EQ(Text(Own("txtFrequency")), "14.250");
}

TEST_P(AntennaChoice, BandStoresTheGainOnBothSides)
{
    ChooseAntenna("WIRECRAFT", "BEAM FOUR", "15 Meters");
    EXPECT_EQ(Data().GainType, "dBi");
    EXPECT_EQ(Data().AntennaGain, 5.7F); // 7.8 - 2.15 = 5.65
    EXPECT_EQ(Results().AntennaGainDBd, 5.7F);
    EXPECT_EQ(Data().UseAntennaList, kTrue);
}

TEST_P(AntennaChoice, BandShowsTheGain)
{
    ChooseAntenna("WIRECRAFT", "BEAM FOUR", "20 Meters");
    EXPECT_EQ(Text(Own("lblAntennaBand")), "Gain = 5 dbd");
    EXPECT_EQ(Text(Status()), "5 Antenna");
    EXPECT_EQ(Text(Own("lblAntennaGain")), "5.00");
}

TEST_P(AntennaChoice, GainInDBdStays)
{
    ChooseAntenna("WIRECRAFT", "SEVENTEEN-LETTERS", "20 Meters");
    EXPECT_EQ(Data().AntennaGain, 3.0F);
    EXPECT_EQ(ToolTip(Own("lblAntennaGain")), "Antenna Gain Figure is in dBd so 0 dB subtracted");
}

TEST_P(AntennaChoice, GainOfAnUnknownUnitStaysAndTellsNothing)
{
    ChooseAntenna("WIRECRAFT", "NO UNIT", "20 Meters");
    EXPECT_EQ(Data().AntennaGain, 5.0F);
    EXPECT_EQ(Data().GainType, "");
    EXPECT_EQ(ToolTip(Own("lblAntennaGain")), "");
}

TEST_P(AntennaChoice, BandTakesTheCoaxLossAlong)
{
    ChooseCoax("CABLEWORKS", "RG-8X");
    ChooseAntenna("WIRECRAFT", "BEAM FOUR", "10 Meters");
    EXPECT_EQ(Data().Frequency, 28.5F);
    EXPECT_EQ(Data().CoaxLoss, 1.76F); // 1.0 + 0.01 + 5 * 0.15
    EXPECT_EQ(Text(Own("lblCoaxDBLoss")), "1.76");
}

TEST_P(AntennaChoice, BandLeavesTheConnectorLossAsGiven)
{
    ChooseAntenna("WIRECRAFT", "BEAM FOUR", "10 Meters");
    EXPECT_EQ(Data().ConnectorLoss, 0.01304F);
}

TEST_P(AntennaChoice, BandWithoutAModelDoesNothing)
{
    ChooseAntenna("WIRECRAFT", "BEAM FOUR", "20 Meters");
    Choose(Brands(), "HALO");
    const engine::SystemData data = Data();
    const engine::SystemResults results = Results();
    Choose(Bands(), "10 Meters");
    EXPECT_EQ(Data(), data);
    EXPECT_EQ(Results(), results);
    EXPECT_EQ(Text(Own("txtFrequency")), "14.250");
    EXPECT_FALSE(Box(Own("txtFrequency")).isReadOnly());
}

TEST_P(AntennaChoice, SameBandAgainIsTakenAgain)
{
    ChooseAntenna("WIRECRAFT", "BEAM FOUR", "20 Meters");
    Data().AntennaGain = 1;
    Choose(Bands(), "20 Meters");
    EXPECT_EQ(Data().AntennaGain, 5.0F);
}

TEST_P(AntennaChoice, LeavesTheOtherSystemAlone)
{
    const engine::SystemData other = systems.Data[Other(System())];
    ChooseAntenna("WIRECRAFT", "BEAM FOUR", "20 Meters");
    EXPECT_EQ(systems.Data[Other(System())], other);
}

TEST_P(AntennaChoice, BandTakesItsOwnModelsGainAlthoughTheTableIsShared)
{
    Choose(Brands(), "WIRECRAFT");
    Choose(Models(), "BEAM FOUR");
    const std::string other = System() == engine::SystemId::One ? "Two" : "One";
    Choose("cboSystem" + other + "Antenna(0)", "WIRECRAFT");
    Choose("cboSystem" + other + "Antenna(1)", "ALL BANDS");
    Choose(Bands(), "20 Meters");
    EXPECT_EQ(Data().AntennaGain, 5.0F);
    EXPECT_EQ(Data().GainType, "dBi");
}

TEST_P(AntennaChoice, IsReadAnewFromAChangedFile)
{
    ChooseAntenna("WIRECRAFT", "BEAM FOUR", "20 Meters");
    folder.Put("Antennas/WIRECRAFT.DAT", "[BEAM FOUR]\nGainType=dBd\nGain20=90\n");
    Choose(Bands(), "20 Meters");
    EXPECT_EQ(Data().AntennaGain, 9.0F);
}

TEST_P(AntennaChoice, ReloadingTheMakersKeepsWhatIsChosen)
{
    ChooseAntenna("WIRECRAFT", "BEAM FOUR", "20 Meters");
    const engine::SystemData data = Data();
    const engine::SystemResults results = Results();
    folder.Put("Antennas/NEW MAKER.DAT", "[X]\nGainType=dBd\n");

    Window().LoadAntennaMakers();

    EXPECT_EQ(Entries(Brands()), "HALO|Hamwire|NEW MAKER|WIRECRAFT|alpha");
    EXPECT_EQ(Text(Brands()), "WIRECRAFT");
    EXPECT_EQ(Text(Models()), "BEAM FOUR");
    EXPECT_EQ(Text(Bands()), "20 Meters");
    EXPECT_EQ(Data(), data);
    EXPECT_EQ(Results(), results);
    EXPECT_TRUE(Box(Own("txtFrequency")).isReadOnly());
}

TEST_P(AntennaChoice, LongBrandIsCutInTheRecordOnly)
{
    folder.Put("Antennas/ABCDEFGHIJKLMNOPQRSTUVWXYZ12.DAT", "[X]\nGain20=10\n");
    Window().LoadAntennaMakers();
    ChooseAntenna("ABCDEFGHIJKLMNOPQRSTUVWXYZ12", "X", "20 Meters");
    EXPECT_EQ(Data().AntennaBrand.Padded(), "ABCDEFGHIJKLMNOPQRSTUVWXY");
    EXPECT_EQ(Text(Own("lblAntennaBrand")), "ABCDEFGHIJKLMNOPQRSTUVWXYZ12");
    EXPECT_EQ(Data().AntennaGain, 1.0F);
}

INSTANTIATE_TEST_SUITE_P(Lists, AntennaChoice, BothSystems(), SystemName());

TEST_F(WindowTest, EachAntennaListRunsItsHandlerOnce)
{
    Open();
    Choose("cboSystemOneAntenna(0)", "WIRECRAFT");
    EXPECT_EQ(std::ranges::count(hooks.Record(), 'B'), 3);
    hooks.Clear();
    Choose("cboSystemOneAntenna(1)", "BEAM FOUR");
    EXPECT_EQ(std::ranges::count(hooks.Record(), 'B'), 3);
    hooks.Clear();
    // The frequency box computes, then the band itself; with an antenna the ERP is heard too.
    Choose("cboSystemOneAntenna(2)", "15 Meters");
    EXPECT_EQ(std::ranges::count(hooks.Record(), 'B'), 2 * 4);
}

struct ModelRow
{
    const char* name;
    const char* cut;
    const char* label;
};

using ModelName = EachSystemRow<ModelRow>;

TEST_P(ModelName, IsCutTo16CharactersInRecordAndLabelButFoundInFull)
{
    ChooseAntenna("WIRECRAFT", Case().name, "20 Meters");
    EXPECT_EQ(Data().AntennaModel.Padded(), std::string(Case().cut) + std::string(9, ' '));
    EXPECT_EQ(Text(Own("lblAntennaModel")), Case().label);
    EXPECT_EQ(Data().UseAntennaList, kTrue);
    EXPECT_GT(Data().AntennaGain, 0.0F);
}

INSTANTIATE_TEST_SUITE_P(
    Models, ModelName,
    ::testing::Combine(BothSystems(),
                       ::testing::Values(ModelRow{"BEAM FOUR", "BEAM FOUR       ", "BEAM FOUR"},
                                         ModelRow{"SEVENTEEN-LETTERS", "SEVENTEEN-LETTER", "SEVENTEEN-LETTER"},
                                         ModelRow{"WIDE ANGLE BEAM XL", "WIDE ANGLE BEAM ", "WIDE ANGLE BEAM"})),
    SystemName());

struct BandRow
{
    const char* name;
    const char* frequency;
    float megahertz;
    float gain;
};

using BandList = EachSystemRow<BandRow>;

TEST_P(BandList, SetsFrequencyAndGain)
{
    ChooseAntenna("WIRECRAFT", "ALL BANDS", Case().name);
    EXPECT_EQ(Text(Own("txtFrequency")), Case().frequency);
    EXPECT_EQ(Data().Frequency, Case().megahertz);
    EXPECT_EQ(Data().AntennaGain, Case().gain);
}

INSTANTIATE_TEST_SUITE_P(
    Bands, BandList,
    ::testing::Combine(
        BothSystems(),
        ::testing::Values(BandRow{"160 Meters", "1.900", 1.9F, 1.0F}, BandRow{"80 Meters", "3.850", 3.85F, 1.1F},
                          BandRow{"60 Meters", "5.368", 5.368F, 1.2F}, BandRow{"40 Meters", "7.230", 7.23F, 1.3F},
                          BandRow{"30 Meters", "10.125", 10.125F, 1.4F}, BandRow{"20 Meters", "14.250", 14.25F, 1.5F},
                          BandRow{"17 Meters", "18.140", 18.14F, 1.6F}, BandRow{"15 Meters", "21.225", 21.225F, 1.7F},
                          BandRow{"12 Meters", "24.950", 24.95F, 1.8F}, BandRow{"10 Meters", "28.500", 28.5F, 1.9F},
                          BandRow{"6 Meters", "50.125", 50.125F, 2.0F}, BandRow{"2 Meters", "144.200", 144.2F, 2.1F},
                          BandRow{"1.25 Meters", "222.100", 222.1F, 2.2F},
                          BandRow{".70 Meters", "432.100", 432.1F, 2.3F})),
    SystemName());

} // namespace
} // namespace quillon::ui
