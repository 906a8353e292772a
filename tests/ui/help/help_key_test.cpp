#include "ui/help/help_key.h"

#include "tests/support/row_name.h"
#include "tests/support/shown_window.h"

#include <QComboBox>
#include <QDialog>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMessageBox>

#include <gtest/gtest.h>

namespace quillon::ui {
namespace {

class HelpKeyTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        qApp->installEventFilter(&key);
        QObject::connect(&key, &HelpKey::Asked, &key, [this](int context) { asked.append(context); });
    }

    HelpKey key;
    QList<int> asked;
};

struct FormRow
{
    const char* name;
    int context; ///< 0 where the window answers the key itself
};

class HelpKeyIn : public HelpKeyTest, public ::testing::WithParamInterface<FormRow>
{
};

TEST_P(HelpKeyIn, AsksForTheWindowsTopic)
{
    QDialog dialog;
    dialog.setObjectName(QString::fromLatin1(GetParam().name));
    auto* box = new QLineEdit(&dialog);
    test::ShowActive(dialog);
    box->setFocus();
    test::Click(dialog, Qt::Key_F1);
    EXPECT_EQ(asked, GetParam().context != 0 ? QList<int>{GetParam().context} : QList<int>());
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Windows, HelpKeyIn, ::testing::Values(
    FormRow{"Quillon", 0},
    FormRow{"SaveSystem", 15200},
    FormRow{"LoadSystem", 15210},
    FormRow{"PrintOut", 15300},
    FormRow{"EditAntennas", 15400},
    FormRow{"ShowTable", 15500},
    FormRow{"Splash", 0},
    FormRow{"About", 15610},
    FormRow{"HelpWindow", 15700},
    FormRow{"Unknown", 0}), support::RowName());

// clang-format on

TEST_F(HelpKeyTest, MessageBelongsToTheWindowBelowIt)
{
    QDialog dialog;
    dialog.setObjectName(QStringLiteral("EditAntennas"));
    QMessageBox box(&dialog);
    test::ShowActive(box);
    test::Click(box, Qt::Key_F1);
    EXPECT_EQ(asked, QList<int>{15400});
}

TEST_F(HelpKeyTest, MessageAboveTheMainWindowHasItsTopicForTheMenuIsOutOfReach)
{
    QWidget main;
    main.setObjectName(QStringLiteral("Quillon"));
    QMessageBox box(&main);
    test::ShowActive(box);
    test::Click(box, Qt::Key_F1);
    EXPECT_EQ(asked, QList<int>{15100});
}

TEST_F(HelpKeyTest, OtherKeysAndOtherHelpKeysPassBy)
{
    QDialog dialog;
    dialog.setObjectName(QStringLiteral("About"));
    test::ShowActive(dialog);
    test::Click(dialog, Qt::Key_F2);
    test::Click(dialog, Qt::Key_F1, Qt::ControlModifier);
    test::Click(dialog, Qt::Key_F1, Qt::ShiftModifier);
    EXPECT_EQ(asked, QList<int>());
}

TEST_F(HelpKeyTest, HeldDownItAsksOnce)
{
    QDialog dialog;
    dialog.setObjectName(QStringLiteral("About"));
    test::ShowActive(dialog);
    for (const bool isRepeated : {false, true, true}) {
        QKeyEvent press(QEvent::KeyPress, Qt::Key_F1, Qt::NoModifier, QString(), isRepeated);
        QApplication::sendEvent(&dialog, &press);
    }
    EXPECT_EQ(asked, QList<int>{15610});
}

TEST_F(HelpKeyTest, OpenListComesFirst)
{
    QDialog dialog;
    dialog.setObjectName(QStringLiteral("LoadSystem"));
    auto* list = new QComboBox(&dialog);
    list->addItem(QStringLiteral("a"));
    test::ShowActive(dialog);
    list->showPopup();
    QTest::keyClick(list, Qt::Key_F1);
    EXPECT_EQ(asked, QList<int>());
    list->hidePopup();
}

} // namespace
} // namespace quillon::ui
