#include "ui/report/report_page.h"

#include "tests/support/application_font.h"
#include "tests/support/find_widget.h"
#include "tests/support/recording_notifier.h"
#include "tests/support/row_name.h"
#include "tests/support/temp_folder.h"
#include "tests/ui/report/page_image.h"
#include "tests/ui/report/printed_page.h"
#include "tests/ui/report/report_systems.h"
#include "ui/report/print_system_report.h"

#include <QApplication>
#include <QFontMetricsF>
#include <QLabel>
#include <QLocale>
#include <QPageLayout>
#include <QPalette>

#include <gtest/gtest.h>

#include <ostream>
#include <string>

namespace quillon::ui {
namespace {

using engine::SystemId;

/// Half a millimetre.
constexpr double kTolerance = 28.3;

QPageLayout Page(QPageSize::PageSizeId paper, const QMarginsF& points = {18, 18, 18, 18})
{
    return {QPageSize(paper), QPageLayout::Landscape, points, QPageLayout::Point};
}

class ReportPage : public testing::Test
{
protected:
    ReportPage() { form.SetReport(); }

    QByteArray Render(const QPageLayout& page) { return RenderReport(form, page); }

    test::PrintedPage Read(const QPageLayout& page)
    {
        const QByteArray document = Render(page);
        const auto file = folder.Put("report.pdf", {document.data(), static_cast<std::size_t>(document.size())});
        return test::PrintedPage(QString::fromStdString(file.string()));
    }

    support::TempFolder folder;
    engine::AntennaSystems systems = DifferentSystems();
    support::RecordingNotifier notifier;
    PrintSystemReport form{systems, notifier, QLocale::c()};
};

struct PaperRow
{
    std::string name;
    QPageSize::PageSizeId paper;
    QSizeF millimetres;
    double scale;
};

void PrintTo(const PaperRow& row, std::ostream* out)
{
    *out << row.name;
}

class OnPaper : public ReportPage, public testing::WithParamInterface<PaperRow>
{
protected:
    QSizeF PaperInTwips() { return GetParam().millimetres * 1440 / 25.4; }

    /// A place of the form on the paper: the form's middle is the paper's.
    QPointF OnPage(const QPointF& onForm)
    {
        const QPointF middle(PaperInTwips().width() / 2, PaperInTwips().height() / 2);
        return middle + (onForm - QPointF(7200, 4980)) * GetParam().scale;
    }
};

TEST_P(OnPaper, IsOneLandscapePageOfItsSize)
{
    const test::PrintedPage page = Read(Page(GetParam().paper));
    EXPECT_EQ(page.pages, 1);
    EXPECT_NEAR(page.size.width(), GetParam().millimetres.width(), 0.3);
    EXPECT_NEAR(page.size.height(), GetParam().millimetres.height(), 0.3);
}

TEST_P(OnPaper, HoldsEveryTextAndEmbedsItsFonts)
{
    form.AppendNotes(QStringLiteral("built in spring"));
    const test::PrintedPage page = Read(Page(GetParam().paper));
    for (const QLabel* label : form.findChildren<QLabel*>()) {
        EXPECT_TRUE(page.text.contains(label->text().simplified())) << label->text().toStdString();
    }
    EXPECT_FALSE(page.fontFlags.isEmpty());
    EXPECT_FALSE(page.fontFlags.contains(QStringLiteral("no")));
}

TEST_P(OnPaper, StandsInTheMiddle)
{
    const test::PageImage image(Render(Page(GetParam().paper)));
    // "Zenith" stands on its line, its Z a hair's breadth from its left end.
    const QRectF zenith = image.InkIn({OnPage({6300 - 90, 1680 - 20}), OnPage({8355 - 90, 1920 - 20})});
    QFont font = test::Find<QLabel>(form, QStringLiteral("lblSystemTwo(2)")).font();
    font.setPixelSize(160);
    EXPECT_NEAR(zenith.left(), OnPage({6300, 0}).x(), kTolerance);
    EXPECT_NEAR(zenith.bottom(), OnPage({0, 1680 + QFontMetricsF(font).ascent()}).y(), kTolerance);

    const QRectF header = image.InkIn({OnPage({0, 240}), OnPage({14400, 720})});
    EXPECT_NEAR(header.center().x(), PaperInTwips().width() / 2, kTolerance);
    const QRectF footer = image.InkIn({OnPage({0, 9240}), OnPage({14400, 9480})});
    EXPECT_NEAR(footer.center().x(), PaperInTwips().width() / 2, kTolerance);
}

TEST_P(OnPaper, AlignsItsColumnsAtTheirLefts)
{
    // Every capital here has a straight stem at its left, so it begins where its label does.
    const test::PageImage image(Render(Page(GetParam().paper)));
    const auto leftAt = [&](double left, int row) {
        const double top = 1200 + 240.0 * row;
        return image.InkIn({OnPage({left - 60, top - 20}), OnPage({left + 1900, top + 220})}).left();
    };
    EXPECT_NEAR(leftAt(4245, 5), OnPage({4245, 0}).x(), kTolerance);
    EXPECT_NEAR(leftAt(4245, 6), leftAt(4245, 5), kTolerance);
    EXPECT_NEAR(leftAt(6300, 3), OnPage({6300, 0}).x(), kTolerance);
    EXPECT_NEAR(leftAt(2190, 11), OnPage({2190, 0}).x(), kTolerance);
}

INSTANTIATE_TEST_SUITE_P(Landscape, OnPaper,
                         testing::Values(PaperRow{"A4 at full size", QPageSize::A4, {297, 210}, 1},
                                         PaperRow{"Letter at full size", QPageSize::Letter, {279.4, 215.9}, 1},
                                         // 148 mm are 8391 twips, less 360 at each side 7671, by 9960.
                                         PaperRow{"A5 scaled down", QPageSize::A5, {210, 148}, 0.7702}),
                         support::RowName());

TEST_F(ReportPage, CarriesItsTitle)
{
    const QByteArray document = Render(Page(QPageSize::A4));
    EXPECT_TRUE(document.startsWith("%PDF-"));
    // The document's texts are UTF-16.
    QByteArray title;
    for (const char character : QByteArray("Antenna System Comparison Report")) {
        title.append('\0').append(character);
    }
    EXPECT_TRUE(document.contains(title));
}

TEST_F(ReportPage, IsLandscapeWhateverTheOrientationOfThePaper)
{
    const QPageLayout portrait(QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF(18, 18, 18, 18),
                               QPageLayout::Point);
    const test::PrintedPage page = Read(portrait);
    EXPECT_GT(page.size.width(), page.size.height());
}

TEST_F(ReportPage, IsLandscapeOnPaperThatIsDefinedSo)
{
    const test::PrintedPage page = Read(Page(QPageSize::Ledger));
    EXPECT_NEAR(page.size.width(), 431.8, 0.3);
    EXPECT_NEAR(page.size.height(), 279.4, 0.3);
}

TEST_F(ReportPage, IsEmptyWithoutPaper)
{
    EXPECT_TRUE(Render(QPageLayout()).isEmpty());
}

TEST_F(ReportPage, TakesTheWiderOfTwoMarginsOnBothSidesToStayInTheMiddle)
{
    const auto inkWithin = [this](const QMarginsF& points) {
        return test::PageImage(Render(Page(QPageSize::A4, points))).Ink();
    };
    // Two inches at the sides or half as much above and below: the form has to give way.
    EXPECT_EQ(inkWithin({144, 18, 18, 18}), inkWithin({144, 18, 144, 18}));
    EXPECT_EQ(inkWithin({18, 18, 144, 18}), inkWithin({144, 18, 144, 18}));
    EXPECT_EQ(inkWithin({18, 72, 18, 18}), inkWithin({18, 72, 18, 72}));
    EXPECT_EQ(inkWithin({18, 18, 18, 72}), inkWithin({18, 72, 18, 72}));
}

TEST_F(ReportPage, IsDrawnSmallerForMarginsOnlyWhenItHasTo)
{
    const QRectF narrow = test::PageImage(Render(Page(QPageSize::A4, {0, 0, 0, 0}))).Ink();
    const QRectF wide = test::PageImage(Render(Page(QPageSize::A4, {45, 45, 45, 45}))).Ink();
    const QRectF tooWide = test::PageImage(Render(Page(QPageSize::A4, {120, 45, 120, 45}))).Ink();
    EXPECT_NEAR(narrow.width(), wide.width(), 20);
    EXPECT_LT(tooWide.width(), wide.width() - 200);
}

TEST_F(ReportPage, TakesTallNotesDownToThePaper)
{
    for (int line = 0; line < 80; ++line) {
        form.AppendNotes(QStringLiteral("note%1\n").arg(line));
    }
    for (const QPageSize::PageSizeId paper : {QPageSize::A4, QPageSize::Letter}) {
        const test::PrintedPage page = Read(Page(paper));
        EXPECT_EQ(page.pages, 1);
        for (int line = 0; line < 80; ++line) {
            EXPECT_TRUE(page.text.contains(QStringLiteral("note%1 ").arg(line))) << line;
        }
        const test::PageImage image(Render(Page(paper)));
        EXPECT_GE(image.Ink().top(), 360);
        EXPECT_LE(image.Ink().bottom(), image.Size().height() - 360);
    }
}

TEST_F(ReportPage, SqueezesTextsThatAreWiderThanTheirColumn)
{
    systems.Data[SystemId::One].AntennaModel = "WWWWWWWWWWWWWWWWWWWWWWWWW";
    form.SetReport();
    const test::PrintedPage page = Read(Page(QPageSize::Letter));
    EXPECT_TRUE(page.text.contains(QStringLiteral("WWWWWWWWWWWWWWWWWWWWWWWWW Dipole")));

    // Letter is 15840 by 12240 twips: the form begins 720 from the left and 1140 from the top.
    const test::PageImage image(Render(Page(QPageSize::Letter)));
    EXPECT_TRUE(image.InkIn({720 + 6300 - 80, 1140 + 1920, 60, 220}).isEmpty());
}

TEST_F(ReportPage, HasRoomForTheLongestSentences)
{
    systems.Results[SystemId::One].FeedPointPower = 9999999;
    systems.Data[SystemId::One].CoaxLoss = 99.99F;
    form.SetReport();
    const test::PageImage image(Render(Page(QPageSize::Letter)));
    EXPECT_LE(image.Ink().right(), 720 + 14400 - 240);
}

TEST_F(ReportPage, ShowsControlCharactersOfNamesAsBlanks)
{
    systems.Data[SystemId::Two].AntennaBrand = "ab\ncd\tef";
    form.SetReport();
    EXPECT_TRUE(Read(Page(QPageSize::A4)).text.contains(QStringLiteral("ab cd ef")));
}

TEST_F(ReportPage, IsBlackOnWhiteWhateverThePalette)
{
    const QPalette before = QApplication::palette();
    QApplication::setPalette(QPalette(Qt::yellow, Qt::darkBlue));
    PrintSystemReport dark(systems, notifier, QLocale::c());
    dark.SetReport();
    const test::PageImage image(RenderReport(dark, Page(QPageSize::A4)));
    QApplication::setPalette(before);
    EXPECT_TRUE(image.IsGray());
    EXPECT_TRUE(image.HasBlack());
    EXPECT_TRUE(image.InkIn({0, 0, 1000, 1000}).isEmpty());
}

TEST_F(ReportPage, IsTheSameWhateverTheSizeOfTheDesktopsFont)
{
    const QRectF before = test::PageImage(Render(Page(QPageSize::A4))).Ink();
    const test::ApplicationFont font;
    test::ApplicationFont::SetPointSize(20);
    PrintSystemReport large(systems, notifier, QLocale::c());
    large.SetReport();
    EXPECT_EQ(test::PageImage(RenderReport(large, Page(QPageSize::A4))).Ink(), before);
}

} // namespace
} // namespace quillon::ui
