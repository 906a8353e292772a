#include "tests/ui/main/window_fixture.h"

#include <algorithm>

namespace quillon::ui {
namespace {

using engine::kFalse;
using engine::kTrue;

class CoaxChoice : public EachSystem
{
protected:
    std::string Brands() const { return Spelled("cboSystem%Coax", 0); }

    std::string Types() const { return Spelled("cboSystem%Coax", 1); }

    std::string Jacket() const { return "lblCoaxSpecs(" + std::to_string(2 * Number() - 1) + ")"; }

    std::string Impedance() const { return "lblCoaxSpecs(" + std::to_string(2 * Number()) + ")"; }

    std::string Status() const { return "lblDebugStatus(" + std::to_string(Number() + 1) + ")"; }

    /// The same list of the other system.
    std::string Others(int list) const
    {
        const std::string other = System() == engine::SystemId::One ? "Two" : "One";
        return "cboSystem" + other + "Coax(" + std::to_string(list) + ")";
    }
};

TEST_P(CoaxChoice, BrandFillsTheTypesInFileOrder)
{
    Choose(Brands(), "CABLEWORKS");
    EXPECT_EQ(Entries(Types()), "RG-8X|RG-58|OPEN LINE|ONE POINT|NO FIGURES");
    EXPECT_EQ(Text(Types()), "");
}

TEST_P(CoaxChoice, BrandIsStoredAndShown)
{
    Choose(Brands(), "CABLEWORKS");
    EXPECT_EQ(Data().CoaxBrand.Trimmed(), "CABLEWORKS");
    EXPECT_EQ(Text(Own("lblCoaxBrand")), "CABLEWORKS");
}

TEST_P(CoaxChoice, NewBrandReplacesTheTypesAndLeavesTheCoaxInForce)
{
    ChooseCoax("CABLEWORKS", "RG-58");
    Choose(Brands(), "TIMES MICROWAVE");
    EXPECT_EQ(Entries(Types()), "LMR-A");
    EXPECT_EQ(Text(Types()), "");
    EXPECT_EQ(Text(Own("lblCoaxType")), "RG-58");
    EXPECT_EQ(Data().CoaxLoss, 1.79F);
    EXPECT_EQ(Data().UseCoaxList, kTrue);
}

TEST_P(CoaxChoice, BrandAloneSetsNoCoax)
{
    Choose(Brands(), "CABLEWORKS");
    EXPECT_EQ(Data().UseCoaxList, kFalse);
    EXPECT_EQ(Data().CoaxLoss, 0.0F);
}

TEST_P(CoaxChoice, TypeIsStoredAndShown)
{
    ChooseCoax("CABLEWORKS", "RG-58");
    EXPECT_EQ(Data().CoaxModel.Trimmed(), "RG-58");
    EXPECT_EQ(Data().CoaxType, 1);
    EXPECT_EQ(Data().UseCoaxList, kTrue);
    EXPECT_EQ(Text(Own("lblCoaxType")), "RG-58");
}

TEST_P(CoaxChoice, TypeSetsAndComputesTheLoss)
{
    ChooseCoax("CABLEWORKS", "RG-58");
    EXPECT_EQ(Data().CoaxLoss, 1.79F); // 1.4 + 0.01 + 2 * 0.19
    EXPECT_EQ(Text(Status()), "1.79");
    EXPECT_EQ(Text(Own("lblCoaxDBLoss")), "1.79");
    EXPECT_EQ(Text(Own("lblCoaxPowerLoss")), "33.95"); // 1.8 dB: 100 - 100 / 1.514
}

TEST_P(CoaxChoice, TypeShowsItsFiguresBesideIt)
{
    ChooseCoax("CABLEWORKS", "RG-58");
    EXPECT_EQ(Text(Jacket()), "0.195 in");
    EXPECT_EQ(Text(Impedance()), "53.5 Ω");
}

TEST_P(CoaxChoice, LineWithoutAJacketShowsNone)
{
    ChooseCoax("CABLEWORKS", "RG-58");
    ChooseCoax("CABLEWORKS", "OPEN LINE");
    EXPECT_EQ(Text(Jacket()), "");
    EXPECT_EQ(Text(Impedance()), "450 Ω");
}

TEST_P(CoaxChoice, TypeWithoutFurtherFiguresShowsNone)
{
    ChooseCoax("CABLEWORKS", "RG-58");
    ChooseCoax("CABLEWORKS", "ONE POINT");
    EXPECT_EQ(Text(Jacket()), "");
    EXPECT_EQ(Text(Impedance()), "");
}

TEST_P(CoaxChoice, PointWithoutAValueKeepsWhatItHeld)
{
    ChooseCoax("CABLEWORKS", "RG-8X");
    ChooseCoax("CABLEWORKS", "ONE POINT");
    EXPECT_EQ(Data().CoaxLoss, 2.11F); // 2.0 + 0.01 + 2 * (2.5 - 2.0) * 0.1
    ChooseCoax("CABLEWORKS", "NO FIGURES");
    EXPECT_EQ(Data().CoaxLoss, 2.11F);
}

TEST_P(CoaxChoice, FiguresAreOneArrayForBothSystems)
{
    Choose(Others(0), "CABLEWORKS");
    Choose(Others(1), "RG-8X");
    ChooseCoax("CABLEWORKS", "ONE POINT");
    EXPECT_EQ(Data().CoaxLoss, 2.11F);
}

TEST_P(CoaxChoice, FiguresAreLoadedAnewWhenTheFrequencyTurns)
{
    ChooseCoax("CABLEWORKS", "RG-8X");
    Choose(Others(0), "CABLEWORKS");
    Choose(Others(1), "RG-58");
    Spin(Own("vsFrequency")).setValue(2);
    EXPECT_EQ(Data().CoaxLoss, 3.71F);
    EXPECT_EQ(systems.Data[Other(System())].CoaxLoss, 1.79F);
}

TEST_P(CoaxChoice, SameTypeAgainIsTakenAgain)
{
    ChooseCoax("CABLEWORKS", "RG-8X");
    Paste(Own("txtFrequency"), "144.3");
    EXPECT_EQ(Data().CoaxLoss, 1.31F);
    Choose(Types(), "RG-8X");
    EXPECT_EQ(Data().CoaxLoss, 3.71F);
}

TEST_P(CoaxChoice, LeavesTheOtherSystemAlone)
{
    const engine::SystemData other = systems.Data[Other(System())];
    ChooseCoax("CABLEWORKS", "RG-8X");
    EXPECT_EQ(systems.Data[Other(System())], other);
}

TEST_P(CoaxChoice, ReloadingTheMakersKeepsWhatIsChosen)
{
    ChooseCoax("CABLEWORKS", "RG-8X");
    const engine::SystemData data = Data();
    folder.Put("Coax/A NEW ONE.DAT", "[X]\nLoss1=1\n");

    Window().LoadCableMakers();

    EXPECT_EQ(Entries(Brands()), "A NEW ONE|CABLEWORKS|TIMES MICROWAVE");
    EXPECT_EQ(Text(Brands()), "CABLEWORKS");
    EXPECT_EQ(Text(Types()), "RG-8X");
    EXPECT_EQ(Data(), data);
}

TEST_P(CoaxChoice, LongNamesAreCutInTheRecordOnly)
{
    folder.Put("Coax/ABCDEFGHIJKLMNOPQ.DAT", "[A CABLE TYPE WITH A LONG NAME]\nLoss10=1\nLoss50=1\n");
    Window().LoadCableMakers();
    ChooseCoax("ABCDEFGHIJKLMNOPQ", "A CABLE TYPE WITH A LONG NAME");
    EXPECT_EQ(Data().CoaxBrand.Padded(), "ABCDEFGHIJKLMNO");
    EXPECT_EQ(Data().CoaxModel.Padded(), "A CABLE TYPE WITH A ");
    EXPECT_EQ(Text(Own("lblCoaxBrand")), "ABCDEFGHIJKLMNOPQ");
    EXPECT_EQ(Text(Own("lblCoaxType")), "A CABLE TYPE WITH A LONG NAME");
    EXPECT_EQ(Data().CoaxLoss, 1.01F);
}

TEST_P(CoaxChoice, KFactorMakerIsComputedByItsFactors)
{
    ChooseCoax("TIMES MICROWAVE", "LMR-A");
    EXPECT_FLOAT_EQ(Data().CoaxLoss, 0.457265F); // 0.12 * 3.774917 + 0.0003 * 14.25
    EXPECT_EQ(Text(Own("lblCoaxDBLoss")), "0.46");
    EXPECT_EQ(Text(Jacket()), "0.405 in");
    EXPECT_EQ(Text(Impedance()), "50 Ω");
}

TEST_P(CoaxChoice, LengthCountsTwiceForTheKFactorMakerAsGiven)
{
    Paste(Spelled("txtSystem%CoaxLength"), "50");
    ChooseCoax("TIMES MICROWAVE", "LMR-A");
    EXPECT_FLOAT_EQ(Data().CoaxLoss, 0.2286325F);
    EXPECT_EQ(Text(Own("lblCoaxDBLoss")), "0.11"); // a quarter of 0.457
}

TEST_P(CoaxChoice, KFactorMakersNameInOtherCaseReadsLossesAndComputesByFactorsAsGiven)
{
    folder.Put("Coax/Times Microwave.DAT", "[X]\nLoss10=2\nLoss50=3\nK1=7\nK2=8\n");
    Window().LoadCableMakers();
    ChooseCoax("Times Microwave", "X");
    EXPECT_FLOAT_EQ(Data().CoaxLoss, 50.29983F); // 2 * 3.774917 + 3 * 14.25
}

INSTANTIATE_TEST_SUITE_P(Lists, CoaxChoice, BothSystems(), SystemName());

TEST_F(WindowTest, EachCoaxListRunsItsHandlerOnce)
{
    Open();
    Choose("cboSystemOneCoax(0)", "CABLEWORKS");
    EXPECT_EQ(std::ranges::count(hooks.Record(), 'B'), 3);
    hooks.Clear();
    Choose("cboSystemOneCoax(1)", "RG-8X");
    EXPECT_EQ(std::ranges::count(hooks.Record(), 'B'), 3);
}

} // namespace
} // namespace quillon::ui
