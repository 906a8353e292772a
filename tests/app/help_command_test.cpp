#include "tests/app/dialogs_fixture.h"

#include <QTest>
#include <QTextBlock>
#include <QTextBrowser>

namespace quillon {
namespace {

using ui::Command;

/// Two topics, each longer than the window.
std::string Document()
{
    std::string lines;
    for (int line = 0; line < 200; ++line) {
        lines += "<p>line</p>";
    }
    return R"(<h1><a name="15000">Contents</a></h1>)" + lines + R"(<h1><a name="15210">Loading</a></h1>)" + lines;
}

class HelpCommand : public DialogsTest
{
protected:
    QWidget* HelpWindow() { return Window()->findChild<QWidget*>(QStringLiteral("HelpWindow")); }

    /// The line that is read first.
    std::string TopLine()
    {
        const auto& page = test::Find<QTextBrowser>(*HelpWindow(), QStringLiteral("txtHelp"));
        return page.cursorForPosition({page.width() / 2, page.fontMetrics().height()}).block().text().toStdString();
    }
};

TEST_F(HelpCommand, OpensTheContentsBesideTheWindow)
{
    Files().Put("Help/Quillon.hlp", Document());
    emit Main().CommandGiven(Command::HelpContents);
    ASSERT_NE(HelpWindow(), nullptr);
    EXPECT_TRUE(HelpWindow()->isVisible());
    EXPECT_FALSE(HelpWindow()->isModal());
    EXPECT_EQ(TopLine(), "Contents");
}

TEST_F(HelpCommand, KeyInADialogOpensItsTopic)
{
    Files().Put("Help/Quillon.hlp", Document());
    Give(Command::LoadSystem, [this](QDialog& dialog) {
        QTest::keyClick(&dialog, Qt::Key_F1);
        ASSERT_NE(HelpWindow(), nullptr);
        EXPECT_TRUE(HelpWindow()->isVisible());
        EXPECT_EQ(TopLine(), "Loading");
    });
}

TEST_F(HelpCommand, WithoutItsDocumentOpensNothingAndTellsNobody)
{
    emit Main().CommandGiven(Command::HelpContents);
    EXPECT_TRUE(HelpWindow() == nullptr || !HelpWindow()->isVisible());
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_TRUE(Notifier().Messages().empty());
}

} // namespace
} // namespace quillon
