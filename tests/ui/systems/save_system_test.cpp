#include "ui/systems/save_system.h"

#include "tests/support/find_widget.h"
#include "tests/support/row_name.h"
#include "tests/support/sample_pair.h"
#include "tests/support/shown_window.h"
#include "tests/ui/systems/systems_fixture.h"

#include <gmock/gmock.h>

#include <QAbstractButton>
#include <QApplication>
#include <QLineEdit>
#include <QMessageBox>

namespace quillon::ui {
namespace {

using engine::SystemId;

class SaveSystemTest : public SystemsTest
{
protected:
    void SetUp() override
    {
        Put("");
        window.Systems().Data = support::SamplePair();
    }

    /// Runs the opening steps and shows the dialog.
    void Open()
    {
        dialog.Prepare();
        test::ShowActive(dialog);
    }

    void Name(const QString& text) { test::Find<QLineEdit>(dialog, QStringLiteral("txtSystemName")).setText(text); }

    void Press() { ClickOn(dialog, "cmdSave"); }

    /// Presses the save button and answers the question that follows.
    void PressAndAnswer(QMessageBox::StandardButton answer)
    {
        WhenModal([answer](QWidget& box) { dynamic_cast<QMessageBox&>(box).button(answer)->click(); });
        Press();
    }

    bool MaySave() { return test::Find<QAbstractButton>(dialog, QStringLiteral("cmdSave")).isEnabled(); }

    [[nodiscard]] std::string Focus() const
    {
        return dialog.focusWidget() != nullptr ? dialog.focusWidget()->objectName().toStdString() : "";
    }

    SaveSystem dialog{window, readWrite, store, notifier};
};

const std::string kSampleFile =
    "[SavedSystems]\r\nSystem:1=Home Station\r\nSystem:2=\r\n[Home Station]\r\n" + support::SampleEntries("\r\n");

TEST_F(SaveSystemTest, OpensWithBothSystemsAndTheFirstOnesAntennaAsName)
{
    Open();
    EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Save Current Antenna System"));
    EXPECT_EQ(TextOf(dialog, "txtSystemName"), "Wirecraft / Beam Four");
    EXPECT_EQ(LinesOf(dialog, "lblSave"),
              "Wirecraft - Beam Four|Cableworks - RG-8X|Mastline - Vertical 5|TIMES MICROWAVE - LMR-400");
    EXPECT_EQ(TextOf(dialog, "cmdSave"), "&Save System");
    EXPECT_EQ(TextOf(dialog, "cmdCancel"), "&Close");
    EXPECT_TRUE(MaySave());
    EXPECT_EQ(Focus(), "txtSystemName");
    EXPECT_TRUE(notifier.Messages().empty());
    EXPECT_TRUE(window.Calls().empty());
    EXPECT_EQ(Bytes(), "");
}

TEST_F(SaveSystemTest, TextsAreShownWithoutBlanksAndInLetters)
{
    window.Systems().Data[SystemId::One].AntennaBrand = "  M\xFChle ";
    window.Systems().Data[SystemId::One].AntennaModel = " <b>A & B</b>";
    Open();
    EXPECT_EQ(TextOf(dialog, "txtSystemName"), "Mühle / <b>A & B</b>");
    EXPECT_THAT(LinesOf(dialog, "lblSave"), testing::StartsWith("Mühle - <b>A & B</b>|"));
}

struct ProposalRow
{
    const char* name;
    const char* brandOne;
    const char* modelOne;
    const char* brandTwo;
    const char* modelTwo;
    const char* proposed;
};

class ProposedName : public SaveSystemTest, public ::testing::WithParamInterface<ProposalRow>
{
};

TEST_P(ProposedName, IsTheFirstAntennaThereIs)
{
    const ProposalRow& row = GetParam();
    window.Systems() = {};
    window.Systems().Data[SystemId::One].AntennaBrand = row.brandOne;
    window.Systems().Data[SystemId::One].AntennaModel = row.modelOne;
    window.Systems().Data[SystemId::Two].AntennaBrand = row.brandTwo;
    window.Systems().Data[SystemId::Two].AntennaModel = row.modelTwo;
    Open();
    EXPECT_EQ(TextOf(dialog, "txtSystemName"), row.proposed);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Antennas, ProposedName, ::testing::Values(
    ProposalRow{"both systems", "A", "B", "C", "D", "A / B"},
    ProposalRow{"system two alone", "", "", "C", "D", "C / D"},
    ProposalRow{"brand alone", "A", "", "C", "D", "A / "},
    ProposalRow{"model alone", "", "B", "C", "D", " / B"},
    ProposalRow{"none", "", "", "", "", ""}), support::RowName());

// clang-format on

TEST_F(SaveSystemTest, WithoutAntennaThereIsNothingToSave)
{
    window.Systems() = {};
    Open();
    EXPECT_EQ(notifier.Messages(), std::vector{(Message{"There is no system configured to save!", "Saved Systems"})});
    EXPECT_FALSE(MaySave());
    EXPECT_EQ(Focus(), "cmdCancel");
    EXPECT_EQ(LinesOf(dialog, "lblSave"), " - | - | - | - ");
}

TEST_F(SaveSystemTest, WithoutFileNothingIsShownAndNothingCanBeSaved)
{
    std::filesystem::remove(folder / "QuillonSystems.dat");
    Open();
    EXPECT_EQ(notifier.Messages(), std::vector{(Message{MissingFileText(), "Data File Missing"})});
    EXPECT_FALSE(MaySave());
    EXPECT_EQ(Focus(), "cmdCancel");
    EXPECT_EQ(TextOf(dialog, "txtSystemName"), "");
    EXPECT_EQ(LinesOf(dialog, "lblSave"), "|||");
}

TEST_F(SaveSystemTest, SavesBothSystemsUnderTheNameAndStaysOpen)
{
    Open();
    Name(QStringLiteral("Home Station"));
    Press();
    EXPECT_EQ(Bytes(), kSampleFile);
    EXPECT_EQ(TextOf(dialog, "cmdSave"), "&Close");
    EXPECT_EQ(Focus(), "cmdSave");
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(window.Calls(), Calls{"SetSavedFlags"});
    EXPECT_TRUE(notifier.Messages().empty());
}

TEST_F(SaveSystemTest, SecondPressClosesWithoutWriting)
{
    Open();
    Press();
    Put("");
    Press();
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(Bytes(), "");
    EXPECT_EQ(window.Calls().size(), 1U);
}

TEST_F(SaveSystemTest, NameIsSavedWithoutBlanksAround)
{
    Open();
    Name(QStringLiteral("  Home Station \t"));
    Press();
    EXPECT_EQ(Bytes(), kSampleFile);
}

TEST_F(SaveSystemTest, ThreeListedNamesAreFollowedByTheFourthAndAnEmptyFifth)
{
    Put("[SavedSystems]\r\nSystem:1=A\r\nSystem:2=B\r\nSystem:3=C\r\nSystem:4=\r\n");
    Open();
    Name(QStringLiteral("D"));
    Press();
    EXPECT_THAT(Bytes(),
                testing::StartsWith(
                    "[SavedSystems]\r\nSystem:1=A\r\nSystem:2=B\r\nSystem:3=C\r\nSystem:4=D\r\nSystem:5=\r\n[D]\r\n"));
}

TEST_F(SaveSystemTest, RewritingTheFirstOfThreeLeavesItAloneInTheListAsGiven)
{
    Put("[SavedSystems]\r\nSystem:1=A\r\nSystem:2=B\r\nSystem:3=C\r\nSystem:4=\r\n[B]\r\nkept=1\r\n");
    Open();
    Name(QStringLiteral("A"));
    PressAndAnswer(QMessageBox::Yes);
    EXPECT_THAT(Bytes(),
                testing::StartsWith(
                    "[SavedSystems]\r\nSystem:1=A\r\nSystem:2=\r\nSystem:3=C\r\nSystem:4=\r\n[B]\r\nkept=1\r\n"));
}

TEST_F(SaveSystemTest, ListedNameIsAskedAboutWhateverItsCase)
{
    Put("[SavedSystems]\nSystem:1=Home Station\n");
    Open();
    Name(QStringLiteral("home station"));
    bool isAsked = false;
    WhenModal([&isAsked](QWidget& modal) {
        auto& box = dynamic_cast<QMessageBox&>(modal);
        EXPECT_EQ(box.objectName(), QStringLiteral("QuestionBox"));
        EXPECT_EQ(box.text(), QStringLiteral("The Selected System Already Exists. Do You Want to Update it?"));
        EXPECT_EQ(box.windowTitle(), QStringLiteral("Save Antenna System"));
        EXPECT_EQ(box.standardButtons(), QMessageBox::Yes | QMessageBox::No);
        isAsked = true;
        box.button(QMessageBox::No)->click();
    });
    Press();
    EXPECT_TRUE(isAsked);
}

TEST_F(SaveSystemTest, YesRewritesTheNameAsTypedAndItsSection)
{
    Put(kSampleFile);
    window.Systems().Data[SystemId::One].VSWR = 3.0F;
    Open();
    Name(QStringLiteral("home station"));
    PressAndAnswer(QMessageBox::Yes);
    std::string wanted = kSampleFile;
    wanted.replace(wanted.find("Home Station"), 12, "home station");
    wanted.replace(wanted.find("System1VSWR=1.5"), 15, "System1VSWR=3");
    EXPECT_EQ(Bytes(), wanted);
    EXPECT_EQ(window.Calls(), Calls{"SetSavedFlags"});
}

TEST_F(SaveSystemTest, NoLeavesTheFileAndTheDialogWithItsButtonReadingClose)
{
    Put(kSampleFile);
    window.Systems().Data[SystemId::One].VSWR = 3.0F;
    Open();
    Name(QStringLiteral("Home Station"));
    PressAndAnswer(QMessageBox::No);
    EXPECT_EQ(Bytes(), kSampleFile);
    EXPECT_TRUE(window.Calls().empty());
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(TextOf(dialog, "cmdSave"), "&Close");
    Press();
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(Bytes(), kSampleFile);
}

TEST_F(SaveSystemTest, EmptyNameIsToldAndCloses)
{
    for (const char* name : {"", "  \t "}) {
        notifier.Clear();
        Open();
        Name(QString::fromUtf8(name));
        Press();
        EXPECT_EQ(notifier.Messages(),
                  std::vector{(Message{"System Name is Empty! Please Create a System and Try Again.", "System name"})});
        EXPECT_FALSE(dialog.isVisible());
        EXPECT_EQ(Bytes(), "");
    }
}

TEST_F(SaveSystemTest, EmptyNameIsToldAlsoAfterASaveAsGiven)
{
    Open();
    Press();
    Name(QString());
    Press();
    EXPECT_EQ(notifier.Messages().size(), 1U);
    EXPECT_FALSE(dialog.isVisible());
}

struct RefusedRow
{
    const char* name;
    QString text;
    const char* message;
};

class RefusedName : public SaveSystemTest, public ::testing::WithParamInterface<RefusedRow>
{
};

TEST_P(RefusedName, IsToldAndCanBeMended)
{
    Open();
    Name(GetParam().text);
    Press();
    EXPECT_EQ(notifier.Messages(), std::vector{(Message{GetParam().message, "System name"})});
    EXPECT_EQ(Bytes(), "");
    EXPECT_EQ(TextOf(dialog, "cmdSave"), "&Save System");
    EXPECT_EQ(Focus(), "txtSystemName");
    Name(QStringLiteral("Home Station"));
    Press();
    EXPECT_EQ(Bytes(), kSampleFile);
}

constexpr const char* kListName =
    "\u201CSavedSystems\u201D names the list of saved systems. Please choose another name.";

// clang-format off
INSTANTIATE_TEST_SUITE_P(Names, RefusedName, ::testing::Values(
    RefusedRow{"list's own section", QStringLiteral("SavedSystems"), kListName},
    RefusedRow{"list's own section in other letters", QStringLiteral(" savedSYSTEMS "), kListName},
    RefusedRow{"letter beyond the code page", QStringLiteral("50 Ω"),
               "The system name holds a character that the data files cannot hold."},
    RefusedRow{"tab", QStringLiteral("a\tb"), "The system name holds a control character."},
    RefusedRow{"quotes around", QStringLiteral("\"a\""),
               "The system name stands in quotes, which would be lost in the data file."},
    RefusedRow{"255 characters, which are cut when read", QString(255, u'n'),
               "The system name is longer than 254 characters."}), support::RowName());

// clang-format on

TEST_F(SaveSystemTest, NameOf256CharactersIsToldByTheFilesLimitAndTheRestIsWritten)
{
    Open();
    Name(QString(256, u'n'));
    Press();
    EXPECT_EQ(notifier.Messages(),
              std::vector{(Message{"Can't write more than 255 characters for key or value.", ""})});
    EXPECT_EQ(Bytes(), "[" + std::string(256, 'n') + "]\r\n" + support::SampleEntries("\r\n") +
                           "[SavedSystems]\r\nSystem:2=\r\n");
    EXPECT_TRUE(window.Calls().empty());
}

TEST_F(SaveSystemTest, NameMayHoldWhatTheCodePageHolds)
{
    Open();
    Name(QStringLiteral("Mühle; [50 €] = 'x"));
    Press();
    EXPECT_THAT(Bytes(), testing::StartsWith("[SavedSystems]\r\nSystem:1=M\xFChle; [50 \x80] = 'x\r\n"));
    EXPECT_EQ(window.Calls(), Calls{"SetSavedFlags"});
}

TEST_F(SaveSystemTest, FailedWriteSaysNothingAndLeavesTheFlagsAsGiven)
{
    const std::string before = "[SavedSystems]\r\nSystem:1=A\r\nSystem:2=B\r\n";
    const std::string after = before + "System:3=C\r\nSystem:4=\r\n[C]\r\n" + support::SampleEntries("\r\n");
    bool isThrough = false;
    for (int number = 1; !isThrough; ++number) {
        Put(before);
        Open();
        Name(QStringLiteral("C"));
        const std::size_t flagged = window.Calls().size();
        calls.FailAt(number, ENOSPC);
        Press();
        isThrough = static_cast<int>(calls.Made().size()) < number;
        EXPECT_TRUE(Bytes() == before || Bytes() == after) << number << Bytes();
        EXPECT_TRUE(window.Calls().size() == flagged || Bytes() == after) << number;
        EXPECT_EQ(TextOf(dialog, "cmdSave"), "&Close");
    }
    EXPECT_EQ(Bytes(), after);
    EXPECT_TRUE(notifier.Messages().empty());
}

TEST_F(SaveSystemTest, EachOpeningStartsFromTheDesignedState)
{
    window.Systems() = {};
    Open();
    dialog.reject();
    window.Systems().Data = support::SamplePair();
    Open();
    EXPECT_TRUE(MaySave());
    Press();
    Press();
    window.Systems().Data[SystemId::One].AntennaModel = "Beam Five";
    Open();
    EXPECT_EQ(TextOf(dialog, "cmdSave"), "&Save System");
    EXPECT_EQ(TextOf(dialog, "txtSystemName"), "Wirecraft / Beam Five");
    EXPECT_EQ(Focus(), "txtSystemName");
}

TEST_F(SaveSystemTest, CancelAndEscCloseWithoutWriting)
{
    Open();
    ClickOn(dialog, "cmdCancel");
    EXPECT_FALSE(dialog.isVisible());
    Open();
    test::Click(dialog, Qt::Key_Escape);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(Bytes(), "");
    EXPECT_TRUE(window.Calls().empty());
}

TEST_F(SaveSystemTest, EnterInTheNameSavesNothing)
{
    Open();
    test::Click(dialog, Qt::Key_Return);
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(Bytes(), "");
}

TEST_F(SaveSystemTest, EnterOnTheButtonPressesIt)
{
    Open();
    test::Click(dialog, Qt::Key_Tab);
    test::Click(dialog, Qt::Key_Return);
    EXPECT_EQ(TextOf(dialog, "cmdSave"), "&Close");
    test::Click(dialog, Qt::Key_Enter);
    EXPECT_FALSE(dialog.isVisible());
}

TEST_F(SaveSystemTest, IsModalUntilItIsClosed)
{
    bool isSeen = false;
    WhenModal([this, &isSeen](QWidget& modal) {
        isSeen = &modal == &dialog && TextOf(dialog, "txtSystemName") == "Wirecraft / Beam Four";
        dialog.reject();
    });
    dialog.Open();
    EXPECT_TRUE(isSeen);
}

} // namespace
} // namespace quillon::ui
