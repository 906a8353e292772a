#include "tests/ui/widgets/list_window.h"

#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>

namespace quillon::ui {
namespace {

/// A chain of two lists, the second one far below what a window at the lower edge of the screen shows.
class ScrolledLists : public testing::Test
{
protected:
    ScrolledLists()
    {
        auto* content = new QWidget;
        m_list = new CatalogueListBox(content);
        m_next = new CatalogueListBox(content);
        m_list->move(0, 0);
        m_next->move(0, 2000);
        content->resize(400, 3000);
        m_window.setWidget(content);
        m_list->SetNext(m_next);
        m_list->Fill(Entries({QStringLiteral("HY-GAIN")}));
        m_next->Fill(Entries({QStringLiteral("TH7DX")}));
        const QRect room = m_window.screen()->availableGeometry();
        m_window.setGeometry(0, room.bottom() - 299, 300, 300);
        test::ShowActive(m_window);
        m_list->setFocus(Qt::TabFocusReason);
    }

    [[nodiscard]] static bool IsInView(const QWidget& widget)
    {
        return widget.visibleRegion().boundingRect() == widget.rect();
    }

    QScrollArea m_window;
    CatalogueListBox* m_list = nullptr;
    CatalogueListBox* m_next = nullptr;
};

TEST_F(ScrolledLists, EnterBringsTheNextListIntoViewAndOpensItOnTheScreen)
{
    m_list->setEditText(QStringLiteral("HY-GAIN"));
    test::Click(m_window, Qt::Key_Return);
    ASSERT_TRUE(m_next->view()->isVisible());
    EXPECT_TRUE(IsInView(*m_next));
    const QRect room = m_window.screen()->availableGeometry();
    EXPECT_TRUE(room.contains(m_next->view()->window()->geometry()));
}

TEST_F(ScrolledLists, EnterBringsAnEmptyNextListIntoView)
{
    m_next->Empty();
    m_list->setEditText(QStringLiteral("HY-GAIN"));
    test::Click(m_window, Qt::Key_Return);
    EXPECT_TRUE(m_next->hasFocus());
    EXPECT_TRUE(IsInView(*m_next));
}

TEST_F(ScrolledLists, AListThatIsScrolledAwayComesBackAsItOpens)
{
    m_window.verticalScrollBar()->setValue(1000);
    ASSERT_TRUE(m_list->visibleRegion().isEmpty());
    test::Click(m_window, Qt::Key_F4);
    EXPECT_TRUE(m_list->view()->isVisible());
    EXPECT_TRUE(IsInView(*m_list));
}

TEST_F(ScrolledLists, AListInViewOpensWhereItIs)
{
    m_window.verticalScrollBar()->setValue(1);
    m_list->move(0, 1);
    test::Click(m_window, Qt::Key_F4);
    EXPECT_EQ(m_window.verticalScrollBar()->value(), 1);
}

} // namespace
} // namespace quillon::ui
