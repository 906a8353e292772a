#include "tests/support/row_name.h"
#include "tests/ui/systems/save_system_fixture.h"

#include <gmock/gmock.h>

namespace quillon::ui {
namespace {

using engine::SystemId;

const std::string kSampleFile =
    "[SavedSystems]\r\nSystem:1=Home Station\r\nSystem:2=\r\n[Home Station]\r\n" + support::SampleEntries("\r\n");

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

} // namespace
} // namespace quillon::ui
