#include "tests/app/dialogs_fixture.h"

#include <QTest>

namespace quillon {
namespace {

using ui::Command;

TEST_F(DialogsTest, ClosingAsksWhetherToSaveAConfiguredPair)
{
    Configure();
    ASSERT_TRUE(CloseAndAnswer(QMessageBox::Cancel));
    EXPECT_EQ(Question().toStdString(),
              "Save Configured System?|A system has been configured. Do you want to save it?");
    EXPECT_TRUE(Window()->isVisible());
    EXPECT_EQ(SaveDialog(), nullptr);
}

TEST_F(DialogsTest, ClosingWithoutSavingUnloadsTheWindow)
{
    Configure();
    ASSERT_TRUE(CloseAndAnswer(QMessageBox::No));
    EXPECT_FALSE(Window()->isVisible());
}

TEST_F(DialogsTest, ClosingWithYesShowsTheSaveDialogBesideTheWindow)
{
    Configure();
    ASSERT_TRUE(CloseAndAnswer(QMessageBox::Yes));
    EXPECT_TRUE(Window()->isVisible());
    ASSERT_NE(SaveDialog(), nullptr);
    EXPECT_TRUE(SaveDialog()->isVisible());
    EXPECT_FALSE(SaveDialog()->isModal());
    EXPECT_EQ(SaveDialog()->parentWidget(), Window());
}

TEST_F(DialogsTest, SaveDialogBesideTheWindowShowsWhatItWouldSave)
{
    Configure();
    ASSERT_TRUE(CloseAndAnswer(QMessageBox::Yes));
    Main().activateWindow();
    ASSERT_TRUE(QTest::qWaitFor([this] { return QApplication::activeWindow() == Window(); }));
    Systems().Data[engine::SystemId::One].AntennaBrand = "OTHER";
    SaveDialog()->activateWindow();
    ASSERT_TRUE(QTest::qWaitFor([this] { return QApplication::activeWindow() == SaveDialog(); }));
    EXPECT_EQ(test::Find<QLabel>(*SaveDialog(), QStringLiteral("lblSave(0)")).text(), QStringLiteral("OTHER - "));
}

TEST_F(DialogsTest, SaveDialogBesideTheWindowIsModalOnceItIsAskedFor)
{
    Configure();
    ASSERT_TRUE(CloseAndAnswer(QMessageBox::Yes));
    EXPECT_EQ(Give(Command::SaveSystem, [](const QDialog& dialog) { EXPECT_TRUE(dialog.isModal()); }), SaveDialog());
    ASSERT_TRUE(CloseAndAnswer(QMessageBox::Yes));
    EXPECT_FALSE(SaveDialog()->isModal());
}

TEST_F(DialogsTest, ClosingAsksNothingWhileThePairStandsInTheFile)
{
    Configure();
    Systems().State[engine::SystemId::One].SetFlag(engine::kSavedFlag, engine::kTrue);
    EXPECT_FALSE(CloseAndAnswer(QMessageBox::Cancel));
    EXPECT_FALSE(Window()->isVisible());
}

TEST_F(DialogsTest, ClosingHeedsTheSavedFlagOfSystemOneAloneAsGiven)
{
    Configure();
    Systems().State[engine::SystemId::Two].SetFlag(engine::kSavedFlag, engine::kTrue);
    EXPECT_TRUE(CloseAndAnswer(QMessageBox::Cancel));
}

TEST_F(DialogsTest, ClosingAsksNothingWhileASystemLacksItsAntennaOrCoax)
{
    for (const engine::SystemId system : engine::kBothSystems) {
        for (engine::Boolean engine::SystemData::*use :
             {&engine::SystemData::UseAntennaList, &engine::SystemData::UseCoaxList}) {
            Configure();
            Window()->show();
            Systems().Data[system].*use = engine::kFalse;
            EXPECT_FALSE(CloseAndAnswer(QMessageBox::Cancel));
            EXPECT_FALSE(Window()->isVisible());
        }
    }
}

TEST_F(DialogsTest, CloseBoxAsksNothing)
{
    Configure();
    EXPECT_TRUE(Window()->close());
    EXPECT_FALSE(Window()->isVisible());
}

} // namespace
} // namespace quillon
