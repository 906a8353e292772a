#include "tests/ui/editor/editor_fixture.h"

namespace quillon::ui {
namespace {

/// A maker's file that cannot be read just when a model of it is to be shown.
class UnreadableModel : public EditorTest
{
protected:
    void SetUp() override
    {
        Open();
        ChooseMaker("ACME");
    }

    /// Puts a folder in the file's place, which nobody can read; the file is kept aside.
    void TakeFile()
    {
        std::filesystem::rename(folder / "Antennas/ACME.DAT", folder / "kept");
        std::filesystem::create_directory(folder / "Antennas/ACME.DAT");
    }

    void ReturnFile()
    {
        std::filesystem::remove(folder / "Antennas/ACME.DAT");
        std::filesystem::rename(folder / "kept", folder / "Antennas/ACME.DAT");
    }

    void ExpectNothingToEdit()
    {
        EXPECT_EQ(Gains(), kNoGains);
        EXPECT_EQ(Bands(), kNoBands);
        EXPECT_FALSE(Find("cmdEdit").isEnabled());
        EXPECT_FALSE(IsEditable());
    }

    const Messages m_told{{"The file of “ACME” could not be read.", kTitle}};
};

TEST_F(UnreadableModel, IsToldShownEmptyAndKeptFromBeingEdited)
{
    ChooseModel("XR-5");
    TakeFile();
    ChooseModel("A-99");
    EXPECT_EQ(notifier.Messages(), m_told);
    ExpectNothingToEdit();
}

TEST_F(UnreadableModel, IsNotEditedByEnterEither)
{
    TakeFile();
    List("cboAntennaModels").setFocus();
    test::Type(dialog, QStringLiteral("a-99"));
    Press(Qt::Key_Return);
    EXPECT_EQ(notifier.Messages(), m_told);
    ExpectNothingToEdit();
}

TEST_F(UnreadableModel, IsShownAndEditedOnceItCanBeReadAgain)
{
    TakeFile();
    ChooseModel("XR-5");
    ReturnFile();
    ChooseModel("XR-5");
    EXPECT_EQ(notifier.Messages(), m_told) << "once";
    EXPECT_EQ(Gains(), "|||||7.1||7.8||||||");
    Click("cmdEdit");
    EXPECT_TRUE(IsEditable());
}

TEST_F(UnreadableModel, KeepsItsBandsWhateverCallFailsWhileItIsShown)
{
    const std::string before = File("ACME.DAT");
    int told = 0;
    for (int failing = 1; failing < 60; ++failing) {
        dialog.Prepare();
        ChooseMaker("ACME");
        notifier.Clear();
        calls.FailAt(failing, EIO);
        ChooseModel("XR-5");
        calls.FailAt(0, 0);
        Click("cmdEdit");
        Click("cmdSave");
        EXPECT_EQ(File("ACME.DAT"), before) << failing;
        told += notifier.Messages() == m_told ? 1 : 0;
    }
    EXPECT_GE(told, 4) << "looking at the file, opening it, asking for its size, reading it; more while it is new";
}

} // namespace
} // namespace quillon::ui
