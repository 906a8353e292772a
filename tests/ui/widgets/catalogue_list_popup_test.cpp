#include "tests/ui/widgets/list_window.h"

namespace quillon::ui {
namespace {

/// The first list with its drop-down list open.
class OpenList : public ListWindow
{
protected:
    void Open()
    {
        Click(Qt::Key_F4);
        ASSERT_TRUE(IsOpen(*m_list));
        m_chosen.clear();
    }

    void Pick(int row)
    {
        QAbstractItemView* view = m_list->view();
        const QModelIndex index = m_list->model()->index(row, 0);
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, view->visualRect(index).center());
    }

    [[nodiscard]] int Highlighted() const { return m_list->view()->currentIndex().row(); }
};

TEST_F(OpenList, AMousePickTellsOnce)
{
    Open();
    Pick(2);
    EXPECT_EQ(m_list->currentIndex(), 2);
    EXPECT_EQ(Chosen(), 1);
    EXPECT_FALSE(IsOpen(*m_list));
    EXPECT_TRUE(MarkedFromStart());
}

TEST_F(OpenList, PickingTheChosenEntryTellsOnceToo)
{
    m_list->Choose(2);
    Open();
    Pick(2);
    EXPECT_EQ(m_list->currentIndex(), 2);
    EXPECT_EQ(Chosen(), 1);
    EXPECT_TRUE(MarkedFromStart());
}

TEST_F(OpenList, PickingTheChosenEntryRestoresAnEditedText)
{
    m_list->Choose(2);
    m_list->setEditText(QStringLiteral("ZZ"));
    Open();
    Pick(2);
    EXPECT_EQ(Text(), QStringLiteral("HY-GAIN"));
    EXPECT_EQ(Chosen(), 1);
}

TEST_F(OpenList, EnterPicksTheHighlightedEntryOnceAndGoesOn)
{
    Open();
    Click(Qt::Key_Down);
    Click(Qt::Key_Down);
    const int highlighted = Highlighted();
    test::Press(m_window, Qt::Key_Return);
    EXPECT_FALSE(IsOpen(*m_list));
    EXPECT_EQ(m_list->currentIndex(), highlighted);
    EXPECT_EQ(Chosen(), 1);
    test::Release(m_window, Qt::Key_Return);
    EXPECT_EQ(Chosen(), 1);
    EXPECT_TRUE(IsOpen(*m_next));
}

/// The first list with its drop-down list just closed by Enter, and keys that still reach that: the display addresses
/// them to the window that was in front when they were pressed.
class ClosedList : public OpenList
{
protected:
    void SetUp() override
    {
        OpenList::SetUp();
        Open();
        Click(Qt::Key_Down);
        test::Press(m_window, Qt::Key_Return);
        ASSERT_FALSE(IsOpen(*m_list));
    }

    [[nodiscard]] QWidget& Late() const { return *m_list->view()->window(); }
};

TEST_F(ClosedList, EnterGoesOnWhenItsReleaseComesLate)
{
    test::Release(Late(), Qt::Key_Return);
    EXPECT_EQ(Chosen(), 1);
    EXPECT_TRUE(IsOpen(*m_next));
}

TEST_F(ClosedList, WhatIsTypedAheadGoesToTheNextList)
{
    test::Release(Late(), Qt::Key_Return);
    const QString text = Text();
    test::Click(Late(), Qt::Key_Z);
    EXPECT_EQ(Text(), text);
    EXPECT_EQ(m_next->currentText(), QStringLiteral("Z"));
}

TEST_F(ClosedList, TabAndEscapeActOnWhateverHasTheKeyboard)
{
    test::Release(Late(), Qt::Key_Return);
    test::Click(Late(), Qt::Key_Escape);
    EXPECT_FALSE(IsOpen(*m_next));
    EXPECT_TRUE(m_next->hasFocus());
    test::Click(Late(), Qt::Key_Tab);
    EXPECT_TRUE(m_list->hasFocus()) << "the other one of two";
}

TEST_F(OpenList, EnterOnTheChosenEntryTellsOnceAndGoesOn)
{
    m_list->Choose(1);
    Open();
    Click(Qt::Key_Return);
    EXPECT_EQ(Chosen(), 1);
    EXPECT_TRUE(IsOpen(*m_next));
}

TEST_F(OpenList, EnterWithNothingHighlightedClosesAndStays)
{
    Open();
    ASSERT_EQ(Highlighted(), -1);
    Click(Qt::Key_Return);
    EXPECT_FALSE(IsOpen(*m_list));
    EXPECT_EQ(Chosen(), 0);
    EXPECT_FALSE(IsOpen(*m_next));
}

TEST_F(OpenList, TypingGoesIntoTheTextAndHighlightsTheCompletion)
{
    Open();
    Type(QStringLiteral("hy"));
    EXPECT_TRUE(IsOpen(*m_list));
    EXPECT_EQ(Text(), QStringLiteral("HY-GAIN"));
    EXPECT_EQ(Caret(), 2);
    EXPECT_EQ(Highlighted(), 2);
    EXPECT_EQ(Chosen(), 0);
}

TEST_F(OpenList, TypingAndEnterChooseOnceAndGoOn)
{
    Open();
    Type(QStringLiteral("hy"));
    Click(Qt::Key_Return);
    EXPECT_EQ(m_list->currentIndex(), 2);
    EXPECT_EQ(Chosen(), 1);
    EXPECT_TRUE(IsOpen(*m_next));
}

TEST_F(OpenList, EnterBeforeTheTypedKeyIsReleasedTakesTheTextAsItStands)
{
    m_list->Choose(0);
    Open();
    test::Press(m_window, Qt::Key_H);
    Click(Qt::Key_Return);
    EXPECT_EQ(Text(), QStringLiteral("H"));
    EXPECT_EQ(Chosen(), 0);
}

TEST_F(OpenList, UnknownTypedTextAndEnterSelectNothing)
{
    m_list->Choose(1);
    Open();
    Type(QStringLiteral("zz"));
    EXPECT_EQ(Highlighted(), -1);
    Click(Qt::Key_Return);
    EXPECT_EQ(m_list->currentIndex(), 1);
    EXPECT_EQ(Text(), QStringLiteral("ZZ"));
    EXPECT_EQ(Chosen(), 0);
    EXPECT_FALSE(IsOpen(*m_list));
    EXPECT_FALSE(IsOpen(*m_next));
}

TEST_F(OpenList, AnArrowKeyAfterTypingMakesTheHighlightCountAgain)
{
    Open();
    Type(QStringLiteral("hy"));
    Click(Qt::Key_Down);
    EXPECT_EQ(Highlighted(), 3);
    Click(Qt::Key_Return);
    EXPECT_EQ(m_list->currentIndex(), 3);
    EXPECT_EQ(Chosen(), 1);
}

TEST_F(OpenList, MovingTheHighlightChoosesNothingYet)
{
    Open();
    Click(Qt::Key_Down);
    EXPECT_EQ(Chosen(), 0);
}

TEST_F(OpenList, EscClosesAndChoosesNothing)
{
    m_list->Choose(1);
    Open();
    Click(Qt::Key_Down);
    Click(Qt::Key_Escape);
    EXPECT_FALSE(IsOpen(*m_list));
    EXPECT_EQ(m_list->currentIndex(), 1);
    EXPECT_TRUE(MarkedFromStart());
    EXPECT_EQ(Text(), QStringLiteral("Hamstick"));
    EXPECT_EQ(Chosen(), 0);
}

TEST_F(OpenList, F4ClosesAndStays)
{
    Open();
    Click(Qt::Key_F4);
    EXPECT_FALSE(IsOpen(*m_list));
    EXPECT_TRUE(m_list->hasFocus());
    EXPECT_EQ(Chosen(), 0);
}

TEST_F(OpenList, TabClosesAndMovesOn)
{
    Open();
    Click(Qt::Key_Tab);
    EXPECT_FALSE(IsOpen(*m_list));
    EXPECT_TRUE(m_next->hasFocus());
}

TEST_F(OpenList, OpensAtTheEntryThatTheTextStandsFor)
{
    m_list->Choose(0);
    Type(QStringLiteral("hy"));
    Open();
    EXPECT_EQ(Highlighted(), 2);
    EXPECT_EQ(m_list->currentIndex(), 0);
}

TEST_F(OpenList, TheDropDownListIsAsWideAsItsEntries)
{
    const QString wide(80, QLatin1Char('W'));
    m_list->Fill(Entries({wide}));
    Open();
    EXPECT_GE(m_list->view()->width(),
              std::min(m_list->fontMetrics().horizontalAdvance(wide), m_list->screen()->availableGeometry().width()));
}

TEST_F(ListWindow, TheWholeChainWorksByEnterAlone)
{
    const QSignalSpy nextChosen(m_next, &CatalogueListBox::Chosen);
    Type(QStringLiteral("ba"));
    Click(Qt::Key_Return);
    ASSERT_TRUE(IsOpen(*m_next));
    Type(QStringLiteral("th3"));
    Click(Qt::Key_Return);
    EXPECT_EQ(m_list->ChosenName(), QByteArray("basic beams"));
    EXPECT_EQ(m_next->ChosenName(), QByteArray("th3jr"));
    EXPECT_EQ(Chosen(), 1);
    EXPECT_EQ(nextChosen.count(), 1);
    EXPECT_FALSE(IsOpen(*m_next));
}

} // namespace
} // namespace quillon::ui
