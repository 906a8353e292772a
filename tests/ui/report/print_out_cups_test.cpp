#include "tests/support/find_widget.h"
#include "tests/support/private_cups.h"
#include "tests/support/recording_notifier.h"
#include "tests/support/row_name.h"
#include "tests/ui/report/printed_page.h"
#include "ui/platform/printers_cups.h"
#include "ui/report/print_out.h"
#include "ui/report/print_system_report.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QComboBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTimer>

#include <algorithm>
#include <functional>

namespace quillon::ui {
namespace {

using test::PrintedPage;
using test::PrivateCups;
using test::PrivateQueue;
using ::testing::IsEmpty;
using ::testing::StartsWith;

constexpr double kHalfMillimetre = 0.5;
constexpr double kMillimetresPerTwip = 25.4 / 1440;

engine::SystemData ABeam()
{
    engine::SystemData data;
    data.AntennaBrand = "HY-GAIN";
    data.AntennaModel = "TH7DX";
    data.CoaxBrand = "BELDEN";
    data.CoaxModel = "9913 RG-8";
    data.Frequency = 14.2F;
    data.CoaxLength = 100;
    data.XmitPower = 1500;
    data.VSWR = 1.5F;
    data.UseAntennaList = engine::kTrue;
    data.UseCoaxList = engine::kTrue;
    return data;
}

/// The real dialog with the real report on printers of a print service of the tests' own.
class Printout
{
public:
    explicit Printout(const PrivateQueue& queue)
        : cups(std::vector<PrivateQueue>{queue})
        , printers(cups.Server())
        , dialog(report, printers, notifier, nullptr,
                 {std::chrono::milliseconds(20), std::chrono::seconds(30), std::chrono::seconds(30)})
    {
        systems.Data[engine::SystemId::One] = ABeam();
        systems.Data[engine::SystemId::Two] = ABeam();
        systems.Results[engine::SystemId::One].ERP = 1234.5F;
        report.SetReport();
        dialog.Prepare();
    }

    void PressPrint(const QString& notes = {})
    {
        test::Find<QPlainTextEdit>(dialog, QStringLiteral("txtNotes")).setPlainText(notes);
        test::Find<QPushButton>(dialog, QStringLiteral("cmdPrint")).click();
    }

    [[nodiscard]] bool HasPrinted() { return !test::Find<QPushButton>(dialog, QStringLiteral("cmdPrint")).isEnabled(); }

    PrivateCups cups;
    CupsPrinters printers;
    engine::AntennaSystems systems;
    support::RecordingNotifier notifier;
    PrintSystemReport report{systems, notifier, QLocale::c()};
    PrintOut dialog;
};

struct PageRow
{
    std::string name;
    std::string paper;
    QString notes;
    QSizeF millimetres;
};

class PrintedPages : public ::testing::TestWithParam<PageRow>
{
};

// All but the comparison, which depends on how the systems differ.
const QStringList kTexts{"Antenna System Comparison Report",
                         "Antenna System One",
                         "Antenna System Two",
                         "Antenna System Comparison",
                         "Antenna Brand HY-GAIN HY-GAIN",
                         "Antenna Model TH7DX TH7DX",
                         "Coax Cable Brand BELDEN BELDEN",
                         "Coax Cable Type 9913 RG-8 9913 RG-8",
                         "Antenna System ERP 1234.50 Watts ERP 0.00 Watts ERP",
                         "Antenna Power Gain 0 Watts 0 Watts",
                         "Antenna Gain dBd 0 dB 0 dB",
                         "Feedpoint Power 0 Watts 0 Watts",
                         "Coax Loss / 100 Ft",
                         "Coax Cable Length 100 Ft. 100 Ft.",
                         "Coax Loss dB 0 dB 0 dB",
                         "Coax Power Loss 0 Watts 0 Watts",
                         "Transmit Frequency 14.2 MHz 14.2 MHz",
                         "Transmit Power 1500 Watts 1500 Watts",
                         "SWR Value 1.5 1.5",
                         "SWR Attenuation W 0.0000 0.0000",
                         "SWR Attenuation dB 0.0 0.0",
                         "Quillon is a demonstration tool only and should not be used to make purchasing decisions."};

TEST_P(PrintedPages, AreOneLandscapePageWithEveryRowInTheMiddle)
{
    const PageRow& row = GetParam();
    Printout printout({.name = "Shack", .paper = row.paper});
    printout.PressPrint(row.notes);
    EXPECT_THAT(printout.notifier.Messages(), IsEmpty());
    EXPECT_TRUE(printout.HasPrinted());

    const PrintedPage page(printout.cups.Caught(1));
    EXPECT_EQ(page.pages, 1);
    EXPECT_NEAR(page.size.width(), row.millimetres.width(), kHalfMillimetre);
    EXPECT_NEAR(page.size.height(), row.millimetres.height(), kHalfMillimetre);
    for (const QString& text : kTexts) {
        EXPECT_TRUE(page.text.contains(text)) << text.toStdString() << "\nin: " << page.text.toStdString();
    }
    EXPECT_TRUE(page.text.contains(QStringLiteral("Notes: ") + row.notes)) << page.text.toStdString();
    EXPECT_FALSE(page.fontFlags.isEmpty());
    EXPECT_FALSE(page.fontFlags.contains(QStringLiteral("no")));

    // The form is 14400 twips wide; the notes line stands 2190 from its left edge and 6720 from its top.
    const double left = row.millimetres.width() / 2 + (2190 - 14400 / 2.0) * kMillimetresPerTwip;
    const double top =
        row.millimetres.height() / 2 + (6720 - printout.report.SizeInTwips().height() / 2.0) * kMillimetresPerTwip;
    const QPointF notes = page.PlaceOf(QStringLiteral("Notes:"));
    EXPECT_NEAR(notes.x(), left, kHalfMillimetre);
    EXPECT_NEAR(notes.y(), top, kHalfMillimetre);
}

constexpr QSizeF kA4(297, 210);
constexpr QSizeF kLetter(279.4, 215.9);

INSTANTIATE_TEST_SUITE_P(Papers, PrintedPages,
                         ::testing::Values(PageRow{"A4", "A4", "", kA4},
                                           PageRow{"A4 with notes", "A4", "Beam at 30 ft, long run", kA4},
                                           PageRow{"Letter", "Letter", "", kLetter},
                                           PageRow{"Letter with notes", "Letter", "Beam at 30 ft, long run", kLetter}),
                         support::RowName());

struct TroubleRow
{
    std::string name;
    PrivateQueue queue;
    std::function<void(PrivateCups&)> before; ///< after the dialog opened, before the print
    std::function<void(PrivateCups&)> during; ///< when the service has the page
    std::string message;                      ///< how it begins
};

struct TroubleOn
{
    TroubleRow trouble;
    std::string paper;
    QString notes;
    std::string name;
};

class PrintTroubles : public ::testing::TestWithParam<TroubleOn>
{
};

bool HasAnswered(const PrivateCups& cups, const char* request)
{
    const std::vector<std::string> requests = cups.Requests();
    return std::find(requests.begin(), requests.end(), request) != requests.end();
}

bool HasThePage(const PrivateCups& cups)
{
    return HasAnswered(cups, "Print-Job");
}

/// The dialog knows the job's number by now.
bool IsWatched(const PrivateCups& cups)
{
    return HasAnswered(cups, "Get-Job-Attributes");
}

TEST_P(PrintTroubles, EndInTheMessage)
{
    const TroubleRow& trouble = GetParam().trouble;
    PrivateQueue queue = trouble.queue;
    queue.paper = GetParam().paper;
    Printout printout(queue);
    if (trouble.before) {
        trouble.before(printout.cups);
    }
    QTimer during;
    QObject::connect(&during, &QTimer::timeout, &during, [&] {
        if (trouble.during && HasThePage(printout.cups)) {
            during.stop();
            trouble.during(printout.cups);
        }
    });
    during.start(5);
    printout.PressPrint(GetParam().notes);
    ASSERT_EQ(printout.notifier.Messages().size(), 1U);
    EXPECT_EQ(printout.notifier.Messages()[0].title, "Printer Error");
    EXPECT_THAT(printout.notifier.Messages()[0].text, StartsWith(trouble.message));
    EXPECT_FALSE(printout.HasPrinted());
}

std::vector<TroubleOn> TroublesOnEveryPage()
{
    const std::string start = "Error Printing, Error Number ";
    const std::vector<TroubleRow> troubles{
        {"printer fails",
         {.name = "Shack", .fault = "?fail"},
         {},
         {},
         start + "1288 Error Description server-error-job-canceled: aborted"},
        {"printer fails and is stopped",
         {.name = "Shack", .fault = "?fail", .policy = "stop-printer"},
         {},
         {},
         start + "1284 Error Description server-error-device-error: pending, "},
        {"printer is paused",
         {.name = "Shack", .stopped = true, .message = "Out for cleaning"},
         {},
         {},
         start +
             "1284 Error Description server-error-device-error: stopped, paused, Out for cleaning Error Source CUPS "
             "printer Shack"},
        {"printer takes no jobs",
         {.name = "Shack", .accepting = false, .message = "Closed"},
         {},
         {},
         start +
             "1286 Error Description server-error-not-accepting-jobs: idle, Closed Error Source CUPS printer Shack"},
        {"printer is removed",
         {.name = "Shack"},
         [](PrivateCups& cups) { cups.Remove("Shack"); },
         {},
         start + "1030 Error Description The printer or class does not exist. Error Source CUPS printer Shack"},
        {"service has died",
         {.name = "Shack"},
         [](PrivateCups& cups) { cups.Die(); },
         {},
         start + "1282 Error Description "},
        {"service dies meanwhile",
         {.name = "Shack", .fault = "?wait"},
         {},
         [](PrivateCups& cups) { cups.Die(); },
         start + "1282 Error Description "},
        {"printer is removed meanwhile",
         {.name = "Shack", .fault = "?wait"},
         {},
         [](PrivateCups& cups) { cups.Remove("Shack"); },
         start + "1030 Error Description The printer or class does "},
    };
    std::vector<TroubleOn> all;
    for (const TroubleRow& trouble : troubles) {
        for (const char* paper : {"A4", "Letter"}) {
            all.push_back({trouble, paper, {}, trouble.name + " on " + paper});
            all.push_back({trouble, paper, QStringLiteral("Beam at 30 ft"), trouble.name + " on " + paper + " notes"});
        }
    }
    return all;
}

INSTANTIATE_TEST_SUITE_P(Everywhere, PrintTroubles, ::testing::ValuesIn(TroublesOnEveryPage()), support::RowName());

TEST(PrintOutOnCups, NothingIsPrintedElsewhereWhenThePrinterIsGone)
{
    Printout printout({.name = "Shack"});
    printout.cups.Remove("Shack");
    printout.PressPrint();
    EXPECT_FALSE(HasThePage(printout.cups));
}

TEST(PrintOutOnCups, StopCancelsTheJob)
{
    Printout printout({.name = "Shack", .fault = "?wait"});
    QTimer during;
    QObject::connect(&during, &QTimer::timeout, &during, [&] {
        if (IsWatched(printout.cups)) {
            during.stop();
            test::Find<QPushButton>(printout.dialog, QStringLiteral("cmdStop")).click();
        }
    });
    during.start(5);
    printout.PressPrint();
    EXPECT_THAT(printout.notifier.Messages(), IsEmpty());
    EXPECT_EQ(printout.printers.LookAt(QStringLiteral("Shack"), 1).phase, JobPhase::Ended);
    EXPECT_FALSE(printout.cups.HasCaught(1));
}

TEST(PrintOutOnCups, AJobThatFailedDoesNotStayInTheQueue)
{
    Printout printout({.name = "Shack", .fault = "?fail", .policy = "stop-printer"});
    printout.PressPrint();
    EXPECT_EQ(printout.notifier.Messages().size(), 1U);
    EXPECT_EQ(printout.printers.LookAt(QStringLiteral("Shack"), 1).phase, JobPhase::Ended);
}

} // namespace
} // namespace quillon::ui
