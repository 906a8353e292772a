#include "tests/ui/main/window_fixture.h"

#include <QRadioButton>

namespace quillon::ui {
namespace {

/// A text to the letter.
std::string Shown(const QWidget& widget)
{
    return widget.property("text").toString().toStdString();
}

/// A desktop whose numbers carry a comma.
class CommaLocale : public EachSystem
{
protected:
    void SetUp() override
    {
        QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
        EachSystem::SetUp();
    }
};

TEST_P(CommaLocale, StartsWithTheSameInputs)
{
    EXPECT_EQ(Shown(Find(Own("txtFrequency"))), "14,250");
    EXPECT_EQ(Shown(Find(Own("txtVSWR"))), "1,1");
    EXPECT_EQ(Data().Frequency, 14.25F);
    EXPECT_EQ(Data().VSWR, 1.1F);
    EXPECT_FALSE(IsMarked(Own("txtFrequency")));
}

TEST_P(CommaLocale, ShowsResultsWithTheComma)
{
    EXPECT_EQ(Shown(Find(Own("lblERP"))), "0,00");
    EXPECT_EQ(Shown(Find(Own("lblVSWRReturnLoss"))), "0,0000");
    ChooseCoax("CABLEWORKS", "RG-8X");
    ChooseAntenna("WIRECRAFT", "BEAM FOUR", "20 Meters");
    EXPECT_EQ(Shown(Find(Own("lblERP"))), "234,40");
    EXPECT_EQ(Shown(Find(Own("lblSystemGain"))), "3,68");
    EXPECT_EQ(Find(Own("lblSystemGain")).toolTip().toStdString(), "5 + ((1,31 + 0,01304) * -1) = 3,68");
    EXPECT_EQ(Find(Own("lblERP")).accessibleName().toStdString(),
              "Antenna System ERP, System " + std::to_string(Number()) + ": 234,40 W");
}

TEST_P(CommaLocale, TellsTheLengthInMetresWithTheComma)
{
    const std::string box = Spelled("txtSystem%CoaxLength");
    EXPECT_EQ(Find(box).toolTip().toStdString(), "30,5 m");
    Paste(box, "32,5");
    EXPECT_EQ(Find(box).toolTip().toStdString(), "9,9 m"); // 9.906
    Paste(box, "32.5");
    EXPECT_EQ(Find(box).toolTip().toStdString(), "9,9 m");
}

TEST_P(CommaLocale, ReadsCatalogueFiguresWithThePointAndShowsTheComma)
{
    ChooseCoax("CABLEWORKS", "RG-8X");
    EXPECT_EQ(Data().CoaxLoss, 1.31F);
    EXPECT_EQ(Shown(Find("lblCoaxSpecs(" + std::to_string(2 * Number() - 1) + ")")), "0,242 in");
    EXPECT_EQ(Shown(Find("lblDebugStatus(" + std::to_string(Number() + 1) + ")")), "1,31");
    ChooseAntenna("WIRECRAFT", "BEAM FOUR", "15 Meters");
    EXPECT_EQ(Shown(Find(Own("lblAntennaBand"))), "Gain = 5,7 dbd");
    EXPECT_EQ(Shown(Find(Own("txtFrequency"))), "21,225");
    EXPECT_EQ(Data().Frequency, 21.225F);
}

TEST_P(CommaLocale, SpinControlsWriteTheCommaAndReadItBack)
{
    Spin(Own("vsFrequency")).setValue(10);
    EXPECT_EQ(Shown(Find(Own("txtFrequency"))), "7,230");
    EXPECT_EQ(Data().Frequency, 7.23F);
    Spin(Pair("vsVSWR", 1)).setValue(5);
    EXPECT_EQ(Shown(Find(Own("txtVSWR"))), "1,5");
    EXPECT_EQ(Data().VSWR, 1.5F);
}

INSTANTIATE_TEST_SUITE_P(German, CommaLocale, BothSystems(), SystemName());

struct SeparatorRow
{
    const char* name;
    const char* text;
    float value;
};

class CommaText : public EachSystemRow<SeparatorRow>
{
protected:
    void SetUp() override
    {
        QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
        Open();
    }
};

TEST_P(CommaText, IsReadInEveryBox)
{
    Paste(Own("txtOutputPower"), Case().text);
    Paste(Own("txtFrequency"), Case().text);
    Paste(Spelled("txtSystem%CoaxLength"), Case().text);
    EXPECT_EQ(Data().XmitPower, Case().value);
    EXPECT_EQ(Data().Frequency, Case().value);
    EXPECT_EQ(Data().CoaxLength, Case().value);
}

INSTANTIATE_TEST_SUITE_P(
    German, CommaText,
    ::testing::Combine(BothSystems(),
                       ::testing::Values(SeparatorRow{"comma", "14,25", 14.25F}, SeparatorRow{"point", "14.25", 14.25F},
                                         SeparatorRow{"three digits behind a point are no group", "1.500", 1.5F},
                                         SeparatorRow{"three digits behind a comma", "1,500", 1.5F})),
    SystemName());

TEST_P(CommaLocale, GroupingIsRefused)
{
    Paste(Own("txtOutputPower"), "1.234,5");
    EXPECT_TRUE(IsMarked(Own("txtOutputPower")));
    EXPECT_EQ(Data().XmitPower, 100.0F);
}

class CommaTypedLoss : public WindowTest
{
protected:
    void SetUp() override
    {
        QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
        Open();
    }

    float Loss() { return systems.Data[engine::SystemId::One].CoaxLoss; }
};

TEST_F(CommaTypedLoss, CountsCommasAsPoints)
{
    Paste("txtCoaxLoss", "1,2,3");
    EXPECT_EQ(Shown(Find("txtCoaxLoss")), "1,2");
    EXPECT_EQ(Loss(), 1.2F);
    Paste("txtCoaxLoss", "1,5.3");
    EXPECT_EQ(Shown(Find("txtCoaxLoss")), "1,5");
    EXPECT_EQ(Loss(), 1.5F);
}

TEST_F(CommaTypedLoss, OfACommaAloneStoresNothing)
{
    Paste("txtCoaxLoss", "2");
    Paste("txtCoaxLoss", ",");
    EXPECT_EQ(Loss(), 2.0F);
    EXPECT_FALSE(IsMarked("txtCoaxLoss"));
}

TEST_F(CommaTypedLoss, GainSpinWritesTheCommaAndReadsItBack)
{
    Spin("vsAntennaGain(0)").setValue(97);
    EXPECT_EQ(Shown(Find("txtAntennaGain")), "0,3");
    EXPECT_EQ(systems.Data[engine::SystemId::One].AntennaGain, 0.3F);
}

} // namespace
} // namespace quillon::ui
