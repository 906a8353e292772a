#include "tests/support/find_widget.h"
#include "tests/support/recording_notifier.h"
#include "tests/ui/report/page_image.h"
#include "tests/ui/report/report_systems.h"
#include "ui/report/print_system_report.h"
#include "ui/report/report_page.h"

#include <QLabel>
#include <QLocale>
#include <QPageLayout>

#include <gtest/gtest.h>

#include <string>

namespace quillon::ui {
namespace {

class ReportNotes : public testing::Test
{
protected:
    ReportNotes() { form.SetReport(); }

    QLabel& Label(const QString& name) { return test::Find<QLabel>(form, name); }

    std::string Notes() { return Label(QStringLiteral("lbNotes")).text().toStdString(); }

    int FooterTop() { return Label(QStringLiteral("lblFooter(0)")).y() * 15; }

    /// Draws the form on paper that it fits at its own size, so that the picture counts in the form's twips.
    QRectF InkIn(const QRectF& part)
    {
        const QSizeF size(form.SizeInTwips());
        const QPageSize paper(size / 20, QPageSize::Point, QString(), QPageSize::ExactMatch);
        const test::PageImage image(RenderReport(form, QPageLayout(paper, QPageLayout::Landscape, QMarginsF())));
        EXPECT_NEAR(image.Size().width(), size.width(), 40);
        return image.InkIn(part);
    }

    /// The notes stand within their place: below the rows, between the margins, a free line above the footer.
    void ExpectNotesInTheirPlace()
    {
        const QRectF ink = InkIn({0, 6720, 14400, FooterTop() - 6720.0});
        EXPECT_GE(ink.left(), 2190 - 20);
        EXPECT_LE(ink.right(), 14400 - 2190 + 20);
        EXPECT_LE(ink.bottom(), FooterTop() - 180);
    }

    engine::AntennaSystems systems = DifferentSystems();
    support::RecordingNotifier notifier;
    PrintSystemReport form{systems, notifier, QLocale::c()};
};

TEST_F(ReportNotes, AreAddedBehindABlank)
{
    form.AppendNotes(QStringLiteral("A"));
    EXPECT_EQ(Notes(), "Notes: A");
}

TEST_F(ReportNotes, AddUpWhileTheProgramRunsAsGiven)
{
    form.AppendNotes(QStringLiteral("A"));
    form.SetReport();
    form.AppendNotes(QStringLiteral("B"));
    EXPECT_EQ(Notes(), "Notes: A B");
}

TEST_F(ReportNotes, WithoutTextAddTheirBlankAllTheSame)
{
    form.AppendNotes(QString());
    form.AppendNotes(QString());
    EXPECT_EQ(Notes(), "Notes:  ");
}

TEST_F(ReportNotes, AreNeverTakenForMarkup)
{
    form.AppendNotes(QStringLiteral("<b>5 & 6</b>"));
    EXPECT_EQ(Notes(), "Notes: <b>5 & 6</b>");
    EXPECT_EQ(Label(QStringLiteral("lbNotes")).textFormat(), Qt::PlainText);
}

TEST_F(ReportNotes, ThatFitLeaveTheFormAsDesigned)
{
    form.AppendNotes(QStringLiteral("One\nTwo\nThree\nFour\nFive\nSix"));
    EXPECT_EQ(form.SizeInTwips(), QSize(14400, 9960));
    EXPECT_EQ(FooterTop(), 9240);
    EXPECT_EQ(Label(QStringLiteral("lbNotes")).font().pointSizeF(), 8);
    ExpectNotesInTheirPlace();
}

TEST_F(ReportNotes, ThatNeedMoreRoomAreWrittenSmallerFirst)
{
    form.AppendNotes(QStringLiteral("line\n").repeated(13));
    EXPECT_LT(Label(QStringLiteral("lbNotes")).font().pointSizeF(), 8);
    EXPECT_EQ(form.SizeInTwips(), QSize(14400, 9960));
    ExpectNotesInTheirPlace();
}

TEST_F(ReportNotes, ThatNeedStillMoreMakeTheFormTaller)
{
    form.AppendNotes(QStringLiteral("line\n").repeated(40));
    EXPECT_EQ(Label(QStringLiteral("lbNotes")).font().pointSizeF(), 6);
    EXPECT_GT(FooterTop(), 9240);
    EXPECT_EQ(Label(QStringLiteral("lblFooter(1)")).y() * 15, FooterTop() + 240);
    EXPECT_EQ(form.SizeInTwips(), QSize(14400, FooterTop() + 720));
    ExpectNotesInTheirPlace();
}

TEST_F(ReportNotes, WrapAtBlanks)
{
    form.AppendNotes(QStringLiteral("word ").repeated(100));
    ExpectNotesInTheirPlace();
}

TEST_F(ReportNotes, BreakWordsThatAreLongerThanALine)
{
    form.AppendNotes(QStringLiteral("W").repeated(400));
    ExpectNotesInTheirPlace();
    // More than two lines: the word was broken, neither cut nor squeezed.
    EXPECT_GT(InkIn({0, 6720, 14400, 2400}).height(), 400);
}

TEST_F(ReportNotes, WithTabsStayBetweenTheMargins)
{
    form.AppendNotes(QStringLiteral("tab\t").repeated(60));
    ExpectNotesInTheirPlace();
}

TEST_F(ReportNotes, OfOtherScriptsStayBetweenTheMargins)
{
    form.AppendNotes(QString::fromUtf8("\nשלום עולם ").repeated(3) + QString::fromUtf8("日本語").repeated(80));
    ExpectNotesInTheirPlace();
}

TEST_F(ReportNotes, FromRightToLeftStandAtTheRight)
{
    form.AppendNotes(QString::fromUtf8("\nשלום"));
    // Behind the caption's line, in the right half of the notes.
    const QRectF ink = InkIn({8000, 6720, 6400, 2400});
    EXPECT_FALSE(ink.isEmpty());
    EXPECT_NEAR(ink.right(), 14400 - 2190, 60);
}

TEST_F(ReportNotes, OfAnyLineEndBreakThere)
{
    const double oneLine = InkIn({0, 6720, 14400, 2400}).height();
    form.AppendNotes(QString::fromUtf8("A\r\nB\rC\u2028D\u2029E\fF"));
    // Six lines of capitals: five line spacings more.
    EXPECT_GT(InkIn({0, 6720, 14400, 2400}).height(), oneLine + 5 * 160);
    ExpectNotesInTheirPlace();
}

} // namespace
} // namespace quillon::ui
