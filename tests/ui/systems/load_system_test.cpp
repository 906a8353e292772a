#include "ui/systems/load_system.h"

#include "tests/support/find_widget.h"
#include "tests/support/row_name.h"
#include "tests/support/sample_pair.h"
#include "tests/support/shown_window.h"
#include "tests/ui/systems/systems_fixture.h"
#include "ui/systems/name_list_box.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QHelpEvent>
#include <QToolTip>

#include <algorithm>

namespace quillon::ui {
namespace {

using engine::SystemId;

const std::string kTwoPairs =
    "[SavedSystems]\nSystem:1=Home\nSystem:2=Field Day\nSystem:3=\nSystem:4=Behind\n[Home]\n" +
    support::SampleEntries("\n") +
    "[Field Day]\nSystem1AntennaBrand=M\xFChle\nSystem1AntennaGain=1\nSystem1CoaxType=0\n"
    "System1CoaxLoss=2\nSystem1CoaxLength=30\nSystem2AntennaGain=-2.5\nSystem2CoaxType=1\n"
    "System2CoaxLoss=0\nSystem2CoaxLength=0\n";

/// Records that no file holds: whatever is read must replace all of them.
engine::AntennaSystems OtherRecords()
{
    engine::AntennaSystems systems;
    for (const SystemId system : engine::kBothSystems) {
        engine::SystemData& data = systems.Data[system];
        data.AntennaBrand = "other";
        data.GainType = "dBi";
        data.UseAntennaList = engine::kTrue;
        data.UseCoaxList = engine::kTrue;
        data.ConnectorLoss = 1;
        data.XmitPower = 7;
        systems.Results[system] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11};
        systems.State[system].SetFlag(engine::kSavedFlag, engine::kTrue);
    }
    return systems;
}

class LoadSystemTest : public SystemsTest
{
protected:
    void SetUp() override { window.Systems() = OtherRecords(); }

    void Open(const std::string& bytes)
    {
        Put(bytes);
        dialog.Prepare();
        test::ShowActive(dialog);
    }

    QComboBox& List() { return test::Find<QComboBox>(dialog, QStringLiteral("cboSavedSystems")); }

    std::string Entries()
    {
        QStringList entries;
        for (int place = 0; place < List().count(); ++place) {
            entries.append(List().itemText(place));
        }
        return entries.join(u'|').toStdString();
    }

    bool IsEnabled(const char* button)
    {
        return test::Find<QAbstractButton>(dialog, QString::fromUtf8(button)).isEnabled();
    }

    /// Whether the records stand as they did before anything was read.
    bool RecordsAreUntouched()
    {
        const engine::AntennaSystems before = OtherRecords();
        return window.Systems().Data == before.Data && window.Systems().Results == before.Results;
    }

    /// What reading kTwoPairs' "Field Day" must give.
    static store::SystemPair FieldDay()
    {
        store::SystemPair pair{store::ResetSystem(), store::ResetSystem()};
        pair[SystemId::One].AntennaBrand = "M\xFChle";
        pair[SystemId::One].AntennaGain = 1;
        pair[SystemId::One].CoaxLoss = 2;
        pair[SystemId::One].CoaxLength = 30;
        pair[SystemId::Two].AntennaGain = -2.5F;
        pair[SystemId::Two].CoaxType = 1;
        pair[SystemId::Two].CoaxLength = 0;
        return pair;
    }

    LoadSystem dialog{window, readWrite, store, notifier};
};

TEST_F(LoadSystemTest, OpensWithTheListAndItsFirstEntryLeavingTheRecords)
{
    Open(kTwoPairs);
    EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Load an Antenna System"));
    EXPECT_EQ(Entries(), "Home|Field Day");
    EXPECT_EQ(List().currentText(), QStringLiteral("Home"));
    EXPECT_EQ(LinesOf(dialog, "lblSelect"),
              "Wirecraft - Beam Four|Cableworks - RG-8X|Mastline - Vertical 5|TIMES MICROWAVE - LMR-400");
    EXPECT_EQ(TextOf(dialog, "cmdLoad"), "&Load System");
    EXPECT_EQ(TextOf(dialog, "cmdCancel"), "&Cancel");
    EXPECT_TRUE(IsEnabled("cmdCancel"));
    EXPECT_TRUE(List().hasFocus());
    EXPECT_TRUE(RecordsAreUntouched());
    EXPECT_TRUE(window.Calls().empty());
    EXPECT_TRUE(notifier.Messages().empty());
}

TEST_F(LoadSystemTest, EmptyListOffersToCloseOnly)
{
    for (const char* bytes : {"", "[SavedSystems]\n", "[SavedSystems]\nSystem:1=\nSystem:2=A\n"}) {
        Open(bytes);
        EXPECT_EQ(Entries(), "");
        EXPECT_EQ(TextOf(dialog, "cmdLoad"), "C&lose");
        EXPECT_FALSE(IsEnabled("cmdCancel"));
        EXPECT_EQ(LinesOf(dialog, "lblSelect"), "|||");
        ClickOn(dialog, "cmdLoad");
        EXPECT_FALSE(dialog.isVisible());
    }
    EXPECT_TRUE(RecordsAreUntouched());
    EXPECT_TRUE(window.Calls().empty());
    EXPECT_TRUE(notifier.Messages().empty());
}

TEST_F(LoadSystemTest, MissingFileIsToldAndTheListIsEmpty)
{
    dialog.Prepare();
    EXPECT_EQ(notifier.Messages(), std::vector{(Message{MissingFileText(), "Data File Missing"})});
    EXPECT_EQ(Entries(), "");
    EXPECT_EQ(TextOf(dialog, "cmdLoad"), "C&lose");
    EXPECT_FALSE(IsEnabled("cmdCancel"));
}

TEST_F(LoadSystemTest, SelectingReadsTheEntryIntoTheRecordsAtOnce)
{
    Open(kTwoPairs);
    test::Click(dialog, Qt::Key_Down);
    EXPECT_EQ(List().currentText(), QStringLiteral("Field Day"));
    EXPECT_EQ(window.Systems().Data, FieldDay());
    EXPECT_EQ(window.Systems().Results, engine::PerSystem<engine::SystemResults>());
    EXPECT_EQ(LinesOf(dialog, "lblSelect"), "Mühle - | - | - | - ");
    EXPECT_TRUE(window.Calls().empty());
}

TEST_F(LoadSystemTest, SelectingTheEntryThatIsSelectedReadsItToo)
{
    Open(kTwoPairs);
    test::Click(dialog, Qt::Key_Space);
    ASSERT_TRUE(List().view()->isVisible());
    QTest::keyClick(List().view(), Qt::Key_Return);
    EXPECT_EQ(window.Systems().Data, support::SamplePair());
    EXPECT_TRUE(dialog.isVisible());
}

TEST_F(LoadSystemTest, CancelAfterSelectingLeavesTheRecordsChangedAsGiven)
{
    Open(kTwoPairs);
    test::Click(dialog, Qt::Key_Down);
    ClickOn(dialog, "cmdCancel");
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(window.Systems().Data, FieldDay());
    EXPECT_TRUE(window.Calls().empty());
}

TEST_F(LoadSystemTest, LoadsTheFirstEntryWithoutAClick)
{
    Open(kTwoPairs);
    ClickOn(dialog, "cmdLoad");
    EXPECT_EQ(window.Systems().Data, support::SamplePair());
    EXPECT_EQ(window.Systems().Results, engine::PerSystem<engine::SystemResults>());
    EXPECT_EQ(window.Calls(), (Calls{"ShowRecord 1", "ShowRecord 2", "RefreshData 1", "RefreshData 2"}));
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_TRUE(notifier.Messages().empty());
}

TEST_F(LoadSystemTest, LoadingReadsTheSelectedEntryOnceMore)
{
    Open(kTwoPairs);
    test::Click(dialog, Qt::Key_Down);
    std::string changed = kTwoPairs;
    changed.replace(changed.find("System1CoaxLength=30"), 20, "System1CoaxLength=31");
    Put(changed);
    ClickOn(dialog, "cmdLoad");
    EXPECT_EQ(window.Systems().Data[SystemId::One].CoaxLength, 31.0F);
}

TEST_F(LoadSystemTest, LoadedRecordsHoldNothingOfTheOldOnes)
{
    Open(kTwoPairs);
    ClickOn(dialog, "cmdLoad");
    for (const SystemId system : engine::kBothSystems) {
        EXPECT_EQ(window.Systems().Data[system].GainType, "");
        EXPECT_EQ(window.Systems().Data[system].UseAntennaList, engine::kFalse);
        EXPECT_EQ(window.Systems().Data[system].UseCoaxList, engine::kFalse);
        EXPECT_EQ(window.Systems().Data[system].ConnectorLoss, 0.0F);
    }
}

struct DamageRow
{
    const char* name;
    const char* from; ///< what a good file holds in its place
    const char* to;
    const char* message;
};

class DamagedPair : public LoadSystemTest, public ::testing::WithParamInterface<DamageRow>
{
protected:
    static std::string File()
    {
        std::string bytes = kTwoPairs;
        const std::string from = GetParam().from;
        bytes.replace(bytes.rfind(from), from.size(), GetParam().to);
        return bytes;
    }
};

TEST_P(DamagedPair, IsRefusedBeforeARecordIsTouched)
{
    Open(File());
    test::Click(dialog, Qt::Key_Down);
    const Message message{GetParam().message, "Load an Antenna System"};
    EXPECT_EQ(notifier.Messages(), std::vector{message});
    EXPECT_EQ(LinesOf(dialog, "lblSelect"), "Mühle - | - | - | - ");
    ClickOn(dialog, "cmdLoad");
    EXPECT_EQ(notifier.Messages(), (std::vector{message, message}));
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_TRUE(RecordsAreUntouched());
    EXPECT_TRUE(window.Calls().empty());
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Values, DamagedPair, ::testing::Values(
    DamageRow{"gain missing", "System1AntennaGain=1\n", "",
              "“Field Day” cannot be loaded: its System1AntennaGain is missing."},
    DamageRow{"gain of system two empty", "System2AntennaGain=-2.5", "System2AntennaGain=",
              "“Field Day” cannot be loaded: its System2AntennaGain is missing."},
    DamageRow{"coax type no number", "System2CoaxType=1", "System2CoaxType=%1<b>",
              "“Field Day” cannot be loaded: its System2CoaxType is “%1<b>”, which is not a number."},
    DamageRow{"coax type too large", "System2CoaxType=1", "System2CoaxType=32768",
              "“Field Day” cannot be loaded: its System2CoaxType is “32768”, which is too large."},
    DamageRow{"coax loss no number", "System1CoaxLoss=2", "System1CoaxLoss=two",
              "“Field Day” cannot be loaded: its System1CoaxLoss is “two”, which is not a number."},
    DamageRow{"results that would overflow", "System2CoaxLoss=0\nSystem2CoaxLength=0",
              "System2CoaxLoss=3e38\nSystem2CoaxLength=3e38",
              "“Field Day” cannot be loaded: the figures of its System2 cannot be computed with."},
    DamageRow{"coax length missing", "System2CoaxLength=0\n", "",
              "“Field Day” cannot be loaded: its System2CoaxLength is missing."}), support::RowName());

// clang-format on

TEST_F(LoadSystemTest, MissingConnectorsAndVSWRHaveTheirDefaults)
{
    std::string bytes = kTwoPairs;
    for (const std::string line : {"System1Connectors=2\n", "System1VSWR=1.5\n", "System2Connectors=4\n"}) {
        bytes.erase(bytes.find(line), line.size());
    }
    Open(bytes);
    ClickOn(dialog, "cmdLoad");
    EXPECT_EQ(window.Systems().Data[SystemId::One].Connectors, 2);
    EXPECT_EQ(window.Systems().Data[SystemId::Two].Connectors, 2);
    EXPECT_EQ(window.Systems().Data[SystemId::One].VSWR, 1.1F);
}

TEST_F(LoadSystemTest, FirstEntryWithoutSectionIsShownBlankAndToldOnlyWhenLoaded)
{
    Open("[SavedSystems]\nSystem:1=Gone\n");
    EXPECT_EQ(LinesOf(dialog, "lblSelect"), " - | - | - | - ");
    EXPECT_TRUE(notifier.Messages().empty());
    ClickOn(dialog, "cmdLoad");
    EXPECT_EQ(notifier.Messages(), std::vector{(Message{"“Gone” cannot be loaded: its System1AntennaGain is missing.",
                                                        "Load an Antenna System"})});
    EXPECT_TRUE(RecordsAreUntouched());
}

TEST_F(LoadSystemTest, FileThatHasGoneMeanwhileIsToldAndNothingIsLoaded)
{
    Open(kTwoPairs);
    std::filesystem::remove(folder / "QuillonSystems.dat");
    ClickOn(dialog, "cmdLoad");
    EXPECT_EQ(notifier.Messages(), std::vector{(Message{MissingFileText(), "Data File Missing"})});
    EXPECT_TRUE(RecordsAreUntouched());
    EXPECT_TRUE(dialog.isVisible());
}

TEST_F(LoadSystemTest, NamesAreShownAsTheyStandAndInLetters)
{
    Open("[SavedSystems]\nSystem:1=<b>A & B</b>\nSystem:2=M\xFChle\n[M\xFChle]\nSystem1CoaxBrand=\x80\n");
    EXPECT_EQ(Entries(), "<b>A & B</b>|Mühle");
    test::Click(dialog, Qt::Key_Down);
    EXPECT_EQ(LinesOf(dialog, "lblSelect"), " - |€ - | - | - ");
}

TEST_F(LoadSystemTest, LongNameIsElidedAndToldInTheToolTip)
{
    const std::string name = "<b>" + std::string(200, 'W');
    Open("[SavedSystems]\nSystem:1=" + name + "\nSystem:2=short\n");
    auto& list = dynamic_cast<NameListBox&>(List());
    EXPECT_EQ(list.currentText().toStdString(), name);
    EXPECT_TRUE(list.ShownName().endsWith(QChar(0x2026)));
    QHelpEvent help(QEvent::ToolTip, list.rect().center(), list.mapToGlobal(list.rect().center()));
    QApplication::sendEvent(&list, &help);
    EXPECT_FALSE(QToolTip::text().contains(QStringLiteral("<b>"))) << "which would be taken as a mark-up";
    EXPECT_TRUE(QToolTip::text().contains(QString(200, u'W')));
    list.setCurrentIndex(1);
    EXPECT_EQ(list.ShownName(), QStringLiteral("short"));
}

TEST_F(LoadSystemTest, EachOpeningStartsFromTheDesignedState)
{
    Open("");
    dialog.reject();
    Open(kTwoPairs);
    EXPECT_EQ(TextOf(dialog, "cmdLoad"), "&Load System");
    EXPECT_TRUE(IsEnabled("cmdCancel"));
    test::Click(dialog, Qt::Key_Down);
    dialog.reject();
    Open(kTwoPairs);
    EXPECT_EQ(Entries(), "Home|Field Day");
    EXPECT_EQ(List().currentIndex(), 0);
    EXPECT_TRUE(LinesOf(dialog, "lblSelect").starts_with("Wirecraft - Beam Four|"));
}

TEST_F(LoadSystemTest, EscClosesAlsoWhenThereIsNothingToLoad)
{
    for (const std::string& bytes : {kTwoPairs, std::string()}) {
        Open(bytes);
        test::Click(dialog, Qt::Key_Escape);
        EXPECT_FALSE(dialog.isVisible());
    }
    EXPECT_TRUE(RecordsAreUntouched());
}

TEST_F(LoadSystemTest, TenThousandPairsAreListedWithFewReads)
{
    std::string bytes = "[SavedSystems]\n";
    for (int number = 1; number <= 10000; ++number) {
        bytes += "System:" + std::to_string(number) + "=Pair " + std::to_string(number) + "\n";
    }
    Put(bytes);
    calls.FailAt(0, 0);
    dialog.Prepare();
    EXPECT_EQ(List().count(), 10000);
    EXPECT_EQ(List().itemText(9999), QStringLiteral("Pair 10000"));
    EXPECT_LE(std::count(calls.Made().begin(), calls.Made().end(), "open"), 2);
}

TEST_F(LoadSystemTest, IsModalUntilItIsClosed)
{
    Put(kTwoPairs);
    bool isSeen = false;
    WhenModal([this, &isSeen](QWidget& modal) {
        isSeen = &modal == &dialog && Entries() == "Home|Field Day";
        dialog.reject();
    });
    dialog.Open();
    EXPECT_TRUE(isSeen);
}

} // namespace
} // namespace quillon::ui
