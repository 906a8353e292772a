#include "tests/support/row_name.h"
#include "tests/ui/editor/editor_fixture.h"
#include "ui/editor/editor_clock.h"

#include <QDate>
#include <QTest>
#include <QTimer>

namespace quillon::ui {
namespace {

struct DeadlineRow
{
    const char* name;
    std::uint32_t start;
    std::uint32_t later;
    bool isShown;
};

class StatusDeadline : public EditorTest, public ::testing::WithParamInterface<DeadlineRow>
{
};

TEST_P(StatusDeadline, LiesTenSecondsBehindTheMessage)
{
    Open();
    ticks = GetParam().start;
    Click("cmdAddNewBrand");
    ticks += GetParam().later;
    auto& timer = test::Find<QTimer>(dialog, QStringLiteral("TimerStatusMsg"));
    int turns = 0;
    QObject::connect(&timer, &QTimer::timeout, [&turns] { ++turns; });
    ASSERT_TRUE(QTest::qWaitFor([&turns] { return turns > 0; }));
    EXPECT_EQ(Text("lblStatus"), GetParam().isShown ? "Type in the antenna brand then press enter." : "");
    EXPECT_EQ(timer.isActive(), GetParam().isShown);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Ticks, StatusDeadline, ::testing::Values(
    DeadlineRow{"at once", 1000, 0, true},
    DeadlineRow{"at the deadline", 1000, 10000, true},
    DeadlineRow{"behind the deadline", 1000, 10001, false},
    DeadlineRow{"long behind", 1000, 3600000, false},
    DeadlineRow{"counter about to start again", 4294960000U, 1, true},
    DeadlineRow{"counter started again before the deadline", 4294960000U, 9000, true},
    DeadlineRow{"counter started again behind the deadline", 4294960000U, 10001, false},
    DeadlineRow{"deadline at the counter's start", 4294957296U, 10000, true},
    DeadlineRow{"behind a deadline at the counter's start", 4294957296U, 10001, false}), support::RowName());

// clang-format on

TEST_F(EditorTest, NewMessageStartsTheTenSecondsAnew)
{
    Open();
    Click("cmdAddNewBrand");
    ticks += 9000;
    Edit("ACME", "XR-5");
    Click("cmdSave");
    ticks += 9000;
    QTest::qWait(0);
    EXPECT_EQ(Text("lblStatus"), "Changes saved.");
}

TEST(EditorClock, TicksAreMillisecondsThatGoOn)
{
    const std::uint32_t before = TickCount();
    EXPECT_TRUE(QTest::qWaitFor([before] { return TickCount() - before >= 2; }));
    EXPECT_LT(TickCount() - before, 5000U);
}

TEST(EditorClock, TodayIsTheDesktopsDate)
{
    const QDate date = QDate::currentDate();
    const std::chrono::year_month_day today = Today();
    EXPECT_EQ(static_cast<int>(today.year()), date.year());
    EXPECT_EQ(static_cast<int>(static_cast<unsigned>(today.month())), date.month());
    EXPECT_EQ(static_cast<int>(static_cast<unsigned>(today.day())), date.day());
}

} // namespace
} // namespace quillon::ui
