#include "tests/support/row_name.h"
#include "tests/ui/main/window_fixture.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTest>

#include <stdexcept>
#include <vector>

namespace quillon::ui {
namespace {

/// The commands that a window gave while this lived.
class Given
{
public:
    explicit Given(Quillon& window)
    {
        QObject::connect(&window, &Quillon::CommandGiven, &m_context,
                         [this](Command command) { commands.push_back(command); });
    }

    std::vector<Command> commands;

private:
    QObject m_context;
};

struct ButtonRow
{
    const char* name;
    const char* caption;
    const char* toolTip;
    Command command;
};

class CommandButtons : public WindowTest, public ::testing::WithParamInterface<ButtonRow>
{
protected:
    void SetUp() override { Open(); }
};

TEST_P(CommandButtons, SayWhatTheyDo)
{
    EXPECT_EQ(Text(GetParam().name), GetParam().caption);
    EXPECT_EQ(ToolTip(GetParam().name), GetParam().toolTip);
    EXPECT_EQ(Find(GetParam().name).parentWidget(), &Find("FrameControls"));
}

TEST_P(CommandButtons, GiveTheirCommandOnce)
{
    const Given given(Window());
    QTest::mouseClick(&Find(GetParam().name), Qt::LeftButton);
    EXPECT_EQ(given.commands, std::vector{GetParam().command});
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(FrameControls, CommandButtons, ::testing::Values(
    ButtonRow{"cmdSaveSystem", "Sa&ve System", "Show gain / loss calculation factor table", Command::SaveSystem},
    ButtonRow{"cmdLoadSystem", "L&oad System", "Show gain / loss calculation factor table", Command::LoadSystem},
    ButtonRow{"cmdPrint", "&Print Report", "Print System Comparison Report", Command::PrintReport}),
    support::RowName());

// clang-format on

struct EntryRow
{
    const char* name;
    const char* caption;
    const char* shortcut;
    Command command;
};

class ProgramMenu : public WindowTest, public ::testing::WithParamInterface<EntryRow>
{
protected:
    void SetUp() override { Open(); }

    QAction& Entry()
    {
        auto* action = Window().findChild<QAction*>(QString::fromLatin1(GetParam().name));
        if (action == nullptr) {
            throw std::runtime_error("no such entry");
        }
        return *action;
    }
};

TEST_P(ProgramMenu, HasTheEntry)
{
    EXPECT_EQ(Entry().text().toStdString(), GetParam().caption);
    EXPECT_EQ(Entry().shortcut(), QKeySequence(QString::fromLatin1(GetParam().shortcut)));
}

TEST_P(ProgramMenu, GivesTheCommandOnce)
{
    const Given given(Window());
    Entry().trigger();
    EXPECT_EQ(given.commands, std::vector{GetParam().command});
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Entries, ProgramMenu, ::testing::Values(
    EntryRow{"mnuLoadSystem", "&Load System", "Ctrl+O", Command::LoadSystem},
    EntryRow{"mnuSaveSystem", "&Save System", "Ctrl+S", Command::SaveSystem},
    EntryRow{"mnuPrint", "&Print System", "Ctrl+P", Command::PrintSystem}), support::RowName());

// clang-format on

TEST_F(WindowTest, MenuBarHasTheProgramMenuInItsOrder)
{
    Open();
    const QList<QAction*> menus = Window().menuBar()->actions();
    ASSERT_EQ(menus.size(), 1);
    EXPECT_EQ(menus[0]->text(), "&Program");
    EXPECT_EQ(menus[0]->menu()->objectName(), "mnuProgram");
    QStringList entries;
    for (const QAction* action : menus[0]->menu()->actions()) {
        entries << action->objectName();
    }
    EXPECT_EQ(entries.join(u'|').toStdString(), "mnuLoadSystem|mnuSaveSystem|mnuPrint");
}

} // namespace
} // namespace quillon::ui
