#include "ui/widgets/spoken.h"

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>

namespace quillon::ui {
namespace {

QAccessibleInterface& Spoken(QWidget& widget)
{
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&widget);
    EXPECT_NE(spoken, nullptr);
    return *spoken;
}

TEST(SpokenRole, IsThatOfTheWidgetAlone)
{
    QWidget window;
    auto* mark = new QWidget(&window);
    auto* part = new QWidget(&window);
    SetSpokenRole(*mark, QAccessible::Graphic);
    EXPECT_EQ(Spoken(*mark).role(), QAccessible::Graphic);
    EXPECT_EQ(Spoken(*part).role(), QAccessible::Client);
}

TEST(SpokenRole, LeavesTheNameOfTheFrameToTheFrame)
{
    QGroupBox frame(QStringLiteral("Title"));
    auto* mark = new QWidget(&frame);
    SetSpokenRole(*mark, QAccessible::Graphic);
    EXPECT_EQ(Spoken(*mark).text(QAccessible::Name), QString());
    mark->setAccessibleName(QStringLiteral("equal"));
    EXPECT_EQ(Spoken(*mark).text(QAccessible::Name), QStringLiteral("equal"));
}

TEST(SpokenRole, OfAWindowComesWithItsTitle)
{
    QWidget window;
    window.setWindowTitle(QStringLiteral("Help"));
    SetSpokenRole(window, QAccessible::Window);
    EXPECT_EQ(Spoken(window).role(), QAccessible::Window);
    EXPECT_EQ(Spoken(window).text(QAccessible::Name), QStringLiteral("Help"));
}

TEST(SpokenName, OfAListBoxIsAlsoThatOfItsTextAndOfItsDropDownList)
{
    QComboBox list;
    list.setEditable(true);
    SetSpokenName(list, QStringLiteral("Brand"));
    EXPECT_EQ(list.accessibleName(), QStringLiteral("Brand"));
    EXPECT_EQ(Spoken(*list.lineEdit()).text(QAccessible::Name), QStringLiteral("Brand"));
    EXPECT_EQ(Spoken(*list.view()).text(QAccessible::Name), QStringLiteral("Brand"));
}

TEST(SpokenName, OfAListBoxWithoutATextIsThatOfItsDropDownList)
{
    QComboBox list;
    SetSpokenName(list, QStringLiteral("Printer"));
    EXPECT_EQ(Spoken(*list.view()).text(QAccessible::Name), QStringLiteral("Printer"));
}

TEST(SpokenName, OfAnotherControlIsItsOwn)
{
    QLineEdit box;
    SetSpokenName(box, QStringLiteral("Notes"));
    EXPECT_EQ(Spoken(box).text(QAccessible::Name), QStringLiteral("Notes"));
}

TEST(Say, GivesANameAndADescriptionAndTakesThemAway)
{
    QWidget mark;
    Say(mark, QStringLiteral("equal"), QStringLiteral("Coax Loss"));
    EXPECT_EQ(mark.accessibleName(), QStringLiteral("equal"));
    EXPECT_EQ(mark.accessibleDescription(), QStringLiteral("Coax Loss"));
    Say(mark, {});
    EXPECT_EQ(mark.accessibleName(), QString());
    EXPECT_EQ(mark.accessibleDescription(), QString());
}

} // namespace
} // namespace quillon::ui
