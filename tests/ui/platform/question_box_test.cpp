#include "ui/platform/question_box.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <functional>

namespace quillon::ui {
namespace {

bool AskAnd(const std::function<void(QMessageBox&)>& answer)
{
    QTimer::singleShot(0, [answer] {
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            answer(*box);
        }
    });
    return AskYesNo(nullptr, QStringLiteral("Update <b>A & B</b>?"), QStringLiteral("Save"));
}

TEST(QuestionBox, ShowsItsTextAsItStands)
{
    AskAnd([](QMessageBox& box) {
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        EXPECT_EQ(box.text(), QStringLiteral("Update <b>A & B</b>?"));
        EXPECT_EQ(box.windowTitle(), QStringLiteral("Save"));
        EXPECT_EQ(box.icon(), QMessageBox::Question);
        EXPECT_TRUE(box.isModal());
        box.reject();
    });
}

TEST(QuestionBox, TellsYesFromNo)
{
    EXPECT_TRUE(AskAnd([](QMessageBox& box) { box.button(QMessageBox::Yes)->click(); }));
    EXPECT_FALSE(AskAnd([](QMessageBox& box) { box.button(QMessageBox::No)->click(); }));
}

TEST(QuestionBox, NoIsTheDefaultAndWhatEscAndClosingMean)
{
    EXPECT_FALSE(AskAnd([](QMessageBox& box) {
        EXPECT_TRUE(box.button(QMessageBox::No) == box.defaultButton());
        QTest::keyClick(&box, Qt::Key_Return);
    }));
    EXPECT_FALSE(AskAnd([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); }));
    EXPECT_FALSE(AskAnd([](QMessageBox& box) { box.close(); }));
}

Answer AskThreeAnd(const std::function<void(QMessageBox&)>& answer)
{
    QTimer::singleShot(0, [answer] {
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            answer(*box);
        }
    });
    return AskYesNoCancel(nullptr, QStringLiteral("Save <b>A & B</b>?"), QStringLiteral("Close"));
}

TEST(QuestionBox, OfThreeAnswersTellsWhichWasGiven)
{
    EXPECT_EQ(AskThreeAnd([](QMessageBox& box) { box.button(QMessageBox::Yes)->click(); }), Answer::Yes);
    EXPECT_EQ(AskThreeAnd([](QMessageBox& box) { box.button(QMessageBox::No)->click(); }), Answer::No);
    EXPECT_EQ(AskThreeAnd([](QMessageBox& box) { box.button(QMessageBox::Cancel)->click(); }), Answer::Cancel);
}

TEST(QuestionBox, OfThreeAnswersCancelIsTheDefaultAndWhatEscAndClosingMean)
{
    EXPECT_EQ(AskThreeAnd([](QMessageBox& box) {
                  EXPECT_EQ(box.text(), QStringLiteral("Save <b>A & B</b>?"));
                  EXPECT_EQ(box.textFormat(), Qt::PlainText);
                  EXPECT_TRUE(box.button(QMessageBox::Cancel) == box.defaultButton());
                  QTest::keyClick(&box, Qt::Key_Return);
              }),
              Answer::Cancel);
    EXPECT_EQ(AskThreeAnd([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); }), Answer::Cancel);
    EXPECT_EQ(AskThreeAnd([](QMessageBox& box) { box.close(); }), Answer::Cancel);
}

bool AskOkCancelAnd(const std::function<void(QMessageBox&)>& answer)
{
    QTimer::singleShot(0, [answer] {
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            answer(*box);
        }
    });
    return AskOkCancel(nullptr, QStringLiteral("Replace <b>A & B</b>?"), QStringLiteral("Exists"));
}

TEST(QuestionBox, TellsOkFromCancelWhichIsTheDefault)
{
    EXPECT_TRUE(AskOkCancelAnd([](QMessageBox& box) {
        EXPECT_EQ(box.text(), QStringLiteral("Replace <b>A & B</b>?"));
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        EXPECT_EQ(box.standardButtons(), QMessageBox::Ok | QMessageBox::Cancel);
        box.button(QMessageBox::Ok)->click();
    }));
    EXPECT_FALSE(AskOkCancelAnd([](QMessageBox& box) {
        EXPECT_TRUE(box.button(QMessageBox::Cancel) == box.defaultButton());
        QTest::keyClick(&box, Qt::Key_Return);
    }));
    EXPECT_FALSE(AskOkCancelAnd([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); }));
    EXPECT_FALSE(AskOkCancelAnd([](QMessageBox& box) { box.close(); }));
}

} // namespace
} // namespace quillon::ui
