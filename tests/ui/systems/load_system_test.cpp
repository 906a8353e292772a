#include "tests/ui/systems/load_system_fixture.h"
#include "ui/systems/name_list_box.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QToolTip>

#include <algorithm>

namespace quillon::ui {
namespace {

using engine::SystemId;

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
