#include "tests/ui/main/window_fixture.h"

#include <QRadioButton>

#include <string>
#include <utility>

namespace quillon::ui {
namespace {

using engine::kTrue;

/// The antenna catalogue changes while the window is open, as when its editor is at work.
class CatalogueChange : public EachSystem
{
protected:
    std::string Brands() const { return Spelled("cboSystem%Antenna", 0); }

    std::string Models() const { return Spelled("cboSystem%Antenna", 1); }

    std::string Bands() const { return Spelled("cboSystem%Antenna", 2); }

    void Change(const std::string& maker, const std::string& file)
    {
        folder.Put("Antennas/" + maker + ".DAT", file);
        Window().ReloadAntennas(maker);
    }
};

TEST_P(CatalogueChange, NewMakerIsListedAndTheChosenOneStays)
{
    ChooseAntenna("HALO", "LOOP", "2 Meters");
    folder.Put("Antennas/ACME.DAT", "");
    Window().LoadAntennaMakers();
    EXPECT_EQ(Entries(Brands()), "ACME|HALO|Hamwire|WIRECRAFT|alpha");
    EXPECT_EQ(Text(Brands()), "HALO");
    EXPECT_EQ(Text(Models()), "LOOP");
    EXPECT_EQ(Text(Bands()), "2 Meters");
}

TEST_P(CatalogueChange, NewModelIsListedAndTheChosenOnesStay)
{
    ChooseAntenna("HALO", "LOOP", "2 Meters");
    Change("HALO", "[NEW]\nGainType=dBd\n[LOOP]\nGainType=dBd\nGain2=5\nGain6=3\n");
    EXPECT_EQ(Entries(Models()), "NEW|LOOP");
    EXPECT_EQ(Text(Models()), "LOOP");
    EXPECT_EQ(Text(Bands()), "2 Meters");
    EXPECT_EQ(Data().AntennaModel.Trimmed(), "LOOP");
    EXPECT_EQ(Data().AntennaGain, 0.5F);
}

TEST_P(CatalogueChange, ModelsAreListedAlsoWhileNoneIsChosen)
{
    Choose(Brands(), "HALO");
    Change("HALO", "[NEW]\nGainType=dBd\n[LOOP]\nGainType=dBd\nGain2=5\n");
    EXPECT_EQ(Entries(Models()), "NEW|LOOP");
    EXPECT_EQ(Text(Models()), "");
    EXPECT_EQ(Entries(Bands()), "");
}

TEST_P(CatalogueChange, NewGainOfTheChosenBandIsTakenOver)
{
    ChooseAntenna("HALO", "LOOP", "2 Meters");
    Change("HALO", "[LOOP]\nGainType=dBi\nGain2=100\nGain6=3\n");
    EXPECT_EQ(Data().GainType, "dBi");
    EXPECT_EQ(Data().AntennaGain, 7.9F); // 10 - 2.15 = 7.85
    EXPECT_EQ(Results().AntennaGainDBd, 7.9F);
    EXPECT_EQ(Text(Own("lblAntennaBand")), "Gain = 7.9 dbd");
    EXPECT_EQ(Text(Own("lblAntennaGain")), "7.90");
    EXPECT_EQ(Text(Own("txtFrequency")), "144.200");
}

TEST_P(CatalogueChange, NewBandIsListedAndTheChosenOneStays)
{
    ChooseAntenna("HALO", "LOOP", "2 Meters");
    Change("HALO", "[LOOP]\nGainType=dBd\nGain10=1\nGain2=5\nGain6=3\n");
    EXPECT_EQ(Entries(Bands()), "10 Meters|2 Meters|6 Meters");
    EXPECT_EQ(Text(Bands()), "2 Meters");
}

TEST_P(CatalogueChange, RemovedBandLeavesTheFiguresAndGivesTheFrequencyBack)
{
    ChooseAntenna("HALO", "LOOP", "2 Meters");
    EXPECT_TRUE(Box(Own("txtFrequency")).isReadOnly());
    Change("HALO", "[LOOP]\nGainType=dBd\nGain6=3\n");
    EXPECT_EQ(Entries(Bands()), "6 Meters");
    EXPECT_EQ(Text(Bands()), "");
    EXPECT_EQ(Data().AntennaGain, 0.5F);
    EXPECT_EQ(Data().UseAntennaList, kTrue);
    EXPECT_FALSE(Box(Own("txtFrequency")).isReadOnly());
}

TEST_P(CatalogueChange, OfTheGainLeavesTheCableAsItIs)
{
    ChooseCoax("TIMES MICROWAVE", "LMR-A");
    ChooseAntenna("HALO", "LOOP", "2 Meters");
    // The loss of such a cable is that of the length at its choice, as given: a new choice would change it.
    Paste(Spelled("txtSystem%CoaxLength"), "50");
    const float loss = Data().CoaxLoss;
    Change("HALO", "[LOOP]\nGainType=dBd\nGain2=70\n");
    EXPECT_EQ(Data().AntennaGain, 7.0F);
    EXPECT_EQ(Data().CoaxLoss, loss);
}

TEST_P(CatalogueChange, GainThatCannotBeComputedIsMarkedUntilAGoodOneComes)
{
    Paste(Own("txtOutputPower"), "2e38");
    ChooseAntenna("HALO", "LOOP", "2 Meters");
    for (const auto& [tenths, gain] : {std::pair{"5", 0.5F}, std::pair{"10", 1.0F}}) {
        const float before = Data().AntennaGain;
        Change("HALO", "[LOOP]\nGainType=dBd\nGain2=70\n"); // 5.012 times the power is beyond a float
        EXPECT_EQ(Data().AntennaGain, before);
        EXPECT_TRUE(IsMarked(Bands()));
        Change("HALO", std::string("[LOOP]\nGainType=dBd\nGain2=") + tenths + "\n");
        EXPECT_EQ(Data().AntennaGain, gain);
        EXPECT_FALSE(IsMarked(Bands()));
    }
}

TEST_P(CatalogueChange, WithoutANewGainComputesNothing)
{
    ChooseAntenna("HALO", "LOOP", "2 Meters");
    Results().ERP = 123;
    Change("HALO", "[LOOP]\nGainType=dBd\nGain2=5\nGain6=9\n[NEW]\nGainType=dBd\n");
    EXPECT_EQ(Results().ERP, 123.0F);
}

TEST_P(CatalogueChange, OfAnotherMakerChangesNothing)
{
    ChooseAntenna("HALO", "LOOP", "2 Meters");
    folder.Put("Antennas/HALO.DAT", "[LOOP]\nGainType=dBd\nGain2=90\n");
    Change("WIRECRAFT", "[NEW]\nGainType=dBd\n");
    EXPECT_EQ(Entries(Bands()), "2 Meters|6 Meters");
    EXPECT_EQ(Data().AntennaGain, 0.5F);
}

TEST_P(CatalogueChange, BeforeAMakerIsChosenListsNothing)
{
    Change("HALO", "[NEW]\nGainType=dBd\n");
    EXPECT_EQ(Entries(Models()), "");
}

INSTANTIATE_TEST_SUITE_P(Lists, CatalogueChange, BothSystems(), SystemName());

TEST_F(WindowTest, CatalogueChangeLeavesATypedGainInForce)
{
    Open();
    Choose("cboSystemOneAntenna(0)", "HALO");
    Choose("cboSystemOneAntenna(1)", "LOOP");
    Choose("cboSystemOneAntenna(2)", "2 Meters");
    Find<QRadioButton>("optAntenna(0)").click();
    Paste("txtAntennaGain", "9.5");
    Window().ReloadAntennas("HALO");
    Find<QRadioButton>("optAntenna(1)").click(); // the lists are back, and the typed gain counts until a choice
    folder.Put("Antennas/HALO.DAT", "[LOOP]\nGainType=dBd\nGain2=70\n");
    Window().ReloadAntennas("HALO");
    EXPECT_EQ(systems.Data[engine::SystemId::One].AntennaGain, 9.5F);
}

} // namespace
} // namespace quillon::ui
