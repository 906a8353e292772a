#include "ui/platform/message_notifier.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QMessageBox>
#include <QTest>
#include <QTimer>

#include <string_view>

namespace quillon::ui {
namespace {

/// What stood in a message box while it was open.
struct SeenBox
{
    QString objectName;
    QString title;
    QString text;
    Qt::TextFormat format = Qt::AutoText;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    QMessageBox::StandardButtons buttons;
    bool modal = false;
};

SeenBox Inform(std::string_view text, std::string_view title)
{
    SeenBox seen;
    QTimer::singleShot(0, [&seen] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (box == nullptr) {
            return;
        }
        seen = {box->objectName(), box->windowTitle(),     box->text(),   box->textFormat(),
                box->icon(),       box->standardButtons(), box->isModal()};
        box->button(QMessageBox::Ok)->click();
    });
    MessageNotifier().Inform(text, title);
    return seen;
}

TEST(MessageNotifier, ShowsTextAndTitleWithInformationIconAndOk)
{
    const SeenBox seen = Inform("Please Enter Only Numbers!", "Input Error");
    EXPECT_EQ(seen.objectName, QStringLiteral("MessageBox"));
    EXPECT_EQ(seen.title, QStringLiteral("Input Error"));
    EXPECT_EQ(seen.text, QStringLiteral("Please Enter Only Numbers!"));
    EXPECT_EQ(seen.icon, QMessageBox::Information);
    EXPECT_EQ(seen.buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
    EXPECT_TRUE(seen.modal);
}

TEST(MessageNotifier, AnEmptyTitleIsTheProgramsName)
{
    EXPECT_EQ(Inform("No data", "").title, QStringLiteral("Quillon"));
}

TEST(MessageNotifier, MarkupInATextIsShownAsItStands)
{
    const SeenBox seen = Inform("<b>A&B</b>.DAT", "Quillon");
    EXPECT_EQ(seen.format, Qt::PlainText);
    EXPECT_EQ(seen.text, QStringLiteral("<b>A&B</b>.DAT"));
}

TEST(MessageNotifier, BelongsToTheDialogThatIsOpenElseToItsOwner)
{
    QWidget owner;
    QDialog dialog;
    MessageNotifier notifier(&owner);
    QList<QObject*> parents;
    const auto inform = [&notifier, &parents] {
        QTimer::singleShot(0, [&parents] {
            QWidget* box = QApplication::activeModalWidget();
            parents.append(box->parent());
            box->close();
        });
        notifier.Inform("No data", "");
    };
    inform();
    dialog.open();
    inform();
    dialog.close();
    QDialog beside;
    beside.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&beside));
    inform();
    EXPECT_EQ(parents, (QList<QObject*>{&owner, &dialog, &beside}));
}

TEST(MessageNotifier, TextsAreUtf8)
{
    EXPECT_EQ(Inform("50 \xCE\xA9", "\xE2\x80\x9C"
                                    "12\xE2\x80\x9D")
                  .text,
              QStringLiteral("50 \u03A9"));
}

} // namespace
} // namespace quillon::ui
