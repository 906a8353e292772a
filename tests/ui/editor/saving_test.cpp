#include "tests/support/row_name.h"
#include "tests/ui/editor/editor_fixture.h"

#include <QLocale>
#include <QTest>

#include <algorithm>
#include <filesystem>

namespace quillon::ui {
namespace {

class SavingTest : public EditorTest
{
protected:
    void SetUp() override
    {
        Open();
        Edit("ACME", "XR-5");
    }

    /// Checks a band's box with the space bar, which asks nothing.
    void Toggle(int index)
    {
        Find(Of("chkBands", index)).setFocus();
        Press(Qt::Key_Space);
    }

    /// The model's section in the maker's file, one entry after the other.
    std::string Saved()
    {
        const std::string file = File("ACME.DAT");
        std::string section = file.substr(0, file.find("[A-99]"));
        std::erase(section, '\r');
        std::ranges::replace(section, '\n', ' ');
        return section;
    }
};

TEST_F(SavingTest, WritesTheModelAndItsIndexAndLocksTheFields)
{
    Paste("txtGainFigure(6)", "8.2");
    Click("optGainType(1)");
    calls.FailAt(0, 0);
    Click("cmdSave");
    EXPECT_EQ(Saved(), "[XR-5] GainType=dBd Gain20=82 Gain15=78 ");
    EXPECT_EQ(File("ANTENNAS.ZEP"), "[ACME]\r\nDateCreated=03/14/2003\r\nLastModified=03/07/2026\r\nNumEntries=2\r\n");
    EXPECT_EQ(std::ranges::count(calls.Made(), "rename"), 2) << "each file is replaced once";
    EXPECT_EQ(Text("lblStatus"), "Changes saved.");
    EXPECT_FALSE(IsEditable());
    EXPECT_EQ(FileInfo(), "2|03/14/2003|03/07/2026");
    EXPECT_EQ(window.Calls(), Calls{"ReloadAntennas ACME"});
    EXPECT_TRUE(notifier.Messages().empty());
    EXPECT_EQ(Text("cboAntennaModels"), "XR-5");
    EXPECT_TRUE(Find("cmdEdit").isEnabled());
}

struct GainRow
{
    const char* name;
    const char* typed;
    const char* saved;
    const char* shown;
};

class SavedGain : public SavingTest, public ::testing::WithParamInterface<GainRow>
{
};

TEST_P(SavedGain, IsInTenthsAndShownAsItWasSaved)
{
    Paste("txtGainFigure(6)", GetParam().typed);
    Click("cmdSave");
    EXPECT_EQ(Saved(), "[XR-5] GainType=dBi Gain20=" + std::string(GetParam().saved) + " Gain15=78 ");
    EXPECT_EQ(Text("txtGainFigure(6)"), GetParam().shown);
    EXPECT_TRUE(notifier.Messages().empty());
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Figures, SavedGain, ::testing::Values(
    GainRow{"half to the even above", "5.15", "52", "5.2"},
    GainRow{"half to the even below", "2.25", "22", "2.2"},
    GainRow{"read as a double", "5.05", "50", "5.0"},
    GainRow{"small half", "0.35", "4", "0.4"},
    GainRow{"empty box of a covered band", "", "0", "0.0"},
    GainRow{"negative", "-1.6", "-16", "-1.6"},
    GainRow{"no leading zero", ".5", "5", "0.5"},
    GainRow{"whole", "7", "70", "7.0"},
    GainRow{"largest", "3276.7", "32767", "3276.7"}), support::RowName());

// clang-format on

TEST_F(SavingTest, BandThatIsUncheckedLosesItsKey)
{
    Toggle(6);
    Click("cmdSave");
    EXPECT_EQ(Saved(), "[XR-5] GainType=dBi Gain15=78 ");
    EXPECT_EQ(Gains(), "|||||||7.8||||||");
}

TEST_F(SavingTest, BandCaptioned75IsSavedAs80)
{
    Toggle(2);
    Paste("txtGainFigure(2)", "1");
    Click("cmdSave");
    EXPECT_EQ(Saved(), "[XR-5] GainType=dBi Gain20=71 Gain15=78 Gain80=10 ");
}

TEST_F(SavingTest, EveryBandHasItsKey)
{
    for (int index = 1; index <= 14; ++index) {
        Paste(Of("txtGainFigure", index), std::to_string(index));
        if (!Find<QAbstractButton>(Of("chkBands", index)).isChecked()) {
            Toggle(index);
        }
    }
    Click("cmdSave");
    EXPECT_EQ(Saved(), "[XR-5] GainType=dBi Gain20=60 Gain15=80 Gain160=10 Gain80=20 Gain60=30 Gain40=40 Gain30=50 "
                       "Gain17=70 Gain12=90 Gain10=100 Gain6=110 Gain2=120 Gain1.25=130 Gain.70=140 ");
}

struct BadGainRow
{
    const char* name;
    const char* text;
    const char* message;
};

class BadGain : public SavingTest, public ::testing::WithParamInterface<BadGainRow>
{
};

TEST_P(BadGain, OfACoveredBandKeepsAllFromBeingSaved)
{
    const std::string before = File("ACME.DAT");
    const std::string index = File("ANTENNAS.ZEP");
    Paste("txtGainFigure(6)", "1");
    Paste("txtGainFigure(8)", GetParam().text);
    Click("cmdSave");
    EXPECT_EQ(notifier.Messages(), (Messages{{GetParam().message, kTitle}}));
    EXPECT_EQ(File("ACME.DAT"), before);
    EXPECT_EQ(File("ANTENNAS.ZEP"), index);
    EXPECT_EQ(Focus(), "txtGainFigure(8)");
    EXPECT_TRUE(IsEditable());
    EXPECT_EQ(Text("lblStatus"), "");
    EXPECT_TRUE(window.Calls().empty());
    Paste("txtGainFigure(8)", "2");
    Click("cmdSave");
    EXPECT_EQ(Saved(), "[XR-5] GainType=dBi Gain20=10 Gain15=20 ");
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Texts, BadGain, ::testing::Values(
    BadGainRow{"minus alone", "-", "15 Meters: “-” is not a number."},
    BadGainRow{"word", "%1 <b>", "15 Meters: “%1 <b>” is not a number."},
    BadGainRow{"two points", "1.2.3", "15 Meters: “1.2.3” is not a number."},
    BadGainRow{"blank", " ", "15 Meters: “ ” is not a number."},
    BadGainRow{"just beyond 16 bits", "3276.8", "15 Meters: “3276.8” is too large."},
    BadGainRow{"far too small", "-99999", "15 Meters: “-99999” is too large."},
    BadGainRow{"beyond doubles", "1e999", "15 Meters: “1e999” is too large."}), support::RowName());

// clang-format on

TEST_F(SavingTest, BadGainOfABandThatIsNotCoveredDoesNotCount)
{
    Paste("txtGainFigure(1)", "x");
    Click("cmdSave");
    EXPECT_TRUE(notifier.Messages().empty());
    EXPECT_EQ(Text("lblStatus"), "Changes saved.");
    EXPECT_EQ(Text("txtGainFigure(1)"), "");
}

TEST_F(SavingTest, FileThatCannotBeWrittenIsToldAndNeverReportedAsSaved)
{
    const std::string before = File("ACME.DAT");
    Paste("txtGainFigure(6)", "1");
    std::filesystem::rename(folder / "Antennas/ACME.DAT", folder / "kept");
    std::filesystem::create_directory(folder / "Antennas/ACME.DAT");
    Click("cmdSave");
    EXPECT_EQ(notifier.Messages(), (Messages{{"The file of “ACME” could not be written.", kTitle}}));
    EXPECT_EQ(folder.Get("kept"), before);
    EXPECT_EQ(Text("lblStatus"), "");
    EXPECT_TRUE(IsEditable());
    EXPECT_EQ(Text("txtGainFigure(6)"), "1");
    EXPECT_EQ(window.Calls(), Calls{"ReloadAntennas ACME"}) << "the last step alone may have failed";
}

TEST_F(SavingTest, IndexThatCannotBeWrittenIsToldAndNeverReportedAsSaved)
{
    std::filesystem::remove(folder / "Antennas/ANTENNAS.ZEP");
    std::filesystem::create_directory(folder / "Antennas/ANTENNAS.ZEP");
    Paste("txtGainFigure(6)", "1");
    Click("cmdSave");
    EXPECT_EQ(notifier.Messages(),
              (Messages{{"The file of “ACME” is written, but the index of the antenna files could not be.", kTitle}}));
    EXPECT_EQ(Saved(), "[XR-5] GainType=dBi Gain20=10 Gain15=78 ");
    EXPECT_EQ(Text("lblStatus"), "");
    EXPECT_TRUE(IsEditable());
    EXPECT_EQ(window.Calls(), Calls{"ReloadAntennas ACME"}) << "the gains have changed all the same";
}

TEST_F(SavingTest, EveryFailingCallLeavesWholeFilesAndTellsWhatIsWrong)
{
    const std::string before = File("ACME.DAT");
    const Messages unread{{"The file of “ACME” could not be read.", kTitle}};
    int told = 0;
    for (int failing = 1; failing < 100; ++failing) {
        notifier.Clear();
        folder.Put("Antennas/ACME.DAT", before);
        Edit("ACME", "XR-5");
        Paste("txtGainFigure(6)", "1");
        calls.FailAt(failing, EIO);
        Click("cmdSave");
        calls.FailAt(0, 0);
        const bool isSaved = File("ACME.DAT") != before;
        EXPECT_TRUE(!isSaved || Saved() == "[XR-5] GainType=dBi Gain20=10 Gain15=78 ") << failing << Saved();
        // What is saved is read again to be shown, which may fail in its turn.
        const bool isUnread = notifier.Messages() == unread;
        EXPECT_EQ(notifier.Messages().empty() || isUnread, Text("lblStatus") == "Changes saved.") << failing;
        EXPECT_NE(isUnread, Find("cmdEdit").isEnabled()) << failing;
        told += notifier.Messages().empty() ? 0 : 1;
        dialog.Prepare();
    }
    EXPECT_GE(told, 5);
}

/// A desktop whose numbers carry a comma.
class CommaGain : public EditorTest
{
protected:
    void SetUp() override
    {
        dialog.setLocale(QLocale(QLocale::German, QLocale::Germany));
        Open();
        Edit("ACME", "XR-5");
    }
};

TEST_F(CommaGain, IsShownWithTheCommaAndReadWithBoth)
{
    EXPECT_EQ(Box("txtGainFigure(6)").text(), QStringLiteral("7,1"));
    EXPECT_EQ(Box("txtGainFigure(8)").text(), QStringLiteral("7,8"));
    for (const char* typed : {"5,15", "5.15"}) {
        Click("cmdEdit");
        Paste("txtGainFigure(6)", "");
        Box("txtGainFigure(6)").setFocus();
        test::Type(dialog, QString::fromUtf8(typed));
        EXPECT_EQ(Box("txtGainFigure(6)").text().toStdString(), typed);
        Click("cmdSave");
        EXPECT_NE(File("ACME.DAT").find("Gain20=52\r\n"), std::string::npos) << typed;
        EXPECT_EQ(Box("txtGainFigure(6)").text(), QStringLiteral("5,2"));
    }
}

} // namespace
} // namespace quillon::ui
