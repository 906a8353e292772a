#include "ui/report/print_system_report.h"

#include "tests/support/find_widget.h"
#include "tests/support/recording_notifier.h"
#include "tests/support/row_name.h"
#include "tests/ui/report/report_systems.h"

#include <QLabel>
#include <QLocale>

#include <gtest/gtest.h>

#include <array>
#include <ostream>
#include <stdexcept>
#include <string>

namespace quillon::ui {
namespace {

using engine::SystemId;

class Report : public testing::Test
{
protected:
    QLabel& Label(const QString& name) { return test::Find<QLabel>(form, name); }

    std::string Text(const std::string& name) { return Label(QString::fromStdString(name)).text().toStdString(); }

    std::string At(const std::string& column, int row) { return Text(column + "(" + std::to_string(row) + ")"); }

    /// How many rows of the comparison column hold a text, its heading left out.
    int ComparedRows()
    {
        int count = 0;
        for (int row = 1; row < kReportRowCount; ++row) {
            count += At("lblResults", row).empty() ? 0 : 1;
        }
        return count;
    }

    engine::AntennaSystems systems = DifferentSystems();
    support::RecordingNotifier notifier;
    PrintSystemReport form{systems, notifier, QLocale::c()};
};

TEST_F(Report, HasAllItsLabelsAndNoOthers)
{
    EXPECT_EQ(form.objectName(), QStringLiteral("PrintSystemReport"));
    EXPECT_EQ(form.findChildren<QLabel*>().size(), 4 * 23 + 4);
}

TEST_F(Report, StandsAtItsPlacesInTwips)
{
    const auto expectAt = [this](const QString& name, int left, int top) {
        EXPECT_EQ(Label(name).x() * 15, left) << name.toStdString();
        EXPECT_EQ(Label(name).y() * 15, top) << name.toStdString();
    };
    for (int row = 0; row < 23; ++row) {
        const int top = 1200 + 240 * row;
        expectAt(QStringLiteral("lblRows(%1)").arg(row), 2190, top);
        expectAt(QStringLiteral("lblSystemOne(%1)").arg(row), 4245, top);
        expectAt(QStringLiteral("lblSystemTwo(%1)").arg(row), 6300, top);
        expectAt(QStringLiteral("lblResults(%1)").arg(row), 8355, top);
    }
    expectAt(QStringLiteral("lbNotes"), 2190, 6720);
    EXPECT_EQ(Label(QStringLiteral("lblHeader")).y() * 15, 240);
    EXPECT_EQ(Label(QStringLiteral("lblFooter(0)")).y() * 15, 9240);
    EXPECT_EQ(Label(QStringLiteral("lblFooter(1)")).y() * 15, 9480);
    EXPECT_EQ(form.SizeInTwips(), QSize(14400, 9960));
}

TEST_F(Report, NoLabelReachesIntoAnotherOrOffTheForm)
{
    const QList<QLabel*> labels = form.findChildren<QLabel*>();
    for (const QLabel* label : labels) {
        EXPECT_TRUE(form.rect().contains(label->geometry())) << label->objectName().toStdString();
        for (const QLabel* other : labels) {
            EXPECT_TRUE(label == other || !label->geometry().intersects(other->geometry()))
                << label->objectName().toStdString() << " and " << other->objectName().toStdString();
        }
    }
}

TEST_F(Report, AsksForItsFontAndTakesTextsAsTheyAre)
{
    for (const QLabel* label : form.findChildren<QLabel*>()) {
        EXPECT_EQ(label->font().family(), QStringLiteral("MS Sans Serif"));
        EXPECT_EQ(label->textFormat(), Qt::PlainText);
        EXPECT_EQ(label->palette().color(QPalette::WindowText), QColor(Qt::black));
    }
    EXPECT_EQ(form.palette().color(QPalette::Window), QColor(Qt::white));
}

TEST_F(Report, BeginsWithItsCaptions)
{
    const std::array<std::string, 23> captions{"",
                                               "",
                                               "Antenna Brand",
                                               "Antenna Model",
                                               "",
                                               "Coax Cable Brand",
                                               "Coax Cable Type",
                                               "",
                                               "Antenna System ERP",
                                               "Antenna Power Gain",
                                               "Antenna Gain dBd",
                                               "Feedpoint Power",
                                               "",
                                               "Coax Loss / 100 Ft",
                                               "Coax Cable Length",
                                               "Coax Loss dB",
                                               "Coax Power Loss",
                                               "",
                                               "Transmit Frequency",
                                               "Transmit Power",
                                               "SWR Value",
                                               "SWR Attenuation W",
                                               "SWR Attenuation dB"};
    for (int row = 0; row < 23; ++row) {
        EXPECT_EQ(At("lblRows", row), captions.at(static_cast<std::size_t>(row)));
    }
    EXPECT_EQ(Text("lblHeader"), "Antenna System Comparison Report");
    EXPECT_EQ(At("lblSystemOne", 0), "Antenna System One");
    EXPECT_EQ(At("lblSystemTwo", 0), "Antenna System Two");
    EXPECT_EQ(At("lblResults", 0), "Antenna System Comparison");
    EXPECT_EQ(Text("lbNotes"), "Notes:");
    EXPECT_EQ(Text("lblFooter(0)"),
              "Quillon is a demonstration tool only and should not be used to make purchasing decisions.");
    EXPECT_EQ(Text("lblFooter(1)"), "");
    EXPECT_EQ(ComparedRows(), 0);
}

struct FilledRow
{
    std::string name;
    int row;
    std::string one;
    std::string two;
    std::string comparison;
};

void PrintTo(const FilledRow& row, std::ostream* out)
{
    *out << row.name;
}

class SetReportFills : public Report, public testing::WithParamInterface<FilledRow>
{
};

TEST_P(SetReportFills, TheRow)
{
    form.SetReport();
    EXPECT_EQ(At("lblSystemOne", GetParam().row), GetParam().one);
    EXPECT_EQ(At("lblSystemTwo", GetParam().row), GetParam().two);
    EXPECT_EQ(At("lblResults", GetParam().row), GetParam().comparison);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, SetReportFills,
    testing::Values(
        FilledRow{"0 keeps its headings", 0, "Antenna System One", "Antenna System Two", "Antenna System Comparison"},
        FilledRow{"1 stays empty", 1, "", "", ""},
        FilledRow{"2", 2, "Acme                     ", "Zenith                   ", "Antenna Brands Are Dissimilar"},
        FilledRow{"3", 3, "Tribander 3              ", "Dipole                   ", "Antenna Models Are Dissimilar"},
        FilledRow{"4 stays empty", 4, "", "", ""},
        FilledRow{"5", 5, "Boxwood        ", "Copperline     ", "Coax Brands Are Dissimilar"},
        FilledRow{"6", 6, "BX-400              ", "CL 213              ", "Coax Types Are Dissimilar"},
        FilledRow{"7 stays empty", 7, "", "", ""},
        FilledRow{"8", 8, "342.63 Watts ERP", "8.50 Watts ERP", "System 1 ERP is + 334.13 Watts"},
        FilledRow{"9", 9, "253.0625 Watts", "4.125 Watts", "Ant 1 Power Gain is + 248.93 Watts"},
        FilledRow{"10", 10, "5.85 dB", "2.15 dB", "Antenna 1 Gain is + 3.70 dB"},
        FilledRow{"11", 11, "89.5625 Watts", "4.375 Watts", "Ant 1 Feedpoint Power is + 85.18 Watts"},
        FilledRow{"12 stays empty", 12, "", "", ""},
        FilledRow{"13", 13, "0.47", "0.62", "System 2 Coax Loss / 100 Ft is 0.15 Greater"},
        FilledRow{"14", 14, "100 Ft.", "75.5 Ft.", "System 1 Coax is 24 Feet Longer"},
        FilledRow{"15", 15, "0.47 dB", "0.4681 dB", "Coax dB Losses Are Equal"},
        FilledRow{"16", 16, "10.25 Watts", "0.5 Watts", "Coax 1 Power Loss is 9.75 Watts Greater"},
        FilledRow{"17 stays empty", 17, "", "", ""},
        FilledRow{"18", 18, "14.25 MHz", "7.23 MHz", "Transmit Frequencies Are Dissimilar"},
        FilledRow{"19", 19, "100 Watts", "5 Watts", "System One Power is 95.00 W. Higher"},
        FilledRow{"20", 20, "1.1", "1.5", "System Two VSWR is 0.40 Higher"},
        FilledRow{"21 shows attenuation and compares watts, as given", 21, "0.0100", "0.1773",
                  "Sys 2 VSWR Attenuation is + 53.88 Watts"},
        FilledRow{"22 shows watts and compares attenuation, as given", 22, "0.3", "54.1",
                  "Sys 2 VSWR Attenuation is + 0.17 dB"}),
    support::RowName());

struct MissingRow
{
    std::string name;
    SystemId system;
    engine::Boolean engine::SystemData::*flag;
};

void PrintTo(const MissingRow& row, std::ostream* out)
{
    *out << row.name;
}

class SystemWithout : public Report, public testing::WithParamInterface<MissingRow>
{
};

TEST_P(SystemWithout, ShowsItsValuesAndIsNotCompared)
{
    form.SetReport();
    EXPECT_EQ(ComparedRows(), 17);

    systems.Data[GetParam().system].*GetParam().flag = engine::kFalse;
    systems.Results[SystemId::One].ERP = 1;
    systems.Results[SystemId::Two].ERP = 2;
    form.SetReport();
    EXPECT_EQ(ComparedRows(), 0);
    EXPECT_EQ(At("lblSystemOne", 8), "1.00 Watts ERP");
    EXPECT_EQ(At("lblSystemTwo", 8), "2.00 Watts ERP");
    EXPECT_EQ(At("lblResults", 0), "Antenna System Comparison");
}

INSTANTIATE_TEST_SUITE_P(
    Anything, SystemWithout,
    testing::Values(MissingRow{"antenna in one", SystemId::One, &engine::SystemData::UseAntennaList},
                    MissingRow{"coax in one", SystemId::One, &engine::SystemData::UseCoaxList},
                    MissingRow{"antenna in two", SystemId::Two, &engine::SystemData::UseAntennaList},
                    MissingRow{"coax in two", SystemId::Two, &engine::SystemData::UseCoaxList}),
    support::RowName());

TEST_F(Report, DoComparisonAloneTouchesNothingWhileASystemIsIncomplete)
{
    form.SetReport();
    systems.Data[SystemId::Two].UseCoaxList = engine::kFalse;
    systems.Results[SystemId::Two].ERP = 1000;
    form.DoComparison();
    EXPECT_EQ(At("lblResults", 8), "System 1 ERP is + 334.13 Watts");
    EXPECT_EQ(ComparedRows(), 17);
}

TEST_F(Report, AnOverflowOfTheCoaxLengthIsToldOnceAndTheRestStands)
{
    systems.Data[SystemId::One].CoaxLength = 40000;
    form.SetReport();
    ASSERT_EQ(notifier.Messages().size(), 1U);
    EXPECT_EQ(notifier.Messages()[0].text,
              "Coax Cable Length: the values are too large to be compared. The report leaves this row of the "
              "comparison empty.");
    EXPECT_EQ(notifier.Messages()[0].title, "Antenna System Comparison Report");
    EXPECT_EQ(At("lblResults", 14), "");
    EXPECT_EQ(At("lblSystemOne", 14), "40000 Ft.");
    EXPECT_EQ(At("lblResults", 13), "System 2 Coax Loss / 100 Ft is 0.15 Greater");
    EXPECT_EQ(At("lblResults", 22), "Sys 2 VSWR Attenuation is + 0.17 dB");
}

TEST_F(Report, AnOrdinaryComparisonTellsNothing)
{
    form.SetReport();
    EXPECT_TRUE(notifier.Messages().empty());
}

TEST_F(Report, ShowsTheSeparatorOfItsLocaleAndComparesAllTheSame)
{
    PrintSystemReport german(systems, notifier, QLocale(QLocale::German, QLocale::Germany));
    german.SetReport();
    const auto text = [&german](const char* name) {
        return test::Find<QLabel>(german, QString::fromLatin1(name)).text().toStdString();
    };
    EXPECT_EQ(text("lblSystemOne(8)"), "342,63 Watts ERP");
    EXPECT_EQ(text("lblResults(8)"), "System 1 ERP is + 334,13 Watts");
    EXPECT_EQ(text("lblResults(15)"), "Coax dB Losses Are Equal");
    EXPECT_EQ(text("lblResults(14)"), "System 1 Coax is 24 Feet Longer");
    EXPECT_EQ(german.CoaxLossText(1), "0,47");
}

TEST_F(Report, GivesTheCoaxLossOfSystemsOneAndTwoOnly)
{
    EXPECT_EQ(form.CoaxLossText(1), "0.47");
    EXPECT_EQ(form.CoaxLossText(2), "0.62");
    EXPECT_THROW((void)form.CoaxLossText(0), std::out_of_range);
    EXPECT_THROW((void)form.CoaxLossText(3), std::out_of_range);
}

TEST_F(Report, StaysHiddenWhenAWindowThatOwnsItIsShown)
{
    QWidget window;
    const auto* child = new PrintSystemReport(systems, notifier, QLocale::c(), &window);
    window.show();
    EXPECT_FALSE(child->isVisible());
}

} // namespace
} // namespace quillon::ui
