#include "tests/support/row_name.h"
#include "tests/ui/main/window_fixture.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include <array>
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
    ButtonRow{"cmdCalculator", "Calc&ulator", "Launch Windows Calculator", Command::Calculator},
    ButtonRow{"cmdClose", "&Close", "Close Quillon", Command::Close},
    ButtonRow{"cmdEditAntennas", "&Edit Antennas", "Edit Antenna Data File", Command::EditAntennas},
    ButtonRow{"cmddBTable", "Show &Table", "Show gain / loss calculation factor table", Command::ShowDBTable},
    ButtonRow{"cmdPrint", "&Print Report", "Print System Comparison Report", Command::PrintReport}),
    support::RowName());

// clang-format on

TEST_F(WindowTest, CommandButtonsStandInReadingOrderWithTheWayOutApart)
{
    Open();
    const QList<QPushButton*> buttons = Find("FrameControls").findChildren<QPushButton*>();
    QStringList names;
    for (const QPushButton* button : buttons) {
        names << button->objectName();
    }
    EXPECT_EQ(names.join(u'|').toStdString(),
              "cmdSaveSystem|cmdLoadSystem|cmdPrint|cmdEditAntennas|cmddBTable|cmdCalculator|cmdClose");
    for (qsizetype next = 1; next < buttons.size(); ++next) {
        EXPECT_LT(buttons[next - 1]->geometry().right(), buttons[next]->geometry().left());
        EXPECT_EQ(buttons[next - 1]->width(), buttons[next]->width());
    }
    const auto gapBefore = [&](qsizetype index) {
        return buttons[index]->geometry().left() - buttons[index - 1]->geometry().right();
    };
    EXPECT_GT(gapBefore(buttons.size() - 1), 2 * gapBefore(1));
    EXPECT_EQ(buttons.first()->geometry().left(), Find("FrameControls").contentsRect().left());
    EXPECT_EQ(buttons.last()->geometry().right(), Find("FrameControls").contentsRect().right());
}

struct EntryRow
{
    const char* name;
    const char* caption;
    const char* shortcuts;
    Command command;
};

class MenuEntries : public WindowTest, public ::testing::WithParamInterface<EntryRow>
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

TEST_P(MenuEntries, SayWhatTheyDo)
{
    EXPECT_EQ(Entry().text().toStdString(), GetParam().caption);
    EXPECT_EQ(QKeySequence::listToString(Entry().shortcuts()).toStdString(), GetParam().shortcuts);
}

TEST_P(MenuEntries, GiveTheirCommandOnce)
{
    const Given given(Window());
    Entry().trigger();
    EXPECT_EQ(given.commands, std::vector{GetParam().command});
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(MenuBar, MenuEntries, ::testing::Values(
    EntryRow{"mnudBTable", "&Show db Table", "Ctrl+T", Command::ShowDBTable},
    EntryRow{"mnuLoadSystem", "&Load System", "Ctrl+O", Command::LoadSystem},
    EntryRow{"mnuSaveSystem", "&Save System", "Ctrl+S", Command::SaveSystem},
    EntryRow{"mnuPrint", "&Print System", "Ctrl+P", Command::PrintSystem},
    EntryRow{"mnuCalculator", "&Calculator", "Ctrl+K", Command::Calculator},
    EntryRow{"mnuExit", "&Exit", "Ctrl+Q", Command::Close},
    EntryRow{"mnuQuillonOnline", "&Quillon Online", "Ctrl+L", Command::QuillonOnline},
    EntryRow{"mnuTarvel", "&Tarvel Software", "Ctrl+Shift+L", Command::Tarvel},
    EntryRow{"mnuAbout", "&About", "Ctrl+I", Command::About},
    EntryRow{"mnuHelpContents", "Help &Overview", "F1; Ctrl+H", Command::HelpContents}), support::RowName());

struct MenuRow
{
    const char* name;
    const char* caption;
    const char* entries;
};

constexpr std::array kMenuRows{
    MenuRow{"mnuProgram", "&Program", "mnudBTable|mnuLoadSystem|mnuSaveSystem|mnuPrint|mnuSepFunc-|mnuCalculator|"
                                      "mnuExitSep-|mnuExit"},
    MenuRow{"mnuLinks", "&Links", "mnuQuillonOnline|mnuTarvel"},
    MenuRow{"mnuHelp", "&Help", "mnuAbout|mnuHelpSep-|mnuHelpContents"},
};

// clang-format on

TEST_F(WindowTest, MenuBarHasThreeMenusWithTheirEntriesInOrder)
{
    Open();
    const QList<QAction*> menus = Window().menuBar()->actions();
    ASSERT_EQ(menus.size(), kMenuRows.size());
    for (std::size_t index = 0; index < kMenuRows.size(); ++index) {
        const QAction* menu = menus[static_cast<qsizetype>(index)];
        EXPECT_EQ(menu->menu()->objectName().toStdString(), kMenuRows[index].name);
        EXPECT_EQ(menu->text().toStdString(), kMenuRows[index].caption);
        QStringList entries;
        for (const QAction* entry : menu->menu()->actions()) {
            entries << entry->objectName() + (entry->isSeparator() ? QStringLiteral("-") : QString());
        }
        EXPECT_EQ(entries.join(u'|').toStdString(), kMenuRows[index].entries);
    }
}

struct KeyRow
{
    Qt::KeyboardModifiers modifiers;
    Qt::Key key;
    Command command;
};

// clang-format off
constexpr std::array kKeyRows{
    KeyRow{Qt::ControlModifier, Qt::Key_S, Command::SaveSystem},
    KeyRow{Qt::ControlModifier, Qt::Key_O, Command::LoadSystem},
    KeyRow{Qt::ControlModifier, Qt::Key_R, Command::PrintReport},
    KeyRow{Qt::ControlModifier, Qt::Key_P, Command::PrintSystem},
    KeyRow{Qt::ControlModifier, Qt::Key_M, Command::EditAntennas},
    KeyRow{Qt::ControlModifier, Qt::Key_T, Command::ShowDBTable},
    KeyRow{Qt::ControlModifier, Qt::Key_K, Command::Calculator},
    KeyRow{Qt::ControlModifier, Qt::Key_Q, Command::Close},
    KeyRow{Qt::ControlModifier, Qt::Key_L, Command::QuillonOnline},
    KeyRow{Qt::ControlModifier | Qt::ShiftModifier, Qt::Key_L, Command::Tarvel},
    KeyRow{Qt::ControlModifier, Qt::Key_I, Command::About},
    KeyRow{Qt::NoModifier, Qt::Key_F1, Command::HelpContents},
    KeyRow{Qt::ControlModifier, Qt::Key_H, Command::HelpContents},
};

// clang-format on

TEST_F(WindowTest, EachCommandHasAKeyThatWorksWhereverTheFocusIs)
{
    Open();
    for (const char* field : {"txtOutputPower(1)", "cboSystemOneCoax(0)", "vsVSWR(2)", "cmdCalculator"}) {
        Find(field).setFocus();
        for (const auto& [modifiers, key, command] : kKeyRows) {
            const Given given(Window());
            QTest::keyClick(&Find(field), key, modifiers);
            EXPECT_EQ(given.commands, std::vector{command}) << field << ", key " << key;
        }
    }
}

TEST_F(WindowTest, UnloadedIsToldWhenTheWindowCloses)
{
    Open();
    const QSignalSpy unloaded(&Window(), &Quillon::Unloaded);
    Window().close();
    EXPECT_EQ(unloaded.count(), 1);
}

} // namespace
} // namespace quillon::ui
