#include "tests/ui/widgets/list_window.h"

#include <QImage>
#include <QPixmap>

namespace quillon::ui {
namespace {

TEST_F(ListWindow, FillingSelectsNothingAndIsSilent)
{
    m_list->Choose(1);
    m_chosen.clear();
    m_list->Fill(Entries({QStringLiteral("A"), QStringLiteral("B")}));
    EXPECT_EQ(m_list->count(), 2);
    EXPECT_FALSE(m_list->HasChoice());
    EXPECT_TRUE(Text().isEmpty());
    EXPECT_EQ(Chosen(), 0);
}

TEST_F(ListWindow, RefillingKeepsTheChoiceByItsBytes)
{
    m_list->Choose(2);
    m_chosen.clear();
    m_list->Refill({{QStringLiteral("Ada"), "ada"}, {QStringLiteral("Hy-Gain (new)"), "hy-gain"}});
    EXPECT_EQ(m_list->currentIndex(), 1);
    EXPECT_EQ(Text(), QStringLiteral("Hy-Gain (new)"));
    EXPECT_EQ(m_list->ChosenName(), QByteArray("hy-gain"));
    EXPECT_EQ(Chosen(), 0);
}

TEST_F(ListWindow, RefillingWithoutTheChoiceSelectsNothing)
{
    m_list->Choose(2);
    m_chosen.clear();
    m_list->Refill(Entries({QStringLiteral("Ada")}));
    EXPECT_FALSE(m_list->HasChoice());
    EXPECT_TRUE(Text().isEmpty());
    EXPECT_EQ(Chosen(), 0);
}

TEST_F(ListWindow, RefillingWithoutAChoiceDoesNotTakeAnEntryWithoutName)
{
    m_list->Refill({{QStringLiteral("Nameless"), ""}});
    EXPECT_FALSE(m_list->HasChoice());
}

TEST_F(ListWindow, EmptyingRemovesEntriesFromTheLastToTheFirst)
{
    m_list->Choose(1);
    m_chosen.clear();
    QList<int> removed;
    QObject::connect(m_list->model(), &QAbstractItemModel::rowsRemoved, m_list,
                     [&removed](const QModelIndex&, int first) { removed << first; });
    m_list->Empty();
    EXPECT_EQ(removed, (QList<int>{3, 2, 1, 0}));
    EXPECT_EQ(m_list->count(), 0);
    EXPECT_TRUE(Text().isEmpty());
    EXPECT_EQ(Chosen(), 0);
}

TEST_F(ListWindow, ChoosingByProgramTellsOnce)
{
    m_list->Choose(1);
    EXPECT_EQ(m_list->currentIndex(), 1);
    EXPECT_EQ(m_list->ChosenName(), QByteArray("hamstick"));
    EXPECT_EQ(Chosen(), 1);
}

TEST_F(ListWindow, ChoosingTheSameEntryTellsAgainAndRestoresItsText)
{
    m_list->Choose(1);
    m_list->setEditText(QStringLiteral("HAX"));
    m_list->Choose(1);
    EXPECT_EQ(Chosen(), 2);
    EXPECT_EQ(Text(), QStringLiteral("Hamstick"));
}

TEST_F(ListWindow, ChoosingOffTheListDoesNothing)
{
    m_list->Choose(-1);
    m_list->Choose(4);
    EXPECT_EQ(Chosen(), 0);
    EXPECT_FALSE(m_list->HasChoice());
}

TEST_F(ListWindow, ANewIndexTellsOnceAndTheSameIndexNothing)
{
    m_list->setCurrentIndex(2);
    EXPECT_EQ(Chosen(), 1);
    m_list->setCurrentIndex(2);
    EXPECT_EQ(Chosen(), 1);
}

TEST_F(ListWindow, WithoutChoiceThereIsNoName)
{
    EXPECT_TRUE(m_list->ChosenName().isEmpty());
}

TEST_F(ListWindow, ChoosingMarksTheTextFromItsStart)
{
    m_list->Choose(1);
    EXPECT_TRUE(MarkedFromStart());
}

TEST_F(ListWindow, WithoutFocusAChoiceShowsFromItsStartUnmarked)
{
    m_next->Choose(0);
    EXPECT_EQ(m_next->lineEdit()->cursorPosition(), 0);
    EXPECT_FALSE(m_next->lineEdit()->hasSelectedText());
}

TEST_F(ListWindow, ArrowKeysChooseOnceEach)
{
    Click(Qt::Key_Down);
    EXPECT_EQ(m_list->currentIndex(), 0);
    EXPECT_EQ(Chosen(), 1);
    EXPECT_TRUE(MarkedFromStart());
    Click(Qt::Key_Down);
    EXPECT_EQ(m_list->currentIndex(), 1);
    EXPECT_EQ(Chosen(), 2);
    Click(Qt::Key_Up);
    EXPECT_EQ(m_list->currentIndex(), 0);
    EXPECT_EQ(Chosen(), 3);
}

TEST_F(ListWindow, AnArrowKeyAtTheListsEndChoosesNothing)
{
    m_list->Choose(3);
    m_chosen.clear();
    Click(Qt::Key_Down);
    EXPECT_EQ(Chosen(), 0);
}

TEST_F(ListWindow, TheWheelChoosesOnceWhileTheListHasTheFocus)
{
    EXPECT_TRUE(Wheel(*m_list, -120));
    EXPECT_EQ(m_list->currentIndex(), 0);
    EXPECT_EQ(Chosen(), 1);
}

TEST_F(ListWindow, SmallTurnsOfTheWheelAddUp)
{
    Wheel(*m_list, -60);
    EXPECT_EQ(Chosen(), 0);
    Wheel(*m_list, -60);
    EXPECT_EQ(Chosen(), 1);
}

TEST_F(ListWindow, WithoutFocusTheWheelScrollsTheWindowInstead)
{
    EXPECT_FALSE(Wheel(*m_next, -120));
    EXPECT_FALSE(m_next->HasChoice());
    EXPECT_EQ(m_next->focusPolicy(), Qt::StrongFocus);
}

TEST_F(ListWindow, LeavingWithTheTextOfAnEntryChoosesItOnce)
{
    m_list->setEditText(QStringLiteral("hy-gain"));
    Click(Qt::Key_Tab);
    EXPECT_EQ(m_list->currentIndex(), 2);
    EXPECT_EQ(Text(), QStringLiteral("HY-GAIN"));
    EXPECT_EQ(Chosen(), 1);
}

TEST_F(ListWindow, LeavingAChosenEntryTellsNothing)
{
    m_list->Choose(2);
    m_chosen.clear();
    Click(Qt::Key_Tab);
    EXPECT_EQ(Chosen(), 0);
}

TEST_F(ListWindow, LeavingWithAnyOtherTextChoosesNothingAndKeepsIt)
{
    m_list->setEditText(QStringLiteral("HY"));
    Click(Qt::Key_Tab);
    EXPECT_FALSE(m_list->HasChoice());
    EXPECT_EQ(Text(), QStringLiteral("HY"));
    EXPECT_EQ(Chosen(), 0);
}

TEST_F(ListWindow, AnotherWindowComingToTheFrontChoosesNothing)
{
    m_list->setEditText(QStringLiteral("HY-GAIN"));
    QFocusEvent away(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
    QCoreApplication::sendEvent(m_list, &away);
    EXPECT_EQ(Chosen(), 0);
}

TEST_F(ListWindow, LongEntriesDoNotWidenTheList)
{
    const QSize before = m_list->sizeHint();
    m_list->Fill(Entries({QString(200, QLatin1Char('W'))}));
    EXPECT_EQ(m_list->sizeHint(), before);
    EXPECT_EQ(m_list->minimumSizeHint(), before);
}

TEST_F(ListWindow, AnEmptyListAsksForRoomForAFewCharacters)
{
    m_list->Empty();
    EXPECT_GT(m_list->sizeHint().width(), m_list->fontMetrics().horizontalAdvance(QStringLiteral("XXXXXXXX")));
}

TEST_F(ListWindow, MarkupInAnEntryStaysText)
{
    m_list->Fill(Entries({QStringLiteral("<b>A && B</b>")}));
    m_list->Choose(0);
    EXPECT_EQ(Text(), QStringLiteral("<b>A && B</b>"));
}

TEST_F(ListWindow, AMarkIsOutlineToolTipAndDescription)
{
    const QString why = QStringLiteral("“<i>X</i>” cannot be computed with");
    const QImage before = m_list->grab().toImage();
    m_list->Mark(why);
    EXPECT_TRUE(m_list->IsMarked());
    EXPECT_EQ(m_list->property("marked"), QVariant(true));
    EXPECT_EQ(m_list->accessibleDescription(), why);
    EXPECT_FALSE(m_list->toolTip().contains(QStringLiteral("<i>")));
    EXPECT_EQ(m_list->grab().toImage().pixelColor(m_list->width() / 2, 1), m_list->palette().color(QPalette::Text));
    m_list->ClearMark();
    EXPECT_FALSE(m_list->IsMarked());
    EXPECT_TRUE(m_list->toolTip().isEmpty());
    EXPECT_EQ(m_list->grab().toImage(), before);
}

} // namespace
} // namespace quillon::ui
