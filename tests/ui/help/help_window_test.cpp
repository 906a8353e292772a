#include "ui/help/help_window.h"

#include "tests/support/application_font.h"
#include "tests/support/find_widget.h"
#include "tests/support/shown_window.h"
#include "tests/support/temp_folder.h"
#include "tests/ui/help/shipped_help.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextBrowser>

#include <gtest/gtest.h>

namespace quillon::ui {
namespace {

class HelpWindowTest : public ::testing::Test
{
protected:
    /// Opens the shipped help and waits until it has the keyboard.
    void Open(int context = 15000)
    {
        ASSERT_TRUE(window.ShowTopic(context));
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    QTextBrowser& Page() { return test::Find<QTextBrowser>(window, QStringLiteral("txtHelp")); }

    QPushButton& Button(const char* name) { return test::Find<QPushButton>(window, QString::fromLatin1(name)); }

    QLineEdit& FindBox() { return test::Find<QLineEdit>(window, QStringLiteral("txtFind")); }

    std::string Status() { return test::Find<QLabel>(window, QStringLiteral("lblStatus")).text().toStdString(); }

    /// What stands at the top of what is seen.
    std::string Top()
    {
        return Page()
            .cursorForPosition({20, 3 * Page().fontMetrics().height() / 2})
            .block()
            .text()
            .simplified()
            .toStdString();
    }

    HelpWindow window{test::ShippedHelpFile()};
};

TEST_F(HelpWindowTest, OpensAtTheTopicAskedFor)
{
    Open(15400);
    EXPECT_EQ(Top(), "The antenna editor");
    EXPECT_EQ(window.objectName(), QStringLiteral("HelpWindow"));
    EXPECT_FALSE(window.isModal());
    EXPECT_TRUE(Page().hasFocus());
    ASSERT_TRUE(window.ShowTopic(15000));
    EXPECT_EQ(Top(), "Quillon Help");
}

TEST_F(HelpWindowTest, ComesBackWhenItWasPutAway)
{
    Open();
    window.setWindowState(Qt::WindowMinimized);
    ASSERT_TRUE(window.ShowTopic(15500));
    EXPECT_FALSE(window.isMinimized());
    EXPECT_EQ(Top(), "The dB table");
}

TEST_F(HelpWindowTest, DoesNotKeepTheProgramRunning)
{
    EXPECT_FALSE(window.testAttribute(Qt::WA_QuitOnClose));
}

TEST_F(HelpWindowTest, LinksBackForwardAndContentsWork)
{
    Open();
    EXPECT_FALSE(Button("cmdBack").isEnabled());
    EXPECT_FALSE(Button("cmdForward").isEnabled());
    test::Click(window, Qt::Key_Tab);
    test::Click(window, Qt::Key_Return);
    EXPECT_EQ(Top(), "A first comparison in six steps");
    EXPECT_TRUE(Button("cmdBack").isEnabled());
    test::Click(window, Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(Top(), "Quillon Help");
    EXPECT_FALSE(Button("cmdBack").isEnabled());
    test::Click(window, Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(Top(), "A first comparison in six steps");
    test::Click(window, Qt::Key_Home, Qt::AltModifier);
    EXPECT_EQ(Top(), "Quillon Help");
    Button("cmdBack").click();
    EXPECT_EQ(Top(), "A first comparison in six steps");
    Button("cmdForward").click();
    EXPECT_EQ(Top(), "Quillon Help");
    Button("cmdBack").click();
    Button("cmdContents").click();
    EXPECT_EQ(Top(), "Quillon Help");
}

TEST_F(HelpWindowTest, EnterPressesTheButtonWithTheFocus)
{
    Open(15400);
    Button("cmdContents").setFocus();
    test::Click(window, Qt::Key_Return);
    EXPECT_EQ(Top(), "Quillon Help");
    Button("cmdBack").setFocus();
    test::Click(window, Qt::Key_Return);
    EXPECT_EQ(Top(), "The antenna editor");
    EXPECT_TRUE(Page().hasFocus()) << "not the next button, which an Enter too many would press";
}

TEST_F(HelpWindowTest, FindsByKeyboard)
{
    Open();
    test::Click(window, Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(FindBox().hasFocus());
    test::Type(window, QStringLiteral("feedpoint"));
    test::Click(window, Qt::Key_Return);
    const int first = Page().textCursor().position();
    EXPECT_EQ(Page().textCursor().selectedText(), QStringLiteral("Feedpoint"));
    test::Click(window, Qt::Key_F3);
    EXPECT_GT(Page().textCursor().position(), first);
    test::Click(window, Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_EQ(Page().textCursor().position(), first);
    EXPECT_EQ(Status(), "");
}

TEST_F(HelpWindowTest, SaysWhatItDoesNotFind)
{
    Open();
    FindBox().setText(QStringLiteral("<b>xyz</b>"));
    test::Click(window, Qt::Key_F3);
    EXPECT_EQ(Status(), "“<b>xyz</b>” is not in this help.");
    FindBox().setText(QStringLiteral("x"));
    EXPECT_EQ(Status(), "");
}

TEST_F(HelpWindowTest, EscAndCloseCloseIt)
{
    Open();
    test::Click(window, Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
    Open();
    FindBox().setFocus();
    test::Click(window, Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
    Open();
    Button("cmdClose").click();
    EXPECT_FALSE(window.isVisible());
}

TEST_F(HelpWindowTest, ZoomsByKeyboard)
{
    Open();
    const double usual = Page().font().pointSizeF();
    test::Click(window, Qt::Key_Plus, Qt::ControlModifier);
    test::Click(window, Qt::Key_Equal, Qt::ControlModifier);
    EXPECT_NEAR(Page().font().pointSizeF(), 1.2 * usual, 0.01);
    test::Click(window, Qt::Key_0, Qt::ControlModifier);
    test::Click(window, Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_NEAR(Page().font().pointSizeF(), 0.9 * usual, 0.01);
}

TEST_F(HelpWindowTest, NothingHappensWithoutItsDocument)
{
    const support::TempFolder folder;
    HelpWindow other(folder / "Quillon.hlp");
    EXPECT_FALSE(other.ShowTopic(15000));
    EXPECT_FALSE(other.isVisible());
}

TEST_F(HelpWindowTest, FollowsItsDocument)
{
    support::TempFolder folder;
    const auto file = folder.Put("Quillon.hlp", "<p>old</p>");
    HelpWindow other(file);
    ASSERT_TRUE(other.ShowTopic(15000));
    auto& page = test::Find<QTextBrowser>(other, QStringLiteral("txtHelp"));
    EXPECT_EQ(page.toPlainText(), QStringLiteral("old"));
    folder.Put("Quillon.hlp", "<p>new</p>");
    ASSERT_TRUE(other.ShowTopic(15000));
    EXPECT_EQ(page.toPlainText(), QStringLiteral("new"));
    std::filesystem::remove(file);
    EXPECT_FALSE(other.ShowTopic(15000));
    EXPECT_TRUE(other.isVisible());
    EXPECT_EQ(page.toPlainText(), QStringLiteral("new"));
}

TEST_F(HelpWindowTest, ScreenReadersHearWhatThingsAre)
{
    EXPECT_EQ(Page().accessibleName(), QStringLiteral("Help text"));
    const QList<QLabel*> labels = window.findChildren<QLabel*>();
    EXPECT_TRUE(std::any_of(labels.begin(), labels.end(), [&](QLabel* label) { return label->buddy() == &FindBox(); }));
}

TEST_F(HelpWindowTest, NothingIsCutAtAnyFontSize)
{
    const test::ApplicationFont font;
    for (const double points : {8.0, 10.0, 20.0}) {
        test::ApplicationFont::SetPointSize(points);
        HelpWindow fresh(test::ShippedHelpFile());
        ASSERT_TRUE(fresh.ShowTopic(15000));
        fresh.resize(fresh.sizeHint());
        QApplication::processEvents();
        const auto& page = test::Find<QTextBrowser>(fresh, QStringLiteral("txtHelp"));
        EXPECT_EQ(page.horizontalScrollBar()->maximum(), 0) << points;
        EXPECT_GT(page.verticalScrollBar()->maximum(), 1000) << points;
    }
}

} // namespace
} // namespace quillon::ui
