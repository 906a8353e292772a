#include "ui/help/help_window.h"

#include "tests/support/find_widget.h"
#include "tests/support/shown_window.h"
#include "tests/ui/help/shipped_help.h"

#include <QDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollBar>
#include <QTextBrowser>

#include <gtest/gtest.h>

#include <memory>

namespace quillon::ui {
namespace {

/// A main window, its help, and modal windows above.
class HelpBesideModal : public ::testing::Test
{
protected:
    void SetUp() override { test::ShowActive(main); }

    /// Clicks where a person would, through the window, which a modal one may block.
    bool CanBeUsed()
    {
        QApplication::processEvents();
        help.ShowTopic(15400);
        auto& page = test::Find<QTextBrowser>(help, QStringLiteral("txtHelp"));
        auto& contents = test::Find<QPushButton>(help, QStringLiteral("cmdContents"));
        QTest::mouseClick(help.windowHandle(), Qt::LeftButton, Qt::NoModifier,
                          contents.mapTo(&help, contents.rect().center()));
        return page.verticalScrollBar()->value() < 10;
    }

    /// The same without asking for help anew.
    bool StaysUsable()
    {
        QApplication::processEvents();
        auto& box = test::Find<QLineEdit>(help, QStringLiteral("txtFind"));
        help.activateWindow();
        QApplication::processEvents();
        QTest::mouseClick(help.windowHandle(), Qt::LeftButton, Qt::NoModifier, box.mapTo(&help, box.rect().center()));
        const bool isFocused = help.focusWidget() == &box;
        test::Find<QTextBrowser>(help, QStringLiteral("txtHelp")).setFocus();
        return isFocused;
    }

    QWidget main;
    HelpWindow help{test::ShippedHelpFile(), &main};
};

TEST_F(HelpBesideModal, BothWindowsCanBeUsedWithoutOne)
{
    EXPECT_TRUE(CanBeUsed());
    main.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&main));
    EXPECT_TRUE(help.isVisible());
}

TEST_F(HelpBesideModal, OpensAboveOne)
{
    QDialog dialog(&main);
    dialog.setModal(true);
    test::ShowActive(dialog);
    EXPECT_TRUE(CanBeUsed());
    EXPECT_TRUE(StaysUsable());
}

TEST_F(HelpBesideModal, StaysUsableWhenOneOpens)
{
    ASSERT_TRUE(help.ShowTopic(15000));
    for (const Qt::WindowModality modality : {Qt::ApplicationModal, Qt::WindowModal}) {
        QDialog dialog(&main);
        dialog.setWindowModality(modality);
        test::ShowActive(dialog);
        EXPECT_TRUE(StaysUsable()) << modality;
    }
    EXPECT_TRUE(StaysUsable()) << "and when it is gone";
}

TEST_F(HelpBesideModal, StaysUsableThroughAMessageAboveADialog)
{
    QDialog dialog(&main);
    dialog.setModal(true);
    test::ShowActive(dialog);
    ASSERT_TRUE(help.ShowTopic(15400));
    {
        QMessageBox box(&dialog);
        box.setModal(true);
        test::ShowActive(box);
        EXPECT_TRUE(StaysUsable()) << "beside the message";
    }
    EXPECT_TRUE(StaysUsable()) << "beside the dialog again";
    dialog.hide();
    EXPECT_TRUE(StaysUsable()) << "beside the main window again";
    EXPECT_TRUE(CanBeUsed());
}

TEST_F(HelpBesideModal, OutlivesTheDialogItStoodAbove)
{
    auto dialog = std::make_unique<QDialog>(&main);
    dialog->setModal(true);
    test::ShowActive(*dialog);
    ASSERT_TRUE(help.ShowTopic(15500));
    dialog.reset();
    EXPECT_TRUE(help.isVisible());
    EXPECT_TRUE(StaysUsable());
    EXPECT_TRUE(CanBeUsed());
}

TEST_F(HelpBesideModal, DialogIsUsableWhileTheHelpIsOpen)
{
    QDialog dialog(&main);
    dialog.setModal(true);
    auto* button = new QPushButton(QStringLiteral("a"), &dialog);
    test::ShowActive(dialog);
    ASSERT_TRUE(help.ShowTopic(15000));
    int clicks = 0;
    QObject::connect(button, &QPushButton::clicked, &dialog, [&clicks] { ++clicks; });
    QTest::mouseClick(dialog.windowHandle(), Qt::LeftButton, Qt::NoModifier, button->geometry().center());
    EXPECT_EQ(clicks, 1);
}

} // namespace
} // namespace quillon::ui
