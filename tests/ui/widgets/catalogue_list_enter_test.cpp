#include "tests/ui/widgets/list_window.h"

#include <QPushButton>

#include <string>

namespace quillon::ui {
namespace {

struct EnterRow
{
    std::string name;
    Qt::Key key;
};

void PrintTo(const EnterRow& row, std::ostream* out)
{
    *out << row.name;
}

class ListEnter : public ListWindow, public testing::WithParamInterface<EnterRow>
{
};

TEST_P(ListEnter, SelectsTheEntryThatEqualsTheTextAndGoesOn)
{
    m_list->setEditText(QStringLiteral("hy-gain"));
    Click(GetParam().key);
    EXPECT_EQ(m_list->currentIndex(), 2);
    EXPECT_EQ(Text(), QStringLiteral("HY-GAIN"));
    EXPECT_EQ(Chosen(), 1);
    EXPECT_TRUE(m_next->hasFocus() || IsOpen(*m_next));
    EXPECT_TRUE(IsOpen(*m_next));
}

INSTANTIATE_TEST_SUITE_P(Keys, ListEnter,
                         testing::Values(EnterRow{"Return", Qt::Key_Return}, EnterRow{"keypad Enter", Qt::Key_Enter}));

TEST_F(ListWindow, EnterIsToldBehindTheChoiceItMade)
{
    QStringList order;
    QObject::connect(m_list, &CatalogueListBox::Chosen, [&order] { order.append(QStringLiteral("Chosen")); });
    QObject::connect(m_list, &CatalogueListBox::EnterTaken, [&order] { order.append(QStringLiteral("EnterTaken")); });
    m_list->setEditText(QStringLiteral("ZZZ"));
    Click(Qt::Key_Return);
    EXPECT_TRUE(order.isEmpty());
    m_list->setEditText(QStringLiteral("HY-GAIN"));
    Click(Qt::Key_Return);
    EXPECT_EQ(order, (QStringList{QStringLiteral("Chosen"), QStringLiteral("EnterTaken")}));
}

TEST_F(ListWindow, EnterDoesNothingBeforeItIsReleased)
{
    m_list->setEditText(QStringLiteral("HY-GAIN"));
    test::Press(m_window, Qt::Key_Return);
    EXPECT_EQ(Chosen(), 0);
    EXPECT_TRUE(m_list->hasFocus());
}

TEST_F(ListWindow, EnterReachesNoButton)
{
    auto* button = new QPushButton(&m_window);
    button->setDefault(true);
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"));
    QCoreApplication::sendEvent(m_list, &press);
    EXPECT_TRUE(press.isAccepted());
}

TEST_F(ListWindow, EnterWithUnknownTextSelectsNothingAndStays)
{
    m_list->Choose(1);
    m_chosen.clear();
    m_list->setEditText(QStringLiteral("ZZZ"));
    Click(Qt::Key_Return);
    EXPECT_EQ(m_list->currentIndex(), 1);
    EXPECT_EQ(Text(), QStringLiteral("ZZZ"));
    EXPECT_EQ(Chosen(), 0);
    EXPECT_TRUE(m_list->hasFocus());
    EXPECT_FALSE(IsOpen(*m_next));
    EXPECT_EQ(Caret(), 3);
}

TEST_F(ListWindow, EnterWithAnEmptyTextStays)
{
    Click(Qt::Key_Return);
    EXPECT_EQ(Chosen(), 0);
    EXPECT_TRUE(m_list->hasFocus());
    EXPECT_FALSE(IsOpen(*m_next));
}

TEST_F(ListWindow, EnterOnTheChosenEntryTellsAgain)
{
    m_list->Choose(2);
    m_chosen.clear();
    Click(Qt::Key_Return);
    EXPECT_EQ(Chosen(), 1);
    EXPECT_TRUE(IsOpen(*m_next));
}

TEST_F(ListWindow, TypingAndEnterChooseAndGoOn)
{
    Type(QStringLiteral("hy"));
    Click(Qt::Key_Return);
    EXPECT_EQ(m_list->ChosenName(), QByteArray("hy-gain"));
    EXPECT_EQ(Chosen(), 1);
    EXPECT_TRUE(IsOpen(*m_next));
}

TEST_F(ListWindow, TheLastListStopsTheChain)
{
    m_list->SetNext(nullptr);
    m_list->setEditText(QStringLiteral("HY-GAIN"));
    Click(Qt::Key_Return);
    EXPECT_EQ(Chosen(), 1);
    EXPECT_TRUE(m_list->hasFocus());
    EXPECT_TRUE(MarkedFromStart());
}

TEST_F(ListWindow, TheChainDoesNotEnterADisabledList)
{
    m_next->setEnabled(false);
    m_list->setEditText(QStringLiteral("HY-GAIN"));
    Click(Qt::Key_Return);
    EXPECT_EQ(Chosen(), 1);
    EXPECT_TRUE(m_list->hasFocus());
    EXPECT_FALSE(IsOpen(*m_next));
}

TEST_F(ListWindow, AnEmptyNextListTakesTheFocusAndStaysClosed)
{
    m_next->Empty();
    m_list->setEditText(QStringLiteral("HY-GAIN"));
    Click(Qt::Key_Return);
    EXPECT_TRUE(m_next->hasFocus());
    EXPECT_FALSE(IsOpen(*m_next));
}

TEST_F(ListWindow, AnEnterThatWentDownElsewhereIsNotTaken)
{
    // As when Enter closes a message box and is let go over the list.
    m_list->setEditText(QStringLiteral("HY-GAIN"));
    test::Release(m_window, Qt::Key_Return);
    EXPECT_EQ(Chosen(), 0);
}

TEST_F(ListWindow, AnEnterThatGoesUpElsewhereIsForgotten)
{
    m_list->setEditText(QStringLiteral("HY-GAIN"));
    test::Press(m_window, Qt::Key_Return);
    m_next->setFocus();
    m_chosen.clear();
    m_list->setFocus();
    test::Release(m_window, Qt::Key_Return);
    EXPECT_EQ(Chosen(), 0);
    EXPECT_FALSE(IsOpen(*m_next));
}

TEST_F(ListWindow, HandlersMayRefillTheNextListAndLetEventsRun)
{
    QObject::connect(m_list, &CatalogueListBox::Chosen, m_list, [this] {
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
        m_next->Fill(Entries({QStringLiteral("ONE"), QStringLiteral("TWO"), QStringLiteral("THREE")}));
    });
    m_list->setEditText(QStringLiteral("HY-GAIN"));
    Click(Qt::Key_Return);
    EXPECT_EQ(Chosen(), 1);
    EXPECT_TRUE(IsOpen(*m_next));
    EXPECT_EQ(m_next->count(), 3);
    EXPECT_FALSE(m_next->HasChoice());
}

} // namespace
} // namespace quillon::ui
