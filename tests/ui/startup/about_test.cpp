#include "ui/startup/about.h"

#include "tests/support/application_font.h"
#include "tests/support/find_widget.h"
#include "tests/support/recording_shell.h"
#include "tests/support/shown_window.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <optional>

namespace quillon::ui {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

class AboutTest : public ::testing::Test
{
protected:
    std::string Text(const char* name)
    {
        return test::Find<QLabel>(about, QString::fromUtf8(name)).text().toStdString();
    }

    QStringList Visited(int steps)
    {
        QStringList names{about.focusWidget()->objectName()};
        for (int step = 0; step < steps; ++step) {
            test::Click(about, Qt::Key_Tab);
            names.append(about.focusWidget()->objectName());
        }
        return names;
    }

    void ShowPrepared()
    {
        about.Prepare();
        test::ShowActive(about);
    }

    std::optional<SystemVersion> system = SystemVersion{1, {}, 4, 10, QStringLiteral("2222"), QStringLiteral("A\0?")};
    support::RecordingShell shell;
    About about{{QStringLiteral("Quillon"), QVersionNumber(1, 0, 0), QStringLiteral("/opt/q & <b>r</b>/Quillon")},
                [this] { return system; },
                shell};
};

TEST_F(AboutTest, ShowsProgramSystemAndPath)
{
    about.Prepare();
    EXPECT_EQ(about.windowTitle(), QStringLiteral("About Quillon"));
    EXPECT_EQ(Text("lblVersion"), "Quillon, Version 1.0 0, for Windows 98");
    EXPECT_EQ(Text("lblAppInfo"), "Running on Windows 98 4.10 Build 2222 (A)");
    EXPECT_EQ(Text("lblPath"), "/opt/q & <b>r</b>/Quillon");
    EXPECT_EQ(Text("lblEMail"), "quillon@tarvel.example");
    EXPECT_EQ(Text("lblComents"), "Comments, corrections and figures for the catalogues are welcome.");
    EXPECT_EQ(Text("lblCopyright"), "© 2026 Tarvel Software");
    EXPECT_EQ(test::Find<QPushButton>(about, QStringLiteral("cmdSendEMail")).text(), QStringLiteral("&Send E-Mail"));
    EXPECT_EQ(test::Find<QPushButton>(about, QStringLiteral("cmdClose")).text(), QStringLiteral("&Close"));
}

TEST_F(AboutTest, ASystemThatDoesNotTellLeavesTheLinesWithoutIt)
{
    system.reset();
    about.Prepare();
    EXPECT_EQ(Text("lblVersion"), "Quillon, Version 1.0 0, for ");
    EXPECT_EQ(Text("lblAppInfo"), "Running on   Build  ()");
}

TEST_F(AboutTest, AsksTheSystemAtEachOpening)
{
    about.Prepare();
    system->minor = 90;
    about.Prepare();
    EXPECT_EQ(Text("lblVersion"), "Quillon, Version 1.0 0, for Windows ME");
}

TEST_F(AboutTest, EveryLabelIsPlainText)
{
    for (const QLabel* label : about.findChildren<QLabel*>()) {
        EXPECT_EQ(label->textFormat(), Qt::PlainText) << label->objectName().toStdString();
        EXPECT_EQ(label->buddy(), nullptr) << "which would eat ampersands";
    }
}

TEST_F(AboutTest, TheButtonWritesAMailWithoutABody)
{
    about.Prepare();
    test::Find<QPushButton>(about, QStringLiteral("cmdSendEMail")).click();
    EXPECT_THAT(shell.Calls(), ElementsAre("mailto:quillon@tarvel.example?subject=Quillon%2C%20Version%201.0%200%2C%20"
                                           "Running%20on%20Windows%2098%204.10%20Build%202222%20%28A%29"));
}

TEST_F(AboutTest, TheAddressWritesCommentsByMouseEnterAndSpaceBar)
{
    ShowPrepared();
    auto& mail = test::Find<QLabel>(about, QStringLiteral("lblEMail"));
    QTest::mouseClick(&mail, Qt::LeftButton);
    mail.setFocus();
    test::Click(about, Qt::Key_Return);
    test::Click(about, Qt::Key_Space);
    EXPECT_THAT(shell.Calls(), ElementsAre(HasSubstr("?subject=Comments%20on%20Quillon%2C%20"), shell.Calls().front(),
                                           shell.Calls().front()));
    EXPECT_THAT(shell.Calls().front(), ::testing::EndsWith("&Body=Hello%2C"));
    EXPECT_TRUE(about.isVisible());
}

TEST_F(AboutTest, ButtonsHaveAccessKeys)
{
    EXPECT_EQ(test::Find<QPushButton>(about, QStringLiteral("cmdSendEMail")).shortcut(),
              QKeySequence(QStringLiteral("Alt+S")));
    EXPECT_EQ(test::Find<QPushButton>(about, QStringLiteral("cmdClose")).shortcut(),
              QKeySequence(QStringLiteral("Alt+C")));
}

TEST_F(AboutTest, CloseEscAndEnterClose)
{
    const std::vector<std::function<void()>> ways{
        [this] { test::Find<QPushButton>(about, QStringLiteral("cmdClose")).click(); },
        [this] { test::Click(about, Qt::Key_Escape); },
        // The way out has the keyboard at first.
        [this] { test::Click(about, Qt::Key_Return); },
    };
    for (const auto& way : ways) {
        ShowPrepared();
        way();
        EXPECT_FALSE(about.isVisible());
    }
    EXPECT_TRUE(shell.Calls().empty());
}

TEST_F(AboutTest, OpenShowsItUntilItIsClosed)
{
    bool isModal = false;
    QTimer::singleShot(0, &about, [&] {
        isModal = QApplication::activeModalWidget() == &about;
        about.reject();
    });
    about.Open();
    EXPECT_TRUE(isModal);
    EXPECT_EQ(Text("lblVersion"), "Quillon, Version 1.0 0, for Windows 98");
}

TEST_F(AboutTest, TabGoesInReadingOrder)
{
    ShowPrepared();
    EXPECT_EQ(Visited(3), (QStringList{QStringLiteral("cmdClose"), QStringLiteral("lblEMail"),
                                       QStringLiteral("cmdSendEMail"), QStringLiteral("cmdClose")}));
}

TEST_F(AboutTest, NoButtonIsPressedByEnterElsewhere)
{
    for (const QPushButton* button : about.findChildren<QPushButton*>()) {
        EXPECT_FALSE(button->autoDefault() || button->isDefault()) << button->objectName().toStdString();
    }
}

TEST_F(AboutTest, GrowsWithTheFontAtTheNextOpening)
{
    const test::ApplicationFont font;
    about.Prepare();
    const auto& version = test::Find<QLabel>(about, QStringLiteral("lblVersion"));
    const double before = version.font().pointSizeF();
    test::ApplicationFont::SetPointSize(2 * QApplication::font().pointSizeF());
    about.Prepare();
    EXPECT_DOUBLE_EQ(version.font().pointSizeF(), 2 * before);
    EXPECT_EQ(version.font().weight(), QFont::DemiBold);
}

TEST_F(AboutTest, ALongPathDoesNotWidenIt)
{
    about.Prepare();
    const int width = about.sizeHint().width();
    About other(
        {QStringLiteral("Quillon"), QVersionNumber(1, 0, 0), QString(300, u'x')}, [this] { return system; }, shell);
    other.Prepare();
    EXPECT_EQ(other.sizeHint().width(), width);
}

TEST_F(AboutTest, ALongNameOfTheSystemIsNotCut)
{
    about.Prepare();
    const int height = about.sizeHint().height();
    system = SystemVersion{SystemVersion::kUnnumbered, QStringLiteral("long name ").repeated(40), 1, 2, {}, {}};
    about.Prepare();
    test::ShowActive(about);
    EXPECT_TRUE(QTest::qWaitFor([this, height] { return about.height() > height; }));
    for (const char* name : {"lblVersion", "lblAppInfo"}) {
        const auto& label = test::Find<QLabel>(about, QString::fromUtf8(name));
        EXPECT_GE(label.height(), label.heightForWidth(label.width())) << name;
    }
}

} // namespace
} // namespace quillon::ui
