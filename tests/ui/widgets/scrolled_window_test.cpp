#include "tests/support/shown_window.h"
#include "ui/widgets/scrolled_window.h"

#include <gtest/gtest.h>

#include <QDialog>
#include <QLineEdit>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

namespace quillon::ui {
namespace {

/// A dialog with two boxes as far from one another as its least height makes them.
class ScrolledWindow : public ::testing::Test
{
protected:
    void Make(QSize least, QLayout::SizeConstraint constraint = QLayout::SetDefaultConstraint)
    {
        auto* column = new QVBoxLayout(&dialog);
        column->setContentsMargins(0, 0, 0, 0);
        column->setSizeConstraint(constraint);
        column->addWidget(new QLineEdit(&dialog));
        auto* middle = new QWidget(&dialog);
        middle->setMinimumSize(least);
        column->addWidget(middle);
        last = new QLineEdit(&dialog);
        column->addWidget(last);
        before = dialog.sizeHint();
        ScrollWhatHasNoRoom(dialog);
        area = dialog.findChild<QScrollArea*>();
    }

    QDialog dialog;
    QLineEdit* last = nullptr;
    QScrollArea* area = nullptr;
    QSize before; ///< what the dialog asks for when it does not scroll
};

TEST_F(ScrolledWindow, IsAsItWasWhereThereIsRoom)
{
    Make({300, 200});
    test::ShowActive(dialog);
    EXPECT_EQ(dialog.size(), before);
    dialog.resize(1, 1);
    EXPECT_EQ(dialog.height(), before.height()) << "no smaller than what it holds";
    EXPECT_FALSE(area->verticalScrollBar()->isVisible());
}

TEST_F(ScrolledWindow, IsNoTallerThanItsScreenAndTheKeyboardReachesItsEnd)
{
    Make({300, 5000});
    test::ShowActive(dialog);
    EXPECT_EQ(dialog.height(), RoomFor(dialog).height());
    EXPECT_LT(dialog.height(), dialog.screen()->availableSize().height()) << "which leaves room for a title";
    EXPECT_FALSE(area->horizontalScrollBar()->isVisible()) << "the bar has room beside what it scrolls";
    test::Click(dialog, Qt::Key_Tab);
    EXPECT_TRUE(last->hasFocus());
    EXPECT_GE(last->mapTo(area->viewport(), QPoint()).y(), 0);
    EXPECT_LE(last->mapTo(area->viewport(), QPoint(0, last->height())).y(), area->viewport()->height());
}

TEST_F(ScrolledWindow, IsNoWiderThanItsScreen)
{
    Make({5000, 100});
    test::ShowActive(dialog);
    EXPECT_EQ(dialog.width(), RoomFor(dialog).width());
    EXPECT_TRUE(area->horizontalScrollBar()->isVisible());
    EXPECT_FALSE(area->verticalScrollBar()->isVisible());
}

TEST_F(ScrolledWindow, FollowsWhatComesToShowInIt)
{
    Make({300, 100}, QLayout::SetFixedSize);
    test::ShowActive(dialog);
    last->setMinimumHeight(200);
    QApplication::processEvents();
    QApplication::processEvents();
    EXPECT_EQ(dialog.height(), before.height() + 200 - last->sizeHint().height());
}

} // namespace
} // namespace quillon::ui
