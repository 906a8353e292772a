#include "tests/ui/widgets/list_window.h"

#include <QInputMethodEvent>

namespace quillon::ui {
namespace {

TEST_F(ListWindow, TypingHaCompletesToTheFirstEntryInAnyCase)
{
    Type(QStringLiteral("ha"));
    EXPECT_EQ(Text(), QStringLiteral("Hamstick"));
    EXPECT_EQ(Caret(), 2);
    EXPECT_EQ(Chosen(), 0);
}

TEST_F(ListWindow, TheFirstOfSeveralEntriesCompletes)
{
    Type(QStringLiteral("hy"));
    EXPECT_EQ(Text(), QStringLiteral("HY-GAIN"));
    Type(QStringLiteral("g"));
    EXPECT_EQ(Text(), QStringLiteral("Hygienic"));
    EXPECT_EQ(Caret(), 3);
}

TEST_F(ListWindow, WithoutAFittingEntryTheTypedTextStands)
{
    Type(QStringLiteral("hax"));
    EXPECT_EQ(Text(), QStringLiteral("HaX"));
    EXPECT_EQ(Caret(), 3);
}

TEST_F(ListWindow, WithoutAFittingEntryTheRestOfTheTextGoes)
{
    m_list->setEditText(QStringLiteral("Hamstick"));
    m_list->lineEdit()->setCursorPosition(2);
    Type(QStringLiteral("x"));
    EXPECT_EQ(Text(), QStringLiteral("HaX"));
    EXPECT_EQ(Caret(), 3);
}

TEST_F(ListWindow, CompletionWaitsForTheKeysRelease)
{
    test::Press(m_window, Qt::Key_B);
    EXPECT_EQ(Text(), QStringLiteral("B"));
    test::Release(m_window, Qt::Key_B);
    EXPECT_EQ(Text(), QStringLiteral("Basic Beams"));
    EXPECT_EQ(Caret(), 1);
}

TEST_F(ListWindow, AHeldKeysRepeatsDoNotComplete)
{
    m_list->setEditText(QStringLiteral("B"));
    QKeyEvent repeat(QEvent::KeyRelease, Qt::Key_B, Qt::NoModifier, QStringLiteral("b"), true);
    QCoreApplication::sendEvent(m_list, &repeat);
    EXPECT_EQ(Text(), QStringLiteral("B"));
}

TEST_F(ListWindow, DroppedCharactersChangeNothing)
{
    m_list->setEditText(QStringLiteral("HA"));
    Type(QStringLiteral("[{~"));
    EXPECT_EQ(Text(), QStringLiteral("HA"));
}

TEST_F(ListWindow, ReleasingADroppedKeyDoesNotComplete)
{
    m_list->setEditText(QStringLiteral("HA"));
    for (const Qt::Key key : {Qt::Key_Shift, Qt::Key_Control, Qt::Key_F5}) {
        test::Release(m_window, key);
    }
    EXPECT_EQ(Text(), QStringLiteral("HA"));
}

TEST_F(ListWindow, ReleasingAnArrowKeyCompletesTooAsGiven)
{
    m_list->setEditText(QStringLiteral("HA"));
    test::Release(m_window, Qt::Key_Right);
    EXPECT_EQ(Text(), QStringLiteral("Hamstick"));
    EXPECT_EQ(Caret(), 2);
}

TEST_F(ListWindow, BackspaceCompletesFromWhatIsLeftOfTheCaretAsGiven)
{
    Type(QStringLiteral("hyg"));
    Click(Qt::Key_Backspace);
    EXPECT_EQ(Text(), QStringLiteral("HY-GAIN"));
    EXPECT_EQ(Caret(), 2);
}

TEST_F(ListWindow, WithTheCaretAtTheStartNothingCompletes)
{
    m_list->setEditText(QStringLiteral("HA"));
    m_list->lineEdit()->home(false);
    test::Release(m_window, Qt::Key_Left);
    EXPECT_EQ(Text(), QStringLiteral("HA"));
}

TEST_F(ListWindow, ATextWithASelectionCountsUpToTheSelectionsStart)
{
    m_list->setEditText(QStringLiteral("HAXX"));
    m_list->lineEdit()->setSelection(2, 2);
    test::Release(m_window, Qt::Key_Right);
    EXPECT_EQ(Text(), QStringLiteral("Hamstick"));
    EXPECT_EQ(Caret(), 2);
}

TEST_F(ListWindow, SelectingWithShiftInACompleteEntryKeepsTheSelection)
{
    m_list->setEditText(QStringLiteral("Hamstick"));
    test::Click(m_window, Qt::Key_Left, Qt::ShiftModifier);
    test::Click(m_window, Qt::Key_Left, Qt::ShiftModifier);
    EXPECT_EQ(m_list->lineEdit()->selectedText(), QStringLiteral("ck"));
}

TEST_F(ListWindow, ArrivingByTabMarksTheTextAndTheTabsReleaseLeavesIt)
{
    m_next->Choose(0);
    m_next->setEditText(QStringLiteral("TH"));
    test::Press(m_window, Qt::Key_Tab);
    ASSERT_TRUE(m_next->hasFocus());
    test::Release(m_window, Qt::Key_Tab);
    EXPECT_EQ(m_next->currentText(), QStringLiteral("TH"));
    EXPECT_EQ(m_next->lineEdit()->selectedText(), QStringLiteral("TH"));
    EXPECT_EQ(m_next->lineEdit()->cursorPosition(), 0);
}

TEST_F(ListWindow, TypingOverAChosenEntryReplacesIt)
{
    m_list->Choose(0);
    Type(QStringLiteral("h"));
    EXPECT_EQ(Text(), QStringLiteral("Hamstick"));
    EXPECT_EQ(m_list->currentIndex(), 0);
}

TEST_F(ListWindow, EditingCommandsAreNotFiltered)
{
    m_list->setEditText(QStringLiteral("HA"));
    test::Click(m_window, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(m_list->lineEdit()->selectedText(), QStringLiteral("HA"));
    Click(Qt::Key_Delete);
    EXPECT_TRUE(Text().isEmpty());
}

TEST_F(ListWindow, TextFromAnInputMethodIsFilteredToo)
{
    QInputMethodEvent event;
    event.setCommitString(QString::fromUtf8("h\xC3\xA4m"));
    QCoreApplication::sendEvent(m_list, &event);
    EXPECT_EQ(Text(), QStringLiteral("HM"));
}

} // namespace
} // namespace quillon::ui
